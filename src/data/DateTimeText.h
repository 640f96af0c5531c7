// Dates and times as the program keeps them: text, yyyy/mm/dd and HH:mm:ss.
#pragma once

#include <QDate>
#include <QString>

/// The server's date. One query to the common database on each call; "Not Found" without a row.
/// A failure is shown as "999999" and thrown on.
QString sfg_GetServerDate();
/// The server's date and some days, before or after. Throws ConversionError when it is no date.
QString sfg_Date(int xAddDays);
/// A day as yyyy/mm/dd, and such a text as a day. Throws ConversionError when it is no date.
QString dateText(const QDate& date);
QDate StrToDate(const QString& text);
/// This machine's clock as HH:mm:ss.
QString sfg_Time();
/// yyyy/mm/dd to yyyymmdd; blank is today.
QString sfg_DTOS(const QString& xDate);
/// yyyymmdd to yyyy/mm/dd.
QString sfg_STOD(const QString& xDate);
/// Seconds of H:MM:SS; blank is 0.
int sfg_TimeToSec(const QString& xTime);
/// "yyyymmdd-HHMMSS" of now, for file names.
QString sfg_TempFileName();
/// Now as 17 digits, down to the millisecond.
QString sfg_GenerateDTReference();

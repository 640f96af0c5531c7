// How statement text is put together: the two statement buffers, quoting, and the stamp that every
// business row carries.
#pragma once

#include "data/TextLines.h"

#include <QString>
#include <QStringList>

/// Statements collected to run as one batch. Two, so that a routine can build a second batch while
/// the first is being prepared.
inline TextLines gSQL, gSQL2;

void sfg_ClearSQL();
void sfg_ClearSQL2();
/// Appends the line xSQL + " ;"; "NEW" in any case empties the buffer first. Always true.
bool sfg_AddSQL(const QString& xSQL, const QString& xFunction);
bool sfg_AddSQL2(const QString& xSQL, const QString& xFunction);
/// The same for a statement written piece by piece, which are joined without anything between them.
bool sfg_AddSQL(const QStringList& pieces, const QString& xFunction);
bool sfg_AddSQL2(const QStringList& pieces, const QString& xFunction);

/// Surrounds with single quotes and doubles any inside.
QString QuotedStr(const QString& text);
QString QuotedStr(qint64 number);
/// Each value quoted, joined with ", ", for IN (...).
QString QuotedStrArray(const QStringList& xValues);

/// Each value quoted, joined with ",", for VALUES (...).
QString valueList(const QStringList& values);

/// Date, time, user and machine, quoted, with the closing bracket: the last four values of an
/// INSERT. The date comes from the server, the time from this machine.
QString sfg_AddDTO();
/// The same as assignments of an UPDATE, without a trailing comma.
QString sfg_UpdateDTO();
/// "date - time - user", for notes and audit texts.
QString sfg_DTO();

// Small helpers on text: filling, codes, numbers.
#pragma once

#include <QString>

/// Filled on the right, or left, with xChar to xLength; never cut.
QString sfg_PADR(const QString& xString, QChar xChar, int xLength);
QString sfg_PADL(const QString& xString, QChar xChar, int xLength);
/// What stands before the first xCheckChar, trimmed; with xKeepSpace "N" without any blanks.
QString sfg_StripCode(const QString& xString, QChar xCheckChar, const QString& xKeepSpace);
/// What stands before the first blank.
QString sfg_StripCodeSpace(const QString& xString);
/// The number in the text; 0 for blank or anything but digits, "." and "-". Throws ConversionError
/// for such characters that make no number.
double sfg_IsNumeric(const QString& xString);

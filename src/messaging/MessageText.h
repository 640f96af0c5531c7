// The text of a message, made from a template.
#pragma once

#include <QString>

/// Puts the caller's values in for the placeholders ("@AccName#"), each between two blanks, and then
/// makes every "&" an "n" and every "H" an "h". A value that holds its own placeholder is put in
/// until the text has 64 k letters; that is written to SMSTemplate.log of the log folder.
QString syssms_Make_Message(const QString& xMessage);

/// Two decimals and a point, to eight digits in all: 1234.5 is "1234.50", 1234567.89 "1234567.90".
/// With more than eight digits before the point it is "1.2345679E8".
QString messageAmount(double amount);

// Tests of what a user typed as an e-mail address or a telephone number.
#pragma once

#include <QString>

bool sfg_Validate_ValidateEmailAddy(const QString& xEmailAddress);
/// Ten digits, 0 first, the second and third not 0, with separators after the third and the sixth.
bool sfg_Validate_PhoneNo(const QString& xPhoneNumber);
/// Whether a regular expression matches the text; an empty match does not count. Throws
/// VelmaraError when the pattern is none.
bool matchesPattern(const QString& pattern, const QString& text);

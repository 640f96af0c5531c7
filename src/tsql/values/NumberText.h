// Numbers as the server reads them from text and writes them as text.
#pragma once

#include "tsql/values/Values.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velcro::sql::tsql {

/// Blank is 0. Faults 245 (8114 for bigint), and for what is too large 248, 244 or 8115. `from`
/// stands in the message.
std::int64_t readInteger(std::string_view text, const Type& from, const Type& to);
/// Blank is 0 for float, real and the money types, no number for decimal: 8114, 235.
double readNumber(std::string_view text, const Type& from, const Type& to);
/// TRUE, FALSE or a number. Fault 245.
std::int64_t readBit(std::string_view text, const Type& from);
/// What ISNUMERIC says of a text.
bool isNumeric(std::string_view text);

/// Style 0: six digits; 1: eight, always with exponent; 2: sixteen; 3: seventeen.
std::string floatText(double value, int style = 0);
std::string decimalText(double value, int scale);
/// Style 0: two decimals; 1: with commas as well; 2: four decimals.
std::string moneyText(double value, int style = 0);

/// Rounds half away from 0, as the server does, in the decimal digits a user sees: 1.005 to 2 digits
/// is 1.01. Negative digits round before the point.
double roundDecimal(double value, int digits, bool truncate = false);

/// Fault 220 or 8115 when an integer lies outside the type.
std::int64_t requireRange(std::int64_t value, const Type& from, const Type& to);
/// Fault 232 or 8115 for a number whose whole part lies outside the type.
std::int64_t wholePart(double value, const Type& from, const Type& to);

} // namespace velcro::sql::tsql

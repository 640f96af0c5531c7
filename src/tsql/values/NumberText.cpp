#include "tsql/values/NumberText.h"

#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace velcro::sql::tsql {

namespace {

struct Bounds
{
    std::int64_t least;
    std::int64_t most;
};

Bounds boundsOf(TypeId id) {
    switch (id) {
    case TypeId::Bit:
        return {0, 1};
    case TypeId::TinyInt:
        return {0, 255};
    case TypeId::SmallInt:
        return {std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()};
    case TypeId::Int:
        return {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()};
    default:
        return {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()};
    }
}

bool isBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

[[noreturn]] void raiseNoInteger(std::string_view text, const Type& from, const Type& to) {
    if (to.id == TypeId::BigInt) {
        raise(8114, {baseTypeName(from.id), "bigint"});
    }
    raise(245, {baseTypeName(from.id), text, baseTypeName(to.id)});
}

[[noreturn]] void raiseLargeInteger(std::string_view text, const Type& from, const Type& to) {
    switch (to.id) {
    case TypeId::TinyInt:
        raise(244, {baseTypeName(from.id), text, "INT1"});
    case TypeId::SmallInt:
        raise(244, {baseTypeName(from.id), text, "INT2"});
    case TypeId::BigInt:
        raise(8115, {baseTypeName(from.id), "bigint"});
    default:
        raise(248, {baseTypeName(from.id), text});
    }
}

bool isMoney(const Type& type) {
    return type.id == TypeId::Money || type.id == TypeId::SmallMoney;
}

std::string withoutMoneySigns(std::string_view text) {
    std::string number;
    for (const char c : text) {
        if (c != ',' && c != '$') {
            number += c;
        }
    }
    return number;
}

// The whole of it must be a number; no hexadecimal, no infinity.
bool parseNumber(std::string_view text, double& value) {
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
    }
    if (text.empty() || text.find_first_not_of("0123456789.eE+-") != std::string_view::npos) {
        return false;
    }
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size();
}

std::string printed(const char* format, int digits, double value) {
    std::array<char, 400> buffer{};
    std::snprintf(buffer.data(), buffer.size(), format, digits, value);
    return buffer.data();
}

} // namespace

std::int64_t readInteger(std::string_view text, const Type& from, const Type& to) {
    auto digits = trimmed(text);
    const bool negative = !digits.empty() && digits.front() == '-';
    if (!digits.empty() && (negative || digits.front() == '+')) {
        digits.remove_prefix(1);
        digits = trimmed(digits);
    }
    if (digits.find_first_not_of("0123456789") != std::string_view::npos) {
        raiseNoInteger(text, from, to);
    }
    std::uint64_t magnitude = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
    const Bounds bounds = boundsOf(to.id);
    const auto most = static_cast<std::uint64_t>(bounds.most);
    const auto least = static_cast<std::uint64_t>(0) - static_cast<std::uint64_t>(bounds.least);
    if (error == std::errc::result_out_of_range || magnitude > (negative ? least : most)) {
        raiseLargeInteger(text, from, to);
    }
    return static_cast<std::int64_t>(negative ? 0 - magnitude : magnitude);
}

double readNumber(std::string_view text, const Type& from, const Type& to) {
    const auto number = trimmed(text);
    const bool fixed = to.id == TypeId::Decimal || to.id == TypeId::Numeric;
    if (number.empty() && !fixed) {
        return 0;
    }
    double value = 0;
    const bool exponent = number.find_first_of("eE") != std::string_view::npos;
    const bool read =
        isMoney(to) ? parseNumber(withoutMoneySigns(number), value) : parseNumber(number, value);
    if (!read || (exponent && to.isDecimal())) {
        if (isMoney(to)) {
            raise(235);
        }
        raise(8114, {baseTypeName(from.id), fixed ? "numeric" : baseTypeName(to.id)});
    }
    return value;
}

std::int64_t readBit(std::string_view text, const Type& from) {
    const auto word = trimmed(text);
    if (sameName(word, "true") || sameName(word, "false")) {
        return sameName(word, "true") ? 1 : 0;
    }
    const auto digits = !word.empty() && (word[0] == '-' || word[0] == '+') ? word.substr(1) : word;
    if (digits.find_first_not_of("0123456789") != std::string_view::npos) {
        raise(245, {baseTypeName(from.id), text, "bit"});
    }
    return digits.find_first_not_of('0') == std::string_view::npos ? 0 : 1;
}

bool isNumeric(std::string_view text) {
    const auto number = trimmed(text);
    if (number.size() == 1 && std::string_view("+-.,$").find(number[0]) != std::string_view::npos) {
        return true;
    }
    double value = 0;
    return parseNumber(withoutMoneySigns(number), value);
}

std::string floatText(double value, int style) {
    if (style >= 1 && style <= 3) {
        value = value == 0 ? 0 : value;
        std::string text = printed("%.*e", style == 1 ? 7 : style == 2 ? 15 : 16, value);
        const auto e = text.find('e');
        return text.substr(0, e + 2) + std::string(3 - (text.size() - e - 2), '0') +
               text.substr(e + 2);
    }
    std::string text = printed("%.*g", 6, value == 0 ? 0 : value);
    const auto e = text.find('e');
    if (e != std::string::npos && text.size() - e == 4) { // the server writes three digits
        text.insert(e + 2, "0");
    }
    return text;
}

std::string decimalText(double value, int scale) {
    std::string text = printed("%.*f", scale, roundDecimal(value, scale));
    const bool negativeZero = text[0] == '-' && text.find_first_not_of("-0.") == std::string::npos;
    return negativeZero ? text.substr(1) : text;
}

std::string moneyText(double value, int style) {
    std::string text = decimalText(value, style == 2 ? 4 : 2);
    if (style == 1) {
        const std::size_t first = text[0] == '-' ? 1 : 0;
        for (std::size_t at = text.find('.'); at > first + 3;) {
            at -= 3;
            text.insert(at, ",");
        }
    }
    return text;
}

double roundDecimal(double value, int digits, bool truncate) {
    if (!std::isfinite(value) || digits > 300 || digits < -300) {
        return digits < 0 ? 0 : value;
    }
    const double factor = std::pow(10.0, std::abs(digits));
    const double scaled = digits >= 0 ? value * factor : value / factor;
    if (std::abs(scaled) >= 1e15) {
        return value;
    }
    // A value that was meant to end in 5 may lie a hair below it.
    const double whole = truncate ? std::trunc(scaled + std::copysign(1e-9, scaled))
                                  : std::round(scaled * (1 + 4e-16));
    return digits >= 0 ? whole / factor : whole * factor;
}

std::int64_t requireRange(std::int64_t value, const Type& from, const Type& to) {
    if (to.id == TypeId::Bit) {
        return value != 0;
    }
    const Bounds bounds = boundsOf(to.id);
    if (value >= bounds.least && value <= bounds.most) {
        return value;
    }
    if (to.id == TypeId::Int || !from.isInteger()) {
        raise(8115, {"expression", baseTypeName(to.id)});
    }
    raise(220, {baseTypeName(to.id), std::to_string(value)});
}

std::int64_t wholePart(double value, const Type& from, const Type& to) {
    if (to.id == TypeId::Bit) {
        return value != 0;
    }
    const double whole = isMoney(from) ? std::round(value) : std::trunc(value);
    const Bounds bounds = boundsOf(to.id);
    const bool inside = whole >= static_cast<double>(bounds.least) &&
                        whole < static_cast<double>(bounds.most) + 1 && std::abs(whole) < 0x1p63;
    if (inside) {
        return static_cast<std::int64_t>(whole);
    }
    if (from.isDecimal()) {
        raise(8115, {isMoney(from) ? "money" : "numeric", baseTypeName(to.id)});
    }
    raise(232, {baseTypeName(to.id), printed("%.*f", 6, value)});
}

} // namespace velcro::sql::tsql

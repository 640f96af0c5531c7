#include "tsql/translate/Translation.h"

#include "tsql/values/Errors.h"

#include <algorithm>
#include <charconv>

namespace velcro::sql::tsql {

namespace {

constexpr int openLength = 4000;

double parseDouble(std::string_view text) {
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

Value parseInteger(std::string_view text, bool negated) {
    std::int64_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc()) {
        return negated ? -parseDouble(text) : parseDouble(text);
    }
    return negated ? -value : value;
}

std::string_view afterCurrencySign(std::string_view text) {
    const auto digit = text.find_first_of("0123456789.");
    return text.substr(std::min(digit, text.size()));
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    return (c | 0x20) - 'a' + 10;
}

/// An odd number of digits has a leading zero, as on the server.
Blob parseBinary(std::string_view text) {
    text.remove_prefix(std::min<std::size_t>(2, text.size()));
    Blob blob;
    blob.bytes.reserve(text.size() / 2 + 1);
    std::size_t at = text.size() % 2;
    if (at == 1) {
        blob.bytes.push_back(static_cast<char>(hexDigit(text[0])));
    }
    for (; at + 1 < text.size(); at += 2) {
        blob.bytes.push_back(static_cast<char>(hexDigit(text[at]) * 16 + hexDigit(text[at + 1])));
    }
    return blob;
}

Type decimalLiteralType(std::string_view text) {
    const auto dot = text.find('.');
    const auto digits = static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }));
    const auto scale = dot == std::string_view::npos ? 0 : text.size() - dot - 1;
    const auto precision = std::clamp<std::size_t>(digits, 1, 38);
    return decimalType(static_cast<std::uint8_t>(precision),
                       static_cast<std::uint8_t>(std::min(scale, precision)));
}

} // namespace

Value literalValue(LiteralKind kind, std::string_view text, bool negated) {
    switch (kind) {
    case LiteralKind::String:
    case LiteralKind::NationalString:
        return std::string(text);
    case LiteralKind::Integer:
        return parseInteger(text, negated);
    case LiteralKind::Binary:
        return parseBinary(text);
    case LiteralKind::Money:
        return parseDouble(afterCurrencySign(text)) * (negated ? -1 : 1);
    default:
        return parseDouble(text) * (negated ? -1 : 1);
    }
}

Type literalType(LiteralKind kind, std::string_view text) {
    switch (kind) {
    case LiteralKind::String:
        return varcharType(openLength);
    case LiteralKind::NationalString:
        return nvarcharType(openLength);
    case LiteralKind::Integer:
        return text.size() < 10 || (text.size() == 10 && text <= "2147483647")
                   ? intType
                   : decimalType(static_cast<std::uint8_t>(std::min<std::size_t>(text.size(), 38)),
                                 0);
    case LiteralKind::Decimal:
        return decimalLiteralType(text);
    case LiteralKind::Money:
        return moneyType;
    case LiteralKind::Binary:
        return varbinaryType(openLength);
    default:
        return floatType;
    }
}

std::string withoutNumbers(std::string_view text, const std::vector<Bind>& binds,
                           std::vector<Bind>& ordered) {
    std::string plain;
    plain.reserve(text.size());
    ordered.reserve(binds.size());
    char quote = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        plain.push_back(c);
        if (quote != 0) {
            quote = c == quote ? '\0' : quote;
        } else if (c == '\'' || c == '"') {
            quote = c;
        } else if (c == '?') {
            std::size_t number = 0;
            const auto* end = std::from_chars(&text[i] + 1, text.data() + text.size(), number).ptr;
            ordered.push_back(binds.at(number - 1));
            i = static_cast<std::size_t>(end - text.data()) - 1;
        }
    }
    return plain;
}

Type declaredType(const DataType& type, int line, bool inCast) {
    const auto length = type.max          ? std::optional(maxLength)
                        : type.first >= 0 ? std::optional(type.first)
                                          : std::nullopt;
    const auto scale = type.second >= 0 ? std::optional(type.second) : std::nullopt;
    const auto found = typeByName(type.name, length, scale, inCast);
    if (!found) {
        raise(2715, {"1", type.name}, line);
    }
    return *found;
}

} // namespace velcro::sql::tsql

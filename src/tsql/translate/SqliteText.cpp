#include "tsql/translate/SqliteText.h"

#include <charconv>

namespace velcro::sql::tsql {

namespace {

std::string numberText(double value) {
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    std::string text(buffer, end);
    // Without a point or an exponent SQLite would read an integer.
    return text.find_first_of(".en") == std::string::npos ? text + ".0" : text;
}

std::string hexText(const std::string& bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "X'";
    for (const char c : bytes) {
        text.push_back(digits[static_cast<unsigned char>(c) >> 4]);
        text.push_back(digits[static_cast<unsigned char>(c) & 15]);
    }
    return text + "'";
}

} // namespace

std::string quoteText(std::string_view text) {
    std::string quoted = "'";
    for (const char c : text) {
        quoted.append(c == '\'' ? 2 : 1, c);
    }
    return quoted + "'";
}

std::string sqliteLiteral(const Value& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*integer);
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return numberText(*number);
    }
    if (const auto* text = std::get_if<std::string>(&value)) {
        return quoteText(*text);
    }
    if (const auto* blob = std::get_if<Blob>(&value)) {
        return hexText(blob->bytes);
    }
    return "NULL";
}

std::string castText(std::string_view text, const Type& from, const Type& to, int style,
                     bool isTry) {
    std::string call = isTry ? "ts_try_cast(" : "ts_cast(";
    call += text;
    call += "," + std::to_string(from.code()) + "," + std::to_string(to.code()) + ",";
    return call + std::to_string(style) + ")";
}

std::string joinTexts(std::span<const std::string> texts, std::string_view separator) {
    std::string joined;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        joined += i == 0 ? std::string_view() : separator;
        joined += texts[i];
    }
    return joined;
}

std::string upperName(std::string_view name) {
    std::string upper(name);
    for (char& c : upper) {
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }
    return upper;
}

} // namespace velcro::sql::tsql

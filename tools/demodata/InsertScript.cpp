#include "InsertScript.h"

#include <algorithm>
#include <stdexcept>

namespace velcro::demo {

namespace {

// A server takes at most 1,000 rows in one INSERT and plans short ones faster; all full statements
// of a table have one shape, which the embedded end prepares once.
constexpr int rowsInStatement = 25;
constexpr int rowsInBatch = 500;

std::string quoted(std::string_view text) {
    std::string result = "'";
    for (const char c : text) {
        result += c;
        if (c == '\'') {
            result += c;
        }
    }
    return result + "'";
}

} // namespace

Literal::Literal(std::string_view text)
    : text_(quoted(text)) {
    if (std::any_of(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; })) {
        text_.insert(0, "N");
    }
}

Literal::Literal(Money amount) {
    const auto whole = std::to_string(amount.cents / 100);
    const auto cents = std::to_string(amount.cents % 100);
    text_ = whole + "." + (cents.size() < 2 ? "0" : "") + cents;
}

Literal Literal::binary(std::string_view bytes) {
    static constexpr std::string_view digits = "0123456789ABCDEF";
    Literal result(0);
    result.text_ = "0x";
    for (const unsigned char byte : bytes) {
        result.text_ += digits[byte >> 4];
        result.text_ += digits[byte & 15];
    }
    return result;
}

InsertScript::InsertScript(std::string_view table, std::initializer_list<std::string_view> columns)
    : columnCount_(columns.size()) {
    head_ = "INSERT INTO " + std::string(table) + " (";
    for (const auto column : columns) {
        head_ += (column == *columns.begin() ? "[" : ", [") + std::string(column) + "]";
    }
    head_ += ") VALUES\n";
}

void InsertScript::add(std::initializer_list<Literal> values) {
    if (values.size() != columnCount_) {
        throw std::logic_error("a row of other length than its columns: " + head_);
    }
    if (rowCount_ % rowsInStatement == 0) {
        body_ += rowCount_ == 0 ? "" : rowCount_ % rowsInBatch == 0 ? ";\nGO\n" : ";\n";
        body_ += head_;
    } else {
        body_ += ",\n";
    }
    const char* gap = "    (";
    for (const auto& value : values) {
        body_ += gap + value.text();
        gap = ", ";
    }
    body_ += ")";
    ++rowCount_;
}

void InsertScript::writeTo(std::ostream& out) const {
    if (rowCount_ > 0) {
        out << body_ << ";\nGO\n";
    }
}

} // namespace velcro::demo

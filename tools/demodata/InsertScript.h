// The rows of one table, written as INSERT statements of many rows each.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>

namespace velcro::demo {

/// An amount of money, in cents, so that no sum depends on how a machine rounds.
struct Money
{
    std::int64_t cents = 0;
};

/// A value as it stands in a statement.
class Literal
{
public:
    /// N'...' only where a character needs it.
    Literal(std::string_view text);
    Literal(const std::string& text)
        : Literal(std::string_view(text)) {}
    Literal(const char* text)
        : Literal(std::string_view(text)) {}
    Literal(std::int64_t number)
        : text_(std::to_string(number)) {}
    Literal(int number)
        : text_(std::to_string(number)) {}
    Literal(Money amount);
    /// 0x...
    static Literal binary(std::string_view bytes);

    const std::string& text() const { return text_; }

private:
    std::string text_;
};

class InsertScript
{
public:
    InsertScript(std::string_view table, std::initializer_list<std::string_view> columns);

    /// One value a column, in the order of the columns.
    void add(std::initializer_list<Literal> values);
    int rowCount() const { return rowCount_; }

    void writeTo(std::ostream& out) const;

private:
    std::string head_;
    std::size_t columnCount_;
    std::string body_;
    int rowCount_ = 0;
};

} // namespace velcro::demo

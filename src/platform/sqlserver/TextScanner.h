// Tells code from quoted text and comments in T-SQL, one character after another, for those who
// change or split a text without understanding it.
#pragma once

namespace velcro::sql {

/// Feed it a text's characters in order; it may be copied to look ahead.
class TextScanner
{
public:
    enum class Place { Code, Literal, Name, LineComment, BlockComment };

    /// What the character belongs to; its quotes and marks belong to a literal, name or comment.
    /// following is the character after it, 0 where the text ends.
    Place next(char c, char following);

    /// Where the character after the last one stands, unless it begins something itself.
    Place place() const { return place_; }

private:
    Place open(char c, char following);

    Place place_ = Place::Code;
    char close_ = 0;    // of a literal or name
    bool pair_ = false; // the next character is the second of a two-character mark
    int depth_ = 0;     // block comments nest
};

} // namespace velcro::sql

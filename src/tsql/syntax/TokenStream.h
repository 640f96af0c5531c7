// A text's tokens with a place in them: looking ahead, accepting, expecting and refusing.
#pragma once

#include "tsql/syntax/Keywords.h"
#include "tsql/syntax/Lexer.h"

#include <vector>

namespace velcro::sql::tsql {

/// Names ending in At look ahead tokens further and take nothing; accept takes what it finds and
/// tells whether it did; expect refuses the text when it does not find it.
class TokenStream
{
public:
    struct Item
    {
        Token token;
        Keyword keyword = Keyword::None;
        std::uint32_t literal = 0; // index among the literals, of literals
    };

    TokenStream(std::string_view text, std::uint32_t firstLine);

    const Item& current() const { return items_[at_]; }
    const Token& token() const { return items_[at_].token; }
    const Token& tokenAt(std::size_t ahead) const { return item(ahead).token; }
    bool atEnd() const { return token().kind == TokenKind::End; }
    std::uint32_t offset() const { return token().at.offset; }
    std::uint32_t line() const { return token().at.line; }
    /// Where the token that was taken last ends.
    std::uint32_t endOfLast() const;

    bool is(Keyword keyword) const { return current().keyword == keyword; }
    bool is(Op op) const { return token().op == op; }
    bool is(TokenKind kind) const { return token().kind == kind; }
    bool isWordNow(std::string_view word) const { return isWord(token(), word); }
    bool isAt(std::size_t ahead, Keyword keyword) const { return item(ahead).keyword == keyword; }
    bool isAt(std::size_t ahead, Op op) const { return item(ahead).token.op == op; }
    bool isAt(std::size_t ahead, TokenKind kind) const { return item(ahead).token.kind == kind; }
    bool isWordAt(std::size_t ahead, std::string_view word) const {
        return isWord(item(ahead).token, word);
    }
    /// How far ahead the token stands that follows the bracket which closes the one at ahead.
    std::size_t behindBracket(std::size_t ahead) const;
    /// A word that is not reserved, or a quoted or bracketed name.
    bool isName() const;

    const Item& take();
    bool accept(Keyword keyword);
    bool accept(Op op);
    bool acceptWord(std::string_view word);
    void expect(Keyword keyword);
    void expect(Op op);
    void expectWord(std::string_view word);
    std::string expectName();
    /// A variable's name with its @.
    std::string expectVariable();

    /// 102 or 156 near the current token; at the end of the text, near the last one.
    [[noreturn]] void refuseHere() const;
    /// The same near the token that begins at offset.
    [[noreturn]] void refuseAt(std::uint32_t offset) const;
    [[noreturn]] void refuseWith(int number,
                                 std::initializer_list<std::string_view> arguments) const;
    /// Something that the server knows and the embedded end does not.
    [[noreturn]] void refuseUnsupported(std::string_view construct) const;
    /// How messages call the current token.
    std::string nearText() const;

private:
    const Item& item(std::size_t ahead) const {
        return items_[at_ + ahead < items_.size() ? at_ + ahead : items_.size() - 1];
    }
    [[noreturn]] void refuseItem(std::size_t index) const;

    std::vector<Item> items_; // the last is End
    std::size_t at_ = 0;
};

} // namespace velcro::sql::tsql

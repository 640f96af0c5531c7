// Cuts T-SQL text into tokens: one switch over character classes, no copies, no look at the grammar.
#pragma once

#include "tsql/syntax/Ast.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace velcro::sql::tsql {

enum class TokenKind : std::uint8_t {
    End,
    Identifier,       // word, also every keyword, and #temporary
    QuotedIdentifier, // [bracketed] or "quoted"
    String,           // '...'
    NationalString,   // N'...'
    Integer,
    Decimal,        // 1.5, and integers beyond bigint
    Float,          // 1e3
    Money,          // $12.50
    Binary,         // 0x1F
    Variable,       // @x
    GlobalVariable, // @@SPID
    Parameter,      // :Name of the seam
    Operator,       // one of the values of Op
};

/// Operators and punctuation; None for tokens of other kinds.
enum class Op : std::uint8_t {
    None,
    Plus,
    Minus,
    Star,
    Slash,
    Percent,
    Ampersand,
    Pipe,
    Caret,
    Tilde,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    PlusEqual,
    MinusEqual,
    StarEqual,
    SlashEqual,
    PercentEqual,
    AmpersandEqual,
    PipeEqual,
    CaretEqual,
    Open,
    Close,
    Comma,
    Dot,
    Semicolon,
    Colon,
    DoubleColon
};

/// A place in the text: byte offset from 0, line and column (in bytes) from 1.
struct Position
{
    std::uint32_t offset = 0;
    std::uint32_t line = 1;
    std::uint32_t column = 1;
};

struct Token
{
    TokenKind kind = TokenKind::End;
    Op op = Op::None;
    bool doubled = false; // a quoted token that holds doubled quotes, which count once
    Position at;
    std::string_view text; // as written, with quotes, prefix and colon; a view into the text
};

constexpr bool isLiteral(TokenKind kind) {
    return kind >= TokenKind::String && kind <= TokenKind::Binary;
}
/// Only of tokens that are literals.
constexpr LiteralKind literalKind(TokenKind kind) {
    return static_cast<LiteralKind>(static_cast<int>(kind) - static_cast<int>(TokenKind::String));
}
/// What a token stands for: strings and quoted names without their quotes, undoubled; a parameter
/// without its colon, money without its sign; everything else as written.
std::string tokenValue(const Token& token);

/// Throws a Fault with the server's number, wording and line: 102 near something that is no T-SQL,
/// 105 for a quote and 113 for a comment that is not closed. The text must outlive the lexer and its
/// tokens.
class Lexer
{
public:
    explicit Lexer(std::string_view text, std::uint32_t firstLine = 1);

    /// White space and comments are passed over; End is given again and again at the end.
    Token next();

private:
    void skipBlanks();
    void passLine();
    void skipBlockComment();
    Token make(TokenKind kind, std::uint32_t length, Op op = Op::None);
    Token word();
    Token number();
    Token quoted(TokenKind kind, char close, std::uint32_t prefix);
    Token operatorToken();
    Position here() const;
    char peek(std::uint32_t ahead = 0) const;

    std::string_view text_;
    std::uint32_t at_ = 0;
    std::uint32_t line_ = 1;
    std::uint32_t lineStart_ = 0;
};

/// Refuses the text at a place: the server's message of that number, with its arguments, as a Fault
/// that knows line and column.
[[noreturn]] void refuse(const Position& at, int number,
                         std::initializer_list<std::string_view> arguments = {});

} // namespace velcro::sql::tsql

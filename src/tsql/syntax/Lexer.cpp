#include "tsql/syntax/Lexer.h"

#include "tsql/values/Errors.h"

#include <array>

namespace velcro::sql::tsql {

namespace {

enum class Class : std::uint8_t { Wrong, Blank, Line, Letter, Digit, Quote, Bracket, Punctuation };

constexpr std::array<Class, 256> classes = [] {
    std::array<Class, 256> table{};
    const auto set = [&table](std::string_view characters, Class value) {
        for (const char c : characters) {
            table[static_cast<unsigned char>(c)] = value;
        }
    };
    set(" \t\v\f", Class::Blank);
    set("\r\n", Class::Line);
    set("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ_#@$", Class::Letter);
    set("0123456789", Class::Digit);
    set("'\"", Class::Quote);
    set("[", Class::Bracket);
    set("+-*/%&|^~=<>!(),.;:", Class::Punctuation);
    for (int c = 0x80; c < 0x100; ++c) {
        table[static_cast<std::size_t>(c)] = Class::Letter; // bytes of a character beyond ASCII
    }
    return table;
}();

constexpr Class classOf(char c) {
    return classes[static_cast<unsigned char>(c)];
}
constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool isHexDigit(char c) {
    return isDigit(c) || ((c | 0x20) >= 'a' && (c | 0x20) <= 'f');
}
constexpr bool isNameStart(char c) {
    return classOf(c) == Class::Letter;
}
constexpr bool isNamePart(char c) {
    return isNameStart(c) || isDigit(c);
}
/// Digits that may not fit a bigint are held as decimal.
constexpr bool exceedsBigint(std::string_view digits) {
    while (digits.size() > 1 && digits.front() == '0') {
        digits.remove_prefix(1);
    }
    constexpr std::string_view largest = "9223372036854775807";
    return digits.size() > largest.size() || (digits.size() == largest.size() && digits > largest);
}

std::string undoubled(std::string_view inner, char mark) {
    std::string value;
    value.reserve(inner.size());
    for (std::size_t i = 0; i < inner.size(); ++i) {
        value.push_back(inner[i]);
        if (inner[i] == mark) {
            ++i;
        }
    }
    return value;
}

/// The longest operator that text begins with.
std::pair<Op, std::uint32_t> operatorAt(std::string_view text) {
    const char second = text.size() > 1 ? text[1] : '\0';
    const auto orAssign = [second](Op plain, Op assign) {
        return second == '=' ? std::pair(assign, 2u) : std::pair(plain, 1u);
    };
    switch (text[0]) {
    case '+':
        return orAssign(Op::Plus, Op::PlusEqual);
    case '-':
        return orAssign(Op::Minus, Op::MinusEqual);
    case '*':
        return orAssign(Op::Star, Op::StarEqual);
    case '/':
        return orAssign(Op::Slash, Op::SlashEqual);
    case '%':
        return orAssign(Op::Percent, Op::PercentEqual);
    case '&':
        return orAssign(Op::Ampersand, Op::AmpersandEqual);
    case '|':
        return orAssign(Op::Pipe, Op::PipeEqual);
    case '^':
        return orAssign(Op::Caret, Op::CaretEqual);
    case '~':
        return {Op::Tilde, 1};
    case '=':
        return {Op::Equal, 1};
    case '<':
        return second == '>' ? std::pair(Op::NotEqual, 2u) : orAssign(Op::Less, Op::LessEqual);
    case '>':
        return orAssign(Op::Greater, Op::GreaterEqual);
    case '!':
        switch (second) {
        case '=':
            return {Op::NotEqual, 2};
        case '<':
            return {Op::GreaterEqual, 2};
        case '>':
            return {Op::LessEqual, 2};
        default:
            return {Op::None, 1};
        }
    case '(':
        return {Op::Open, 1};
    case ')':
        return {Op::Close, 1};
    case ',':
        return {Op::Comma, 1};
    case '.':
        return {Op::Dot, 1};
    case ';':
        return {Op::Semicolon, 1};
    case ':':
        return second == ':' ? std::pair(Op::DoubleColon, 2u) : std::pair(Op::Colon, 1u);
    default:
        return {Op::None, 1};
    }
}

} // namespace

std::string tokenValue(const Token& token) {
    switch (token.kind) {
    case TokenKind::String:
    case TokenKind::NationalString:
    case TokenKind::QuotedIdentifier: {
        const std::size_t prefix = token.kind == TokenKind::NationalString ? 2 : 1;
        const auto inner = token.text.substr(prefix, token.text.size() - prefix - 1);
        return token.doubled ? undoubled(inner, token.text.back()) : std::string(inner);
    }
    case TokenKind::Parameter:
    case TokenKind::Money:
        return std::string(token.text.substr(1));
    default:
        return std::string(token.text);
    }
}

void refuse(const Position& at, int number, std::initializer_list<std::string_view> arguments) {
    SqlMessage message = serverMessage(number, arguments, static_cast<int>(at.line));
    message.column = static_cast<int>(at.column);
    throw Fault(std::move(message));
}

Lexer::Lexer(std::string_view text, std::uint32_t firstLine)
    : text_(text)
    , line_(firstLine) {}

char Lexer::peek(std::uint32_t ahead) const {
    return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0';
}

Position Lexer::here() const {
    return {at_, line_, at_ - lineStart_ + 1};
}

Token Lexer::next() {
    skipBlanks();
    if (at_ >= text_.size()) {
        return make(TokenKind::End, 0);
    }
    const char c = text_[at_];
    switch (classOf(c)) {
    case Class::Letter:
        if ((c == 'N' || c == 'n') && peek(1) == '\'') {
            return quoted(TokenKind::NationalString, '\'', 2);
        }
        return c == '$' && (isDigit(peek(1)) || peek(1) == '.') ? number() : word();
    case Class::Digit:
        return number();
    case Class::Quote:
        return quoted(c == '"' ? TokenKind::QuotedIdentifier : TokenKind::String, c, 1);
    case Class::Bracket:
        return quoted(TokenKind::QuotedIdentifier, ']', 1);
    case Class::Punctuation:
        if (c == '.' && isDigit(peek(1))) {
            return number();
        }
        if (c == ':' && isNameStart(peek(1))) {
            return word();
        }
        return operatorToken();
    default:
        refuse(here(), 102, {text_.substr(at_, 1)});
    }
}

void Lexer::skipBlanks() {
    while (at_ < text_.size()) {
        const char c = text_[at_];
        if (classOf(c) == Class::Blank) {
            ++at_;
        } else if (classOf(c) == Class::Line) {
            passLine();
        } else if (c == '-' && peek(1) == '-') {
            while (at_ < text_.size() && classOf(text_[at_]) != Class::Line) {
                ++at_;
            }
        } else if (c == '/' && peek(1) == '*') {
            skipBlockComment();
        } else {
            return;
        }
    }
}

/// \r\n, \n and \r each end one line.
void Lexer::passLine() {
    if (text_[at_] == '\r' && peek(1) == '\n') {
        ++at_;
    }
    ++at_;
    ++line_;
    lineStart_ = at_;
}

void Lexer::skipBlockComment() {
    const Position start = here();
    std::uint32_t depth = 0;
    do {
        if (at_ >= text_.size()) {
            refuse(start, 113);
        }
        if (peek() == '/' && peek(1) == '*') {
            ++depth;
            at_ += 2;
        } else if (peek() == '*' && peek(1) == '/') {
            --depth;
            at_ += 2;
        } else if (classOf(text_[at_]) == Class::Line) {
            passLine();
        } else {
            ++at_;
        }
    } while (depth > 0);
}

Token Lexer::make(TokenKind kind, std::uint32_t length, Op op) {
    const Token token{kind, op, false, here(), text_.substr(at_, length)};
    at_ += length;
    return token;
}

Token Lexer::word() {
    std::uint32_t length = 1;
    while (isNamePart(peek(length))) {
        ++length;
    }
    const bool at = peek() == '@';
    if (at && length == 1) {
        refuse(here(), 102, {"@"});
    }
    return make(peek() == ':'          ? TokenKind::Parameter
                : at && peek(1) == '@' ? TokenKind::GlobalVariable
                : at                   ? TokenKind::Variable
                                       : TokenKind::Identifier,
                length);
}

Token Lexer::number() {
    std::uint32_t length = 0;
    const auto digits = [&] {
        while (isDigit(peek(length))) {
            ++length;
        }
    };
    if (peek() == '0' && (peek(1) | 0x20) == 'x') {
        length = 2;
        while (isHexDigit(peek(length))) {
            ++length;
        }
        return make(TokenKind::Binary, length);
    }
    const bool money = peek() == '$';
    length = money ? 1 : 0;
    digits();
    const bool point = peek(length) == '.';
    if (point) {
        ++length;
        digits();
    }
    if (money) {
        return make(TokenKind::Money, length);
    }
    const bool sign = peek(length + 1) == '+' || peek(length + 1) == '-';
    if ((peek(length) | 0x20) == 'e' && isDigit(peek(length + (sign ? 2 : 1)))) {
        length += sign ? 2 : 1;
        digits();
        return make(TokenKind::Float, length);
    }
    const bool decimal = point || exceedsBigint(text_.substr(at_, length));
    return make(decimal ? TokenKind::Decimal : TokenKind::Integer, length);
}

Token Lexer::quoted(TokenKind kind, char close, std::uint32_t prefix) {
    const Position start = here();
    bool doubled = false;
    at_ += prefix;
    while (true) {
        if (at_ >= text_.size()) {
            refuse(start, 105, {text_.substr(start.offset + prefix)});
        }
        if (text_[at_] == close) {
            if (peek(1) != close) {
                break;
            }
            doubled = true;
            at_ += 2;
        } else if (classOf(text_[at_]) == Class::Line) {
            passLine();
        } else {
            ++at_;
        }
    }
    ++at_;
    return {kind, Op::None, doubled, start, text_.substr(start.offset, at_ - start.offset)};
}

Token Lexer::operatorToken() {
    const auto [op, length] = operatorAt(text_.substr(at_, 2));
    if (op == Op::None) {
        refuse(here(), 102, {text_.substr(at_, 1)});
    }
    return make(TokenKind::Operator, length, op);
}

} // namespace velcro::sql::tsql

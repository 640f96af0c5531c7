#include "tsql/syntax/Shape.h"

#include "tsql/syntax/Keywords.h"

#include <utility>

namespace velcro::sql::tsql {

namespace {

/// One place holder a kind of literal, in the order of LiteralKind. '?' cannot stand in T-SQL text,
/// so a key never equals the key of a text that was written with place holders.
constexpr std::string_view placeHolders[] = {"?s", "?n", "?i", "?d", "?f", "?m", "?b"};

/// Statements that stand for themselves: no other statement of the batch changes what they mean.
bool beginsRowsStatement(const Token& token) {
    switch (keywordOf(token)) {
    case Keyword::Select:
    case Keyword::Insert:
    case Keyword::Update:
    case Keyword::Delete:
    case Keyword::Merge:
    case Keyword::With:
    case Keyword::Exec:
    case Keyword::Execute:
        return true;
    default:
        return false;
    }
}

/// Words that tie what follows them to what stands before, even behind a semicolon.
bool bindsWhatFollows(const Token& token) {
    if (token.kind != TokenKind::Identifier || token.text.size() > 7) {
        return false;
    }
    switch (token.text.front() | 0x20) {
    case 'b':
        return isWord(token, "BEGIN");
    case 'd':
        return isWord(token, "DECLARE");
    case 'i':
        return isWord(token, "IF");
    case 'w':
        return isWord(token, "WHILE");
    default:
        return false;
    }
}

} // namespace

std::string_view LiftedLiteral::value(std::string& scratch) const {
    switch (kind) {
    case LiteralKind::String:
    case LiteralKind::NationalString: {
        const std::size_t prefix = kind == LiteralKind::NationalString ? 2 : 1;
        if (!doubled) {
            return raw.substr(prefix, raw.size() - prefix - 1);
        }
        Token token;
        token.kind = kind == LiteralKind::String ? TokenKind::String : TokenKind::NationalString;
        token.doubled = true;
        token.text = raw;
        scratch = tokenValue(token);
        return scratch;
    }
    case LiteralKind::Money:
        return raw.substr(1);
    default:
        return raw;
    }
}

ShapeReader::ShapeReader(std::string_view batch)
    : batch_(batch)
    , lexer_(batch)
    , ahead_(lexer_.next()) {}

bool ShapeReader::next(Shape& shape) {
    shape.key.clear();
    shape.literals.clear();
    while (ahead_.op == Op::Semicolon) {
        ahead_ = lexer_.next();
    }
    const Position start = ahead_.at;
    if (ahead_.kind == TokenKind::End) {
        return false;
    }
    bool endsAtSemicolon = beginsRowsStatement(ahead_);
    std::uint32_t end = start.offset;
    for (; ahead_.kind != TokenKind::End; ahead_ = lexer_.next()) {
        if (endsAtSemicolon && ahead_.op == Op::Semicolon) {
            shape.key.push_back(';');
            end = ahead_.at.offset + 1;
            break;
        }
        endsAtSemicolon = endsAtSemicolon && !bindsWhatFollows(ahead_);
        if (isLiteral(ahead_.kind)) {
            const LiteralKind kind = literalKind(ahead_.kind);
            shape.key += placeHolders[static_cast<std::size_t>(kind)];
            shape.literals.push_back({kind, ahead_.doubled, ahead_.text});
        } else {
            shape.key += ahead_.text;
        }
        shape.key.push_back(' ');
        end = ahead_.at.offset + static_cast<std::uint32_t>(ahead_.text.size());
    }
    shape.text = batch_.substr(start.offset, end - start.offset);
    shape.firstLine = start.line;
    shape.beginsBatch = std::exchange(first_, false);
    return true;
}

} // namespace velcro::sql::tsql

#include "tsql/syntax/TextPattern.h"

namespace velcro::sql::tsql {

namespace {

constexpr std::size_t longestText = 64 * 1024;
constexpr std::size_t longestHead = 64;

/// Behind these the lexer begins a new token whatever literal follows.
constexpr std::string_view partsTokens = " \t\r\n(,=<>+-*%";

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The literal's length, 0 when it is not closed.
std::size_t quotedLength(std::string_view text, std::size_t prefix, bool& doubled) {
    for (std::size_t at = prefix; at < text.size(); ++at) {
        if (text[at] != '\'') {
            continue;
        }
        if (at + 1 == text.size() || text[at + 1] != '\'') {
            return at + 1;
        }
        doubled = true;
        ++at;
    }
    return 0;
}

/// The literal of that kind that text begins with; raw is empty when there is none.
LiftedLiteral literalAt(std::string_view text, LiteralKind kind) {
    LiftedLiteral literal{kind, false, {}};
    const char first = text.empty() ? '\0' : text.front();
    if (kind == LiteralKind::String && first == '\'') {
        literal.raw = text.substr(0, quotedLength(text, 1, literal.doubled));
    } else if (kind == LiteralKind::NationalString) {
        if ((first == 'N' || first == 'n') && text.size() > 1 && text[1] == '\'') {
            literal.raw = text.substr(0, quotedLength(text, 2, literal.doubled));
        }
    } else if (isDigit(first) || first == '.' || first == '$') {
        const Token token = Lexer(text).next();
        if (isLiteral(token.kind) && literalKind(token.kind) == kind) {
            literal.raw = token.text;
        }
    }
    return literal;
}

} // namespace

std::optional<TextPattern> TextPattern::of(std::string_view batch, std::string_view shape,
                                           std::span<const LiftedLiteral> literals,
                                           std::span<const std::uint32_t> structural) {
    if (batch.size() > longestText) {
        return std::nullopt;
    }
    TextPattern pattern;
    pattern.text_ = batch;
    pattern.before_ = static_cast<std::size_t>(shape.data() - batch.data());
    pattern.behind_ = batch.size() - pattern.before_ - shape.size();
    pattern.gaps_.reserve(literals.size());
    for (const LiftedLiteral& literal : literals) {
        const auto offset = static_cast<std::uint32_t>(literal.raw.data() - batch.data());
        if (offset == 0 || partsTokens.find(batch[offset - 1]) == std::string_view::npos) {
            return std::nullopt;
        }
        const auto length = static_cast<std::uint32_t>(literal.raw.size());
        pattern.gaps_.push_back({offset, offset + length, literal.kind});
    }
    for (const std::uint32_t index : structural) {
        pattern.gaps_[index].fixed = true;
    }
    return pattern;
}

bool TextPattern::matches(std::string_view text, std::vector<LiftedLiteral>& literals) const {
    literals.clear();
    const std::string_view known = text_;
    std::uint32_t from = 0;
    for (const Gap& gap : gaps_) {
        const std::string_view between = known.substr(from, gap.offset - from);
        if (!text.starts_with(between)) {
            return false;
        }
        text.remove_prefix(between.size());
        const LiftedLiteral& literal = literals.emplace_back(literalAt(text, gap.kind));
        const bool differs =
            gap.fixed && literal.raw != known.substr(gap.offset, gap.end - gap.offset);
        if (literal.raw.empty() || differs) {
            return false;
        }
        text.remove_prefix(literal.raw.size());
        from = gap.end;
    }
    return text == known.substr(from);
}

std::string_view TextPattern::shapeText(std::string_view text) const {
    return text.substr(before_, text.size() - before_ - behind_);
}

std::string_view TextPattern::headOf(std::string_view text) {
    text = text.substr(0, longestHead);
    const auto end = std::find_if(text.begin(), text.end(),
                                  [](char c) { return c == '\'' || c == '$' || isDigit(c); });
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

} // namespace velcro::sql::tsql

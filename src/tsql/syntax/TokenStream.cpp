#include "tsql/syntax/TokenStream.h"

#include "tsql/values/Errors.h"

#include <algorithm>

namespace velcro::sql::tsql {

TokenStream::TokenStream(std::string_view text, std::uint32_t firstLine) {
    items_.reserve(text.size() / 4 + 2);
    Lexer lexer(text, firstLine);
    std::uint32_t literals = 0;
    do {
        Item item{lexer.next(), Keyword::None, 0};
        item.keyword = keywordOf(item.token);
        if (isLiteral(item.token.kind)) {
            item.literal = literals++;
        }
        items_.push_back(item);
    } while (items_.back().token.kind != TokenKind::End);
}

std::uint32_t TokenStream::endOfLast() const {
    if (at_ == 0) {
        return 0;
    }
    const Token& last = items_[at_ - 1].token;
    return last.at.offset + static_cast<std::uint32_t>(last.text.size());
}

std::size_t TokenStream::behindBracket(std::size_t ahead) const {
    int open = 0;
    do {
        open += isAt(ahead, Op::Open) ? 1 : isAt(ahead, Op::Close) ? -1 : 0;
        ++ahead;
    } while (open > 0 && !isAt(ahead, TokenKind::End));
    return ahead;
}

bool TokenStream::isName() const {
    return is(TokenKind::QuotedIdentifier) || (is(TokenKind::Identifier) && is(Keyword::None));
}

const TokenStream::Item& TokenStream::take() {
    const Item& taken = current();
    if (!atEnd()) {
        ++at_;
    }
    return taken;
}

bool TokenStream::accept(Keyword keyword) {
    const bool found = is(keyword);
    at_ += found ? 1 : 0;
    return found;
}

bool TokenStream::accept(Op op) {
    const bool found = is(op);
    at_ += found ? 1 : 0;
    return found;
}

bool TokenStream::acceptWord(std::string_view word) {
    const bool found = isWordNow(word);
    at_ += found ? 1 : 0;
    return found;
}

void TokenStream::expect(Keyword keyword) {
    if (!accept(keyword)) {
        refuseHere();
    }
}

void TokenStream::expect(Op op) {
    if (!accept(op)) {
        refuseHere();
    }
}

void TokenStream::expectWord(std::string_view word) {
    if (!acceptWord(word)) {
        refuseHere();
    }
}

std::string TokenStream::expectName() {
    if (!isName()) {
        refuseHere();
    }
    std::string name = tokenValue(token());
    if (name.empty()) {
        refuseWith(1038, {});
    }
    take();
    return name;
}

std::string TokenStream::expectVariable() {
    if (!is(TokenKind::Variable)) {
        refuseHere();
    }
    return tokenValue(take().token);
}

void TokenStream::refuseHere() const {
    refuseItem(at_);
}

void TokenStream::refuseAt(std::uint32_t offset) const {
    const auto found = std::lower_bound(
        items_.begin(), items_.end() - 1, offset,
        [](const Item& item, std::uint32_t wanted) { return item.token.at.offset < wanted; });
    refuseItem(static_cast<std::size_t>(found - items_.begin()));
}

void TokenStream::refuseItem(std::size_t index) const {
    const bool end = items_[index].token.kind == TokenKind::End;
    const Item& near = items_[end && index > 0 ? index - 1 : index];
    refuse(near.token.at, near.keyword != Keyword::None && !end ? 156 : 102,
           {tokenValue(near.token)});
}

void TokenStream::refuseWith(int number, std::initializer_list<std::string_view> arguments) const {
    refuse(token().at, number, arguments);
}

void TokenStream::refuseUnsupported(std::string_view construct) const {
    raiseUnsupported(construct, static_cast<int>(token().at.line),
                     static_cast<int>(token().at.column));
}

std::string TokenStream::nearText() const {
    return tokenValue(atEnd() && at_ > 0 ? items_[at_ - 1].token : token());
}

} // namespace velcro::sql::tsql

// Names, types and the integers that shape the tree.
#include "tsql/syntax/Descent.h"

#include <algorithm>
#include <charconv>

namespace velcro::sql::tsql {

namespace {

template <class Integer>
std::optional<Integer> integerOf(const Token& token) {
    Integer number{};
    const char* const end = token.text.data() + token.text.size();
    const auto [stop, error] = std::from_chars(token.text.data(), end, number);
    return token.kind == TokenKind::Integer && error == std::errc() && stop == end
               ? std::optional(number)
               : std::nullopt;
}

std::string lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text;
}

} // namespace

Descent::Level::Level(Descent& descent)
    : depth_(descent.depth_) {
    if (depth_ >= maximumNesting) {
        descent.refuseDepth();
    }
    ++depth_;
}

void Descent::refuseDepth() const {
    in_.refuseWith(191, {});
}

std::uint16_t Descent::heightAbove(int below) {
    if (below >= maximumHeight) {
        refuseDepth();
    }
    const auto height = static_cast<std::uint16_t>(below + 1);
    tallest_ = std::max(tallest_, height);
    return height;
}

// names := '(' name {',' name} ')'
std::vector<std::string> Descent::bracketedNames() {
    std::vector<std::string> names;
    bracketedList([&] { names.push_back(in_.expectName()); });
    return names;
}

// parts := name {'.' {'.'} name}
std::vector<std::string> Descent::nameParts() {
    std::vector<std::string> parts{in_.expectName()};
    while (in_.is(Op::Dot) && !in_.isAt(1, Op::Star)) {
        in_.take();
        parts.push_back(in_.is(Op::Dot) ? std::string() : in_.expectName());
    }
    return parts;
}

// object := [[[server '.'] database '.'] schema '.'] name | @variable
ObjectName Descent::objectName() {
    const std::uint32_t offset = in_.offset();
    if (in_.is(TokenKind::Variable)) {
        return {{}, {}, {}, in_.expectVariable(), offset};
    }
    return objectNameOf(nameParts(), offset);
}

ObjectName Descent::objectNameOf(std::vector<std::string> parts, std::uint32_t offset) {
    ObjectName name;
    name.offset = offset;
    std::string* const places[] = {&name.name, &name.schema, &name.database, &name.server};
    if (parts.size() > std::size(places)) {
        in_.refuseAt(offset);
    }
    for (std::size_t i = 0; i < parts.size(); ++i) {
        *places[i] = std::move(parts[parts.size() - 1 - i]);
    }
    return name;
}

// type := [schema '.'] name ['(' (max | integer [',' integer]) ')']
//       | DOUBLE PRECISION | (CHAR | CHARACTER | ...) VARYING ...
DataType Descent::dataType() {
    DataType type;
    type.offset = in_.offset();
    if (in_.accept(Keyword::Double)) {
        in_.expect(Keyword::Precision);
        type.name = "float";
        return type;
    }
    if (in_.is(Keyword::National)) {
        in_.refuseUnsupported("NATIONAL");
    }
    std::vector<std::string> parts = nameParts();
    if (parts.size() > 2) {
        in_.refuseAt(type.offset);
    }
    type.name = lower(std::move(parts.back()));
    if (parts.size() == 2) {
        type.schema = std::move(parts.front());
    }
    if (in_.is(Op::Open)) {
        typeArguments(type);
    }
    return type;
}

void Descent::typeArguments(DataType& type) {
    in_.expect(Op::Open);
    if (in_.acceptWord("MAX")) {
        type.max = true;
    } else {
        type.first = structuralInteger();
        if (in_.accept(Op::Comma)) {
            type.second = structuralInteger();
        }
    }
    in_.expect(Op::Close);
}

int Descent::structuralInteger() {
    const auto number = integerOf<int>(in_.token());
    if (!number) {
        in_.refuseHere();
    }
    markStructural();
    in_.take();
    return *number;
}

// signed := ['-' | '+'] integer
std::int64_t Descent::signedInteger() {
    const bool negative = in_.accept(Op::Minus);
    if (!negative) {
        in_.accept(Op::Plus);
    }
    const auto number = integerOf<std::int64_t>(in_.token());
    if (!number) {
        in_.refuseHere();
    }
    markStructural();
    in_.take();
    return negative ? -*number : *number;
}

// alias := [AS] name | [AS] 'text'
std::string Descent::optionalAlias(bool allowString) {
    const bool as = in_.accept(Keyword::As);
    const bool string = in_.is(TokenKind::String) || in_.is(TokenKind::NationalString);
    if (allowString && string) {
        markStructural();
        return tokenValue(in_.take().token);
    }
    if (as || in_.isName()) {
        return in_.expectName();
    }
    return {};
}

} // namespace velcro::sql::tsql

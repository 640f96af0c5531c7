// What stands between operators: constants, names, brackets, CASE, casts and calls.
#include "tsql/syntax/Descent.h"

namespace velcro::sql::tsql {

namespace {

/// Functions that are called without brackets.
bool isNiladic(Keyword keyword) {
    return keyword == Keyword::CurrentTimestamp || keyword == Keyword::CurrentUser ||
           keyword == Keyword::SessionUser || keyword == Keyword::SystemUser ||
           keyword == Keyword::User;
}

/// Functions whose names are reserved words.
bool isReservedFunction(Keyword keyword) {
    return keyword == Keyword::Left || keyword == Keyword::Right || keyword == Keyword::Coalesce ||
           keyword == Keyword::Nullif;
}

} // namespace

// operand := literal | @variable | @@global | :Parameter | '(' ... ')' | word | name
ExprPtr Descent::operand() {
    const Place place = here();
    switch (in_.token().kind) {
    case TokenKind::Variable:
        return node(Variable{tokenValue(in_.take().token)}, place);
    case TokenKind::GlobalVariable:
        return node(GlobalVariable{tokenValue(in_.take().token)}, place);
    case TokenKind::Parameter:
        return node(NamedParameter{tokenValue(in_.take().token)}, place);
    case TokenKind::Identifier:
        return wordOperand();
    case TokenKind::QuotedIdentifier:
        return nameOperand();
    case TokenKind::Operator:
        if (in_.is(Op::Open)) {
            return bracketed();
        }
        break;
    default:
        if (isLiteral(in_.token().kind)) {
            return literal();
        }
    }
    in_.refuseHere();
}

ExprPtr Descent::literal() {
    const Place place = here();
    const TokenStream::Item& item = in_.take();
    return node(Literal{literalKind(item.token.kind), item.literal, tokenValue(item.token)}, place);
}

// bracketed := '(' (query | condition | value) ')'
ExprPtr Descent::bracketed() {
    const Level level(*this);
    const Place place = here();
    if (atQuery(1)) {
        return node(ScalarQuery{bracketedQuery()}, place);
    }
    in_.expect(Op::Open);
    ExprPtr expr = anyExpression();
    in_.expect(Op::Close);
    return expr;
}

// word := NULL | CASE ... | EXISTS '(' query ')' | CONVERT ... | CURRENT_TIMESTAMP | LEFT '(' ...
ExprPtr Descent::wordOperand() {
    const Level level(*this);
    const Place place = here();
    const Keyword keyword = in_.current().keyword;
    switch (keyword) {
    case Keyword::None:
        if (in_.isWordNow("CAST") && in_.isAt(1, Op::Open)) {
            return castCall(false);
        }
        if (in_.isWordNow("TRY_CAST") && in_.isAt(1, Op::Open)) {
            return castCall(true);
        }
        if (in_.isWordNow("NEXT") && in_.isWordAt(1, "VALUE") && in_.isAt(2, Keyword::For)) {
            in_.refuseUnsupported("NEXT VALUE FOR");
        }
        return nameOperand();
    case Keyword::Null:
        in_.take();
        return node(NullLiteral(), place);
    case Keyword::Case:
        return caseExpression();
    case Keyword::Exists:
        in_.take();
        return node(Exists{bracketedQuery()}, place);
    case Keyword::Convert:
    case Keyword::TryConvert:
        return convertCall(keyword == Keyword::TryConvert);
    default:
        break;
    }
    const bool niladic = isNiladic(keyword);
    if (!niladic && !(isReservedFunction(keyword) && in_.isAt(1, Op::Open))) {
        in_.refuseHere();
    }
    ObjectName name;
    name.offset = place.offset;
    name.name = tokenValue(in_.take().token);
    return niladic ? node(FunctionCall{std::move(name), {}, false, {}}, place)
                   : callOf(std::move(name), place);
}

// case := CASE [value] {WHEN (condition | value) THEN value} [ELSE value] END
ExprPtr Descent::caseExpression() {
    const Place place = here();
    in_.expect(Keyword::Case);
    Case result;
    if (!in_.is(Keyword::When)) {
        result.operand = value();
    }
    do {
        in_.expect(Keyword::When);
        Case::Branch branch;
        branch.when = result.operand ? value() : condition();
        in_.expect(Keyword::Then);
        branch.then = value();
        result.branches.push_back(std::move(branch));
    } while (in_.is(Keyword::When));
    if (in_.accept(Keyword::Else)) {
        result.otherwise = value();
    }
    in_.expect(Keyword::End);
    return node(std::move(result), place);
}

// cast := (CAST | TRY_CAST) '(' value AS type ')'
ExprPtr Descent::castCall(bool isTry) {
    const Place place = here();
    in_.take();
    in_.expect(Op::Open);
    Cast cast;
    cast.isTry = isTry;
    cast.operand = value();
    in_.expect(Keyword::As);
    cast.type = dataType();
    in_.expect(Op::Close);
    return node(std::move(cast), place);
}

// convert := (CONVERT | TRY_CONVERT) '(' type ',' value [',' style] ')'
ExprPtr Descent::convertCall(bool isTry) {
    const Place place = here();
    in_.take();
    in_.expect(Op::Open);
    Convert convert;
    convert.isTry = isTry;
    convert.type = dataType();
    in_.expect(Op::Comma);
    convert.operand = value();
    if (in_.accept(Op::Comma)) {
        if (in_.is(TokenKind::Integer)) {
            markStructural();
        }
        convert.style = value();
    }
    in_.expect(Op::Close);
    return node(std::move(convert), place);
}

// name := parts ['.' '*' | '(' arguments ')' [over]]
ExprPtr Descent::nameOperand() {
    const Place place = here();
    std::vector<std::string> parts = nameParts();
    if (in_.is(Op::Open)) {
        return callOf(objectNameOf(std::move(parts), place.offset), place);
    }
    if (in_.is(Op::Dot)) {
        in_.refuseHere(); // t.* is no value
    }
    if (parts.size() > 4) {
        in_.refuseAt(place.offset);
    }
    return node(ColumnRef{std::move(parts)}, place);
}

// call := name '(' arguments ')' [OVER '(' ... ')']
ExprPtr Descent::callOf(ObjectName name, Place place) {
    const Level level(*this);
    FunctionCall call;
    call.name = std::move(name);
    in_.expect(Op::Open);
    callArguments(call);
    in_.expect(Op::Close);
    if (in_.isWordNow("WITHIN")) {
        in_.refuseUnsupported("WITHIN GROUP");
    }
    call.over = over();
    return node(std::move(call), place);
}

// arguments := [DISTINCT | ALL] ('*' | value {',' value}) | nothing; IIF takes a condition first
void Descent::callArguments(FunctionCall& call) {
    if (in_.is(Op::Close)) {
        return;
    }
    if (in_.is(Op::Star) && in_.isAt(1, Op::Close)) {
        const Place place = here();
        in_.take();
        call.arguments.push_back(node(Star(), place));
        return;
    }
    if (in_.accept(Keyword::Distinct)) {
        call.distinct = true;
    } else {
        in_.accept(Keyword::All);
    }
    const bool iif = call.name.schema.empty() && upper(call.name.name) == "IIF";
    list([&] { call.arguments.push_back(iif && call.arguments.empty() ? condition() : value()); });
}

// over := OVER '(' [PARTITION BY value {',' value}] [ORDER BY items] [frame] ')'
std::optional<Window> Descent::over() {
    if (!in_.accept(Keyword::Over)) {
        return std::nullopt;
    }
    Window window;
    in_.expect(Op::Open);
    if (in_.acceptWord("PARTITION")) {
        in_.expect(Keyword::By);
        list([&] { window.partitionBy.push_back(value()); });
    }
    if (in_.is(Keyword::Order)) {
        window.orderBy = orderBy();
    }
    if (in_.isWordNow("ROWS") || in_.isWordNow("RANGE")) {
        frame(window);
    }
    in_.expect(Op::Close);
    return window;
}

// frame := (ROWS | RANGE) (bound | BETWEEN bound AND bound)
void Descent::frame(Window& window) {
    window.hasFrame = true;
    window.frameIsRows = in_.isWordNow("ROWS");
    in_.take();
    if (in_.accept(Keyword::Between)) {
        window.from = frameBound();
        in_.expect(Keyword::And);
        window.to = frameBound();
    } else {
        window.from = frameBound();
        window.to.kind = FrameBound::Kind::CurrentRow;
    }
}

// bound := UNBOUNDED (PRECEDING | FOLLOWING) | CURRENT ROW | integer (PRECEDING | FOLLOWING)
FrameBound Descent::frameBound() {
    using Kind = FrameBound::Kind;
    if (in_.accept(Keyword::Current)) {
        in_.expectWord("ROW");
        return {Kind::CurrentRow, nullptr};
    }
    const bool unbounded = in_.acceptWord("UNBOUNDED");
    if (!unbounded && !in_.is(TokenKind::Integer)) {
        in_.refuseHere();
    }
    ExprPtr count = unbounded ? nullptr : literal();
    if (in_.acceptWord("PRECEDING")) {
        return {unbounded ? Kind::UnboundedPreceding : Kind::Preceding, std::move(count)};
    }
    in_.expectWord("FOLLOWING");
    return {unbounded ? Kind::UnboundedFollowing : Kind::Following, std::move(count)};
}

} // namespace velcro::sql::tsql

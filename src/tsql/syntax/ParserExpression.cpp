// Conditions and values, by falling precedence: OR, AND, NOT, predicates, sums, products, signs.
#include "tsql/syntax/Descent.h"
#include "tsql/syntax/TreeHeight.h"

namespace velcro::sql::tsql {

namespace {

bool isCondition(const Expr& expr) {
    return std::holds_alternative<Comparison>(expr.node) ||
           std::holds_alternative<Logical>(expr.node) || std::holds_alternative<Not>(expr.node) ||
           std::holds_alternative<IsNull>(expr.node) ||
           std::holds_alternative<Between>(expr.node) ||
           std::holds_alternative<InList>(expr.node) ||
           std::holds_alternative<InQuery>(expr.node) || std::holds_alternative<Like>(expr.node) ||
           std::holds_alternative<Exists>(expr.node) ||
           std::holds_alternative<Quantified>(expr.node);
}

std::optional<CompareOp> compareOp(Op op) {
    switch (op) {
    case Op::Equal:
        return CompareOp::Equal;
    case Op::NotEqual:
        return CompareOp::NotEqual;
    case Op::Less:
        return CompareOp::Less;
    case Op::LessEqual:
        return CompareOp::LessEqual;
    case Op::Greater:
        return CompareOp::Greater;
    case Op::GreaterEqual:
        return CompareOp::GreaterEqual;
    default:
        return std::nullopt;
    }
}

std::optional<BinaryOp> sumOp(Op op) {
    switch (op) {
    case Op::Plus:
        return BinaryOp::Add;
    case Op::Minus:
        return BinaryOp::Subtract;
    case Op::Ampersand:
        return BinaryOp::BitAnd;
    case Op::Pipe:
        return BinaryOp::BitOr;
    case Op::Caret:
        return BinaryOp::BitXor;
    default:
        return std::nullopt;
    }
}

std::optional<BinaryOp> productOp(Op op) {
    switch (op) {
    case Op::Star:
        return BinaryOp::Multiply;
    case Op::Slash:
        return BinaryOp::Divide;
    case Op::Percent:
        return BinaryOp::Modulo;
    default:
        return std::nullopt;
    }
}

std::optional<UnaryOp> unaryOp(Op op) {
    switch (op) {
    case Op::Plus:
        return UnaryOp::Plus;
    case Op::Minus:
        return UnaryOp::Minus;
    case Op::Tilde:
        return UnaryOp::BitNot;
    default:
        return std::nullopt;
    }
}

} // namespace

ExprPtr Descent::node(ExprNode content, Place place) {
    const std::uint16_t height = heightAbove(heightBelow(content));
    return std::make_unique<Expr>(Expr{std::move(content), place.offset, place.line, height});
}

ExprPtr Descent::value() {
    ExprPtr expr = sum();
    requireValue(*expr);
    return expr;
}

ExprPtr Descent::condition() {
    ExprPtr expr = anyExpression();
    requireCondition(*expr);
    return expr;
}

void Descent::requireValue(const Expr& expr) const {
    if (isCondition(expr)) {
        in_.refuseHere();
    }
}

void Descent::requireCondition(const Expr& expr) const {
    if (!isCondition(expr)) {
        in_.refuseWith(4145, {in_.nearText()});
    }
}

ExprPtr Descent::logical(bool isAnd, std::vector<ExprPtr> operands) {
    if (operands.size() == 1) {
        return std::move(operands.front());
    }
    const Place place = placeOf(*operands.front());
    return node(Logical{isAnd, std::move(operands)}, place);
}

// any := and {OR and}
ExprPtr Descent::anyExpression() {
    std::vector<ExprPtr> operands;
    operands.push_back(conjunction());
    while (in_.is(Keyword::Or)) {
        requireCondition(*operands.back());
        in_.take();
        operands.push_back(conjunction());
        requireCondition(*operands.back());
    }
    return logical(false, std::move(operands));
}

// and := not {AND not}
ExprPtr Descent::conjunction() {
    std::vector<ExprPtr> operands;
    operands.push_back(negation());
    while (in_.is(Keyword::And)) {
        requireCondition(*operands.back());
        in_.take();
        operands.push_back(negation());
        requireCondition(*operands.back());
    }
    return logical(true, std::move(operands));
}

// not := NOT not | predicate
ExprPtr Descent::negation() {
    if (!in_.is(Keyword::Not)) {
        return predicate();
    }
    const Level level(*this);
    const Place place = here();
    in_.take();
    ExprPtr operand = negation();
    requireCondition(*operand);
    return node(Not{std::move(operand)}, place);
}

// predicate := sum [compare ... | IS [NOT] NULL | [NOT] IN ... | [NOT] LIKE ... | [NOT] BETWEEN ...]
ExprPtr Descent::predicate() {
    ExprPtr left = sum();
    if (isCondition(*left)) {
        return left;
    }
    if (const auto op = compareOp(in_.token().op)) {
        in_.take();
        return comparison(std::move(left), *op);
    }
    const Place place = placeOf(*left);
    if (in_.accept(Keyword::Is)) {
        const bool negated = in_.accept(Keyword::Not);
        in_.expect(Keyword::Null);
        return node(IsNull{std::move(left), negated}, place);
    }
    const bool negated = in_.is(Keyword::Not);
    if (negated) {
        in_.take();
    }
    if (in_.accept(Keyword::In)) {
        return membership(std::move(left), negated);
    }
    if (in_.accept(Keyword::Like)) {
        return like(std::move(left), negated);
    }
    if (in_.accept(Keyword::Between)) {
        return between(std::move(left), negated);
    }
    if (negated) {
        in_.refuseHere();
    }
    return left;
}

// compare := op (sum | (ALL | ANY | SOME) '(' query ')')
ExprPtr Descent::comparison(ExprPtr left, CompareOp op) {
    const Place place = placeOf(*left);
    if (in_.is(Keyword::All) || in_.is(Keyword::Any) || in_.is(Keyword::Some)) {
        const bool all = in_.take().keyword == Keyword::All;
        return node(Quantified{op, all, std::move(left), bracketedQuery()}, place);
    }
    ExprPtr right = value();
    return node(Comparison{op, std::move(left), std::move(right)}, place);
}

// IN '(' (query | value {',' value}) ')'
ExprPtr Descent::membership(ExprPtr left, bool negated) {
    const Place place = placeOf(*left);
    in_.expect(Op::Open);
    if (atQuery()) {
        QueryPtr inner = query();
        in_.expect(Op::Close);
        return node(InQuery{std::move(left), std::move(inner), negated}, place);
    }
    std::vector<ExprPtr> values;
    list([&] { values.push_back(value()); });
    in_.expect(Op::Close);
    return node(InList{std::move(left), std::move(values), negated}, place);
}

// LIKE sum [ESCAPE sum]
ExprPtr Descent::like(ExprPtr left, bool negated) {
    const Place place = placeOf(*left);
    ExprPtr pattern = value();
    ExprPtr escape = in_.accept(Keyword::Escape) ? value() : nullptr;
    return node(Like{std::move(left), std::move(pattern), std::move(escape), negated}, place);
}

// BETWEEN sum AND sum
ExprPtr Descent::between(ExprPtr left, bool negated) {
    const Place place = placeOf(*left);
    ExprPtr low = value();
    in_.expect(Keyword::And);
    ExprPtr high = value();
    return node(Between{std::move(left), std::move(low), std::move(high), negated}, place);
}

ExprPtr Descent::binary(ExprPtr left, BinaryOp op, ExprPtr right) {
    requireValue(*right);
    const Place place = placeOf(*left);
    return node(Binary{op, std::move(left), std::move(right)}, place);
}

// sum := product {('+' | '-' | '&' | '|' | '^') product}
ExprPtr Descent::sum() {
    ExprPtr left = product();
    for (auto op = sumOp(in_.token().op); op && !isCondition(*left); op = sumOp(in_.token().op)) {
        in_.take();
        left = binary(std::move(left), *op, product());
    }
    return left;
}

// product := unary {('*' | '/' | '%') unary}
ExprPtr Descent::product() {
    ExprPtr left = unary();
    for (auto op = productOp(in_.token().op); op && !isCondition(*left);
         op = productOp(in_.token().op)) {
        in_.take();
        left = binary(std::move(left), *op, unary());
    }
    return left;
}

// unary := ('+' | '-' | '~') unary | postfix
ExprPtr Descent::unary() {
    const auto op = unaryOp(in_.token().op);
    if (!op) {
        return postfix();
    }
    const Level level(*this);
    const Place place = here();
    in_.take();
    ExprPtr operand = unary();
    requireValue(*operand);
    return node(Unary{*op, std::move(operand)}, place);
}

// postfix := operand {COLLATE name}
ExprPtr Descent::postfix() {
    ExprPtr expr = operand();
    while (!isCondition(*expr) && in_.accept(Keyword::Collate)) {
        const Place place = placeOf(*expr);
        expr = node(Collate{std::move(expr), in_.expectName()}, place);
    }
    return expr;
}

} // namespace velcro::sql::tsql

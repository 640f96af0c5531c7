// Conditions: comparisons, LIKE, IN, EXISTS and what joins them.
#include "tsql/translate/Emitter.h"

#include "tsql/translate/SqliteText.h"
#include "tsql/values/Errors.h"

namespace velcro::sql::tsql {

namespace {

struct OperatorText
{
    std::string_view sign;
    std::string_view words; // as the server's messages have it
};

OperatorText textOf(CompareOp op) {
    switch (op) {
    case CompareOp::Equal:
        return {" = ", "equal to"};
    case CompareOp::NotEqual:
        return {" <> ", "not equal to"};
    case CompareOp::Less:
        return {" < ", "less than"};
    case CompareOp::LessEqual:
        return {" <= ", "less than or equal to"};
    case CompareOp::Greater:
        return {" > ", "greater than"};
    default:
        return {" >= ", "greater than or equal to"};
    }
}

void requireComparable(CompareOp op, const Type& left, const Type& right, int line) {
    if (!left.isComparable() || !right.isComparable()) {
        raise(402, {baseTypeName(left.id), baseTypeName(right.id), textOf(op).words}, line);
    }
}

} // namespace

std::string Emitter::conditionOf(const Expr& expr, const Scope& scope) {
    if (expr.line != 0) {
        line_ = static_cast<int>(expr.line);
    }
    const Level level(*this);
    if (standsTooDeep(expr)) {
        return conditionPartOf(expr, scope);
    }
    return std::visit([&](const auto& node) { return test(node, scope); }, expr.node);
}

std::string Emitter::test(const InQuery& in, const Scope& scope) {
    return outside([&] { return rowsTest(in, scope); });
}

std::string Emitter::test(const Exists& exists, const Scope& scope) {
    return outside([&] { return rowsTest(exists, scope); });
}

std::string Emitter::test(const Quantified& quantified, const Scope& scope) {
    return outside([&] { return rowsTest(quantified, scope); });
}

template <class Node>
std::string Emitter::test(const Node&, const Scope&) {
    raiseUnsupported("this expression as a condition", line_);
}

std::string Emitter::compare(CompareOp op, Fragment left, Fragment right) {
    requireComparable(op, left.type, right.type, line_);
    const Type type = commonType(left.type, right.type);
    const bool needsCollation = type.isCollated() && !left.collated && !right.collated;
    Fragment shown{{}, type, !needsCollation, {}};
    // A column keeps its own form, so that an index on it serves; the other side follows.
    std::string text = collatedText(shown, as(std::move(left), type));
    text += textOf(op).sign;
    return text + as(std::move(right), type);
}

std::string Emitter::test(const Comparison& comparison, const Scope& scope) {
    Fragment left = valueOf(*comparison.left, scope);
    Fragment right = valueOf(*comparison.right, scope);
    return compare(comparison.op, std::move(left), std::move(right));
}

std::string Emitter::test(const Logical& logical, const Scope& scope) {
    std::string text = "(";
    for (std::size_t i = 0; i < logical.operands.size(); ++i) {
        text += i == 0 ? "" : logical.isAnd ? " AND " : " OR ";
        text += conditionOf(*logical.operands[i], scope);
    }
    return text + ")";
}

std::string Emitter::test(const Not& negation, const Scope& scope) {
    return "NOT (" + conditionOf(*negation.operand, scope) + ")";
}

std::string Emitter::test(const IsNull& isNull, const Scope& scope) {
    return placed(valueOf(*isNull.operand, scope)) + (isNull.negated ? " IS NOT NULL" : " IS NULL");
}

std::string Emitter::test(const Between& between, const Scope& scope) {
    const auto low = compare(CompareOp::GreaterEqual, valueOf(*between.operand, scope),
                             valueOf(*between.low, scope));
    const auto high = compare(CompareOp::LessEqual, valueOf(*between.operand, scope),
                              valueOf(*between.high, scope));
    return std::string(between.negated ? "NOT " : "") + "(" + low + " AND " + high + ")";
}

std::string Emitter::test(const InList& list, const Scope& scope) {
    Fragment operand = valueOf(*list.operand, scope);
    std::vector<Fragment> values;
    Type type = operand.type;
    for (const auto& value : list.values) {
        values.push_back(valueOf(*value, scope));
        requireComparable(CompareOp::Equal, operand.type, values.back().type, line_);
        type = commonType(type, values.back().type);
    }
    const Fragment shown{{}, type, operand.collated, {}};
    std::string text = collatedText(shown, as(std::move(operand), type));
    text += list.negated ? " NOT IN (" : " IN (";
    for (std::size_t i = 0; i < values.size(); ++i) {
        text += (i == 0 ? "" : ",") + as(std::move(values[i]), type);
    }
    return text + ")";
}

std::string Emitter::rowsTest(const InQuery& in, const Scope& scope) {
    Fragment operand = valueOf(*in.operand, scope);
    QueryText rows = query(*in.query, &scope, true);
    if (rows.columns.size() != 1) {
        raise(116, {}, line_);
    }
    const Type& found = rows.columns[0].type;
    requireComparable(CompareOp::Equal, operand.type, found, line_);
    const Type type = commonType(operand.type, found);
    const Fragment shown{{}, type, operand.collated, {}};
    std::string text = collatedText(shown, as(std::move(operand), type));
    text += in.negated ? " NOT IN (" : " IN (";
    const Fragment cell{"\"in\".\"v\"", found, true, {}};
    const std::string converted = as(cell, type);
    if (converted == cell.text) {
        return text + rows.text + ")";
    }
    return text + "WITH \"in\"(\"v\") AS (" + rows.text + ") SELECT " + converted + " FROM \"in\")";
}

std::string Emitter::test(const Like& like, const Scope& scope) {
    const std::string operand = asText(valueOf(*like.operand, scope));
    const std::string pattern = asText(valueOf(*like.pattern, scope));
    std::string text =
        std::string(like.negated ? "NOT " : "") + "ts_like(" + pattern + "," + operand;
    if (like.escape) {
        text += "," + asText(valueOf(*like.escape, scope));
    }
    return text + ")";
}

std::string Emitter::rowsTest(const Exists& exists, const Scope& scope) {
    return "EXISTS (" + query(*exists.query, &scope, true).text + ")";
}

/// x > ALL (q): no row for which x > v fails; = ANY (q): a row for which it holds.
std::string Emitter::rowsTest(const Quantified& quantified, const Scope& scope) {
    Fragment operand = valueOf(*quantified.operand, scope);
    const QueryText rows = query(*quantified.query, &scope, true);
    if (rows.columns.size() != 1) {
        raise(116, {}, line_);
    }
    const Fragment cell{"\"any\".\"v\"", rows.columns[0].type, true, {}};
    const std::string test = compare(quantified.op, std::move(operand), cell);
    const std::string source = " (WITH \"any\"(\"v\") AS (" + rows.text + ") SELECT 1 FROM \"any\"";
    return quantified.all ? "NOT EXISTS" + source + " WHERE (" + test + ") IS NOT TRUE)"
                          : "EXISTS" + source + " WHERE " + test + ")";
}

} // namespace velcro::sql::tsql

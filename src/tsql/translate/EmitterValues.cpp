// Expressions that give a value.
#include "tsql/translate/Emitter.h"

#include "tsql/translate/SessionValues.h"
#include "tsql/translate/SqliteText.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>
#include <charconv>

namespace velcro::sql::tsql {

namespace {

char operationSign(BinaryOp op) {
    return "+-*/%&|^"[static_cast<int>(op)];
}

std::string inBrackets(const std::string& left, std::string_view sign, const std::string& right) {
    return "(" + left + " " + std::string(sign) + " " + right + ")";
}

int styleNumber(const ExprPtr& style, int line) {
    if (!style) {
        return 0;
    }
    const auto* literal = std::get_if<Literal>(&style->node);
    if (literal == nullptr || literal->kind != LiteralKind::Integer) {
        raiseUnsupported("CONVERT with a style that is no number", line);
    }
    int number = 0;
    std::from_chars(literal->text.data(), literal->text.data() + literal->text.size(), number);
    return number;
}

} // namespace

Emitter::Fragment Emitter::valueOf(const Expr& expr, const Scope& scope) {
    if (expr.line != 0) {
        line_ = static_cast<int>(expr.line);
    }
    const Level level(*this);
    if (standsTooDeep(expr)) {
        return partOf(expr, scope);
    }
    return std::visit([&](const auto& node) { return emit(node, scope); }, expr.node);
}

template <class Node>
Emitter::Fragment Emitter::emit(const Node&, const Scope&) {
    raiseUnsupported("this expression as a value", line_);
}

Emitter::Fragment Emitter::emit(const Literal& literal, const Scope&) {
    Bind bind;
    bind.kind = literal.kind;
    bind.index = literal.index;
    bind.from = literalType(literal.kind, literal.text);
    if (literals_ == Literals::Open && literal.index != noLiteral) {
        bind.source = Bind::Source::Literal;
        // The next run may have more digits behind the point.
        if (literal.kind == LiteralKind::Decimal) {
            bind.from = decimalType(28, 10);
        }
    } else {
        bind.value = literalValue(literal.kind, literal.text, false);
    }
    const Type type = bind.from;
    return {"", type, false, std::move(bind)};
}

Emitter::Fragment Emitter::emit(const Variable& variable, const Scope&) {
    Bind bind;
    bind.source = Bind::Source::Variable;
    bind.name = variable.name;
    bind.from = names_.variable(variable.name);
    const Type type = bind.from;
    return {"", type, false, std::move(bind)};
}

Emitter::Fragment Emitter::emit(const GlobalVariable& variable, const Scope&) {
    const Type* type = sessionValueType(variable.name);
    if (type == nullptr) {
        raiseUnsupported(variable.name, line_);
    }
    Bind bind;
    bind.source = Bind::Source::Session;
    bind.name = upperName(variable.name);
    bind.from = *type;
    return {"", *type, false, std::move(bind)};
}

Emitter::Fragment Emitter::emit(const NamedParameter& parameter, const Scope&) {
    const Type* type = names_.parameter(parameter.name);
    if (type == nullptr) {
        raise(137, {":" + parameter.name}, line_);
    }
    Bind bind;
    bind.source = Bind::Source::Parameter;
    bind.name = parameter.name;
    bind.from = *type;
    return {"", *type, false, std::move(bind)};
}

Emitter::Fragment Emitter::columnFragment(const Source& source, const SourceColumn& column) {
    return {quoteName(source.alias) + "." + quoteName(column.name),
            column.type,
            column.type.isCollated(),
            {}};
}

Emitter::Fragment Emitter::emit(const ColumnRef& reference, const Scope& scope) {
    const auto found = scope.find(reference, line_);
    Fragment fragment = columnFragment(*found.source, *found.column);
    checkGrouping(fragment, *found.source, found.column->name);
    return fromOutside(std::move(fragment));
}

/// A column beside an aggregate must be grouped by, where that can be told.
void Emitter::checkGrouping(const Fragment& column, const Source& source, const std::string& name) {
    if (groups_.empty() || aggregateDepth_ > 0 || !groups_.back().strict) {
        return;
    }
    const GroupCheck& group = groups_.back();
    const bool here = group.scope->source(source.alias) == &source;
    const bool grouped =
        std::find(group.columns.begin(), group.columns.end(), column.text) != group.columns.end();
    if (here && !grouped) {
        raise(8120, {source.alias + "." + name}, line_);
    }
}

Emitter::Fragment Emitter::emit(const Unary& unary, const Scope& scope) {
    Fragment operand = valueOf(*unary.operand, scope);
    if (unary.op == UnaryOp::Plus) {
        return operand;
    }
    if (!operand.type.isNumber() && !operand.type.isNull()) {
        raise(8117, {typeName(operand.type), unary.op == UnaryOp::Minus ? "minus" : "'~'"}, line_);
    }
    if (unary.op == UnaryOp::Minus && operand.bind &&
        operand.bind->source == Bind::Source::Literal) {
        operand.bind->negated = !operand.bind->negated;
        return operand;
    }
    const Type type = operand.type;
    const bool bit = type.id == TypeId::Bit && unary.op == UnaryOp::BitNot;
    const std::string text = placed(std::move(operand));
    if (bit) {
        return {"(1 - " + text + ")", type, false, {}};
    }
    return {(unary.op == UnaryOp::Minus ? "(-" : "(~") + text + ")", type, false, {}};
}

Emitter::Fragment Emitter::emit(const velcro::sql::tsql::Binary& binary, const Scope& scope) {
    Fragment left = valueOf(*binary.left, scope);
    Fragment right = valueOf(*binary.right, scope);
    return arithmetic(binary.op, std::move(left), std::move(right));
}

Emitter::Fragment Emitter::arithmetic(BinaryOp op, Fragment left, Fragment right) {
    if (left.type.isNull() || right.type.isNull()) {
        const Type type = left.type.isNull() ? right.type : left.type;
        return {"NULL", type, false, {}};
    }
    const Type type = arithmeticType(operationSign(op), left.type, right.type);
    if (type.isText() || type.isBinary()) {
        return {inBrackets(as(std::move(left), type), "||", as(std::move(right), type)),
                type,
                false,
                {}};
    }
    const bool real = type.isDecimal() || type.isFloat();
    const bool dates = type.isDateTime();
    const auto operand = [&](Fragment fragment) {
        if (dates) {
            return as(std::move(fragment), type);
        }
        return real && op == BinaryOp::Divide ? asReal(std::move(fragment))
                                              : as(std::move(fragment), type);
    };
    const std::string a = operand(std::move(left));
    const std::string b = operand(std::move(right));
    const std::string code = std::to_string(type.code());
    switch (op) {
    case BinaryOp::Add:
        return {type.isFloat() ? inBrackets(a, "+", b) : "ts_add(" + a + "," + b + "," + code + ")",
                type,
                false,
                {}};
    case BinaryOp::Subtract:
        return {type.isFloat() ? inBrackets(a, "-", b)
                               : "ts_subtract(" + a + "," + b + "," + code + ")",
                type,
                false,
                {}};
    case BinaryOp::Multiply:
        return {type.isFloat() ? inBrackets(a, "*", b)
                               : "ts_multiply(" + a + "," + b + "," + code + ")",
                type,
                false,
                {}};
    case BinaryOp::Divide: {
        const std::string quotient = "ts_divide(" + a + "," + b + ")";
        return {type.isDecimal() ? castText(quotient, floatType, type) : quotient, type, false, {}};
    }
    case BinaryOp::Modulo:
        return {"ts_modulo(" + a + "," + b + ")", type, false, {}};
    case BinaryOp::BitAnd:
        return {inBrackets(a, "&", b), type, false, {}};
    case BinaryOp::BitOr:
        return {inBrackets(a, "|", b), type, false, {}};
    case BinaryOp::BitXor:
        return {"((" + a + " | " + b + ") - (" + a + " & " + b + "))", type, false, {}};
    }
    raiseUnsupported("this operator", line_);
}

Emitter::Fragment Emitter::emit(const Case& value, const Scope& scope) {
    std::vector<std::string> conditions;
    std::vector<Fragment> results;
    for (const auto& branch : value.branches) {
        conditions.push_back(value.operand
                                 ? compare(CompareOp::Equal, valueOf(*value.operand, scope),
                                           valueOf(*branch.when, scope))
                                 : conditionOf(*branch.when, scope));
        results.push_back(valueOf(*branch.then, scope));
    }
    if (value.otherwise) {
        results.push_back(valueOf(*value.otherwise, scope));
    }
    Type type;
    for (const auto& result : results) {
        type = commonType(type, result.type);
    }
    std::string text = "CASE";
    for (std::size_t i = 0; i < conditions.size(); ++i) {
        text += " WHEN " + conditions[i] + " THEN " + as(std::move(results[i]), type);
    }
    if (value.otherwise) {
        text += " ELSE " + as(std::move(results.back()), type);
    }
    return {text + " END", type, false, {}};
}

Emitter::Fragment Emitter::cast(Fragment operand, const DataType& type, bool isTry, int style) {
    const Type target = declaredType(type, line_, true);
    if (operand.type.isNull()) {
        return {"NULL", target, false, {}};
    }
    if (conversionRule(operand.type, target) == ConversionRule::Refused) {
        raise(529, {typeName(operand.type), typeName(target)}, line_);
    }
    const Type from = operand.type;
    if (operand.bind && operand.bind->source == Bind::Source::Literal && !isTry && style == 0) {
        // Converted as it was written, with the digits it was written with.
        operand.bind->to = target;
        return {place(std::move(*operand.bind)), target, false, {}};
    }
    return {castText(placed(std::move(operand)), from, target, style, isTry), target, false, {}};
}

Emitter::Fragment Emitter::emit(const Cast& cast, const Scope& scope) {
    return this->cast(valueOf(*cast.operand, scope), cast.type, cast.isTry, 0);
}

Emitter::Fragment Emitter::emit(const Convert& convert, const Scope& scope) {
    return cast(valueOf(*convert.operand, scope), convert.type, convert.isTry,
                styleNumber(convert.style, line_));
}

/// One order of text is kept: another case-insensitive one means the same, others are refused.
Emitter::Fragment Emitter::emit(const Collate& collate, const Scope& scope) {
    const std::string name = upperName(collate.collation);
    if (name != "DATABASE_DEFAULT" && name.find("_CI_AS") == std::string::npos) {
        raiseUnsupported("COLLATE " + collate.collation, line_);
    }
    return valueOf(*collate.operand, scope);
}

Emitter::Fragment Emitter::emit(const ScalarQuery& scalar, const Scope& scope) {
    return outside([&] { return scalarQuery(scalar, scope); });
}

Emitter::Fragment Emitter::scalarQuery(const ScalarQuery& scalar, const Scope& scope) {
    QueryText text = query(*scalar.query, &scope, true);
    if (text.columns.size() != 1) {
        raise(116, {}, line_);
    }
    const Type& type = text.columns[0].type;
    if (givesOneRow(*scalar.query->body)) {
        return {"(" + text.text + ")", type, false, {}};
    }
    // SQLite would take the first of several rows in silence.
    return {"(WITH \"one\"(\"v\") AS (" + text.text +
                ") SELECT CASE WHEN count(*) > 1 THEN ts_raise(512) ELSE max(\"v\") END"
                " FROM (SELECT \"v\" FROM \"one\" LIMIT 2))",
            type,
            false,
            {}};
}

} // namespace velcro::sql::tsql

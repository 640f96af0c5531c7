// Calls of functions: aggregates, rankings, those that SQL has syntax for, and the plain ones.
#include "tsql/translate/Emitter.h"

#include "tsql/translate/SessionValues.h"
#include "tsql/translate/SqliteText.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>
#include <array>

namespace velcro::sql::tsql {

namespace {

constexpr std::array aggregates{"COUNT", "COUNT_BIG", "SUM", "AVG", "MIN", "MAX", "STRING_AGG"};
constexpr std::array rankings{"ROW_NUMBER", "RANK", "DENSE_RANK", "NTILE"};

template <class Names>
bool isOneOf(const Names& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// What the server makes of SUM and AVG.
Type sumType(const Type& type, int line, const std::string& name) {
    if (type.isFloat()) {
        return floatType;
    }
    if (type.isDecimal()) {
        const bool money = type.id == TypeId::Money || type.id == TypeId::SmallMoney;
        return money ? moneyType : decimalType(38, type.scale);
    }
    if (type.isInteger() && type.id != TypeId::Bit) {
        return type.id == TypeId::BigInt ? bigIntType : intType;
    }
    raise(8117, {typeName(type), name}, line);
}

} // namespace

Emitter::Fragment Emitter::emit(const FunctionCall& call, const Scope& scope) {
    const std::string name = upperName(call.name.name);
    if (isOneOf(aggregates, name)) {
        return outside([&] { return aggregate(name, call, scope); });
    }
    if (isOneOf(rankings, name)) {
        return outside([&] { return ranking(name, call, scope); });
    }
    if (call.over) {
        raiseUnsupported(name + " with OVER", line_);
    }
    if (const auto value = sessionFunction(name); !value.empty()) {
        return emit(GlobalVariable{std::string(value)}, scope);
    }
    const FunctionInfo* info = functionByName(name);
    if (info == nullptr) {
        raise(195, {call.name.name}, line_);
    }
    requireArgumentCount(*info, call.arguments.size());
    return info->sqliteName.empty() ? ownFunction(name, call, scope)
                                    : plainFunction(*info, call, scope);
}

/// The first of several values, all brought to their common type.
Emitter::Fragment Emitter::combined(std::vector<Fragment> values, const char* function) {
    Type type;
    for (const auto& value : values) {
        type = commonType(type, value.type);
    }
    std::string text = std::string(function) + "(";
    for (std::size_t i = 0; i < values.size(); ++i) {
        text += (i == 0 ? "" : ",") + as(std::move(values[i]), type);
    }
    return {text + ")", type, false, {}};
}

Emitter::Fragment Emitter::ownFunction(const std::string& name, const FunctionCall& call,
                                       const Scope& scope) {
    const auto& arguments = call.arguments;
    if (name == "COALESCE") {
        std::vector<Fragment> values;
        for (const auto& argument : arguments) {
            values.push_back(valueOf(*argument, scope));
        }
        return values.size() == 1 ? std::move(values[0]) : combined(std::move(values), "coalesce");
    }
    if (name == "ISNULL") {
        Fragment first = valueOf(*arguments[0], scope);
        Fragment second = valueOf(*arguments[1], scope);
        const Type type = first.type.isNull() ? second.type : first.type;
        const std::string tested = placed(std::move(first));
        return {"ifnull(" + tested + "," + as(std::move(second), type) + ")", type, false, {}};
    }
    if (name == "NULLIF") {
        Fragment kept = valueOf(*arguments[0], scope);
        const Type type = kept.type;
        const std::string test =
            compare(CompareOp::Equal, valueOf(*arguments[0], scope), valueOf(*arguments[1], scope));
        return {"CASE WHEN " + test + " THEN NULL ELSE " + placed(std::move(kept)) + " END",
                type,
                false,
                {}};
    }
    if (name == "IIF") {
        const std::string test = conditionOf(*arguments[0], scope);
        Fragment yes = valueOf(*arguments[1], scope);
        Fragment no = valueOf(*arguments[2], scope);
        const Type type = commonType(yes.type, no.type);
        const std::string first = as(std::move(yes), type);
        return {"CASE WHEN " + test + " THEN " + first + " ELSE " + as(std::move(no), type) +
                    " END",
                type,
                false,
                {}};
    }
    raiseUnsupported("function " + name, line_);
}

Emitter::Fragment Emitter::aggregate(const std::string& name, const FunctionCall& call,
                                     const Scope& scope) {
    const std::size_t wanted = name == "STRING_AGG" ? 2 : 1;
    if (call.arguments.size() != wanted) {
        raise(174, {name, std::to_string(wanted)}, line_);
    }
    const std::string over = call.over ? " OVER (" + windowText(*call.over, scope) + ")" : "";
    const bool counts = name == "COUNT" || name == "COUNT_BIG";
    const Type countType = name == "COUNT" ? intType : bigIntType;
    if (counts && std::holds_alternative<Star>(call.arguments[0]->node)) {
        return {"count(*)" + over, countType, false, {}};
    }
    ++aggregateDepth_;
    Fragment value = valueOf(*call.arguments[0], scope);
    const Type type = value.type;
    const std::string distinct = call.distinct ? "DISTINCT " : "";
    if (name == "STRING_AGG") {
        const std::string text = asText(std::move(value));
        const std::string separator = asText(valueOf(*call.arguments[1], scope));
        --aggregateDepth_;
        return {"group_concat(" + text + "," + separator + ")" + over,
                nvarcharType(maxLength),
                false,
                {}};
    }
    if (!type.isComparable()) {
        raise(8117, {baseTypeName(type.id), lowerText(name)}, line_);
    }
    const bool numeric = name == "SUM" || name == "AVG";
    if (numeric && type.isText()) {
        raise(8117, {baseTypeName(type.id), lowerText(name)}, line_);
    }
    Fragment shown = value;
    const std::string text = collatedText(shown, placed(std::move(value)));
    --aggregateDepth_;
    if (counts) {
        return {"count(" + distinct + text + ")" + over, countType, false, {}};
    }
    if (!numeric) {
        return {(name == "MIN" ? "min(" : "max(") + distinct + text + ")" + over, type, false, {}};
    }
    const Type result = sumType(type, line_, name == "SUM" ? "sum" : "avg");
    const std::string sum = "sum(" + distinct + text + ")" + over;
    if (name == "SUM") {
        return {type.isDecimal() ? castText(sum, floatType, result) : sum, result, false, {}};
    }
    if (type.isInteger()) {
        return {"(" + sum + " / count(" + distinct + text + ")" + over + ")", result, false, {}};
    }
    const std::string average = "avg(" + distinct + text + ")" + over;
    const Type averageType = type.isFloat() || result.id == TypeId::Money
                                 ? result
                                 : decimalType(38, std::max<std::uint8_t>(6, type.scale));
    return {type.isFloat() ? average : castText(average, floatType, averageType),
            averageType,
            false,
            {}};
}

Emitter::Fragment Emitter::ranking(const std::string& name, const FunctionCall& call,
                                   const Scope& scope) {
    if (!call.over) {
        raise(10753, {name}, line_);
    }
    if (call.over->orderBy.empty()) {
        raise(4112, {name}, line_);
    }
    std::string inner;
    if (name == "NTILE" && call.arguments.size() == 1) {
        inner = as(valueOf(*call.arguments[0], scope), bigIntType);
    } else if (!call.arguments.empty()) {
        raise(174, {name, name == "NTILE" ? "1" : "0"}, line_);
    }
    std::string lower = name;
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return c == '_' ? c : static_cast<char>(c | 0x20); });
    return {lower + "(" + inner + ") OVER (" + windowText(*call.over, scope) + ")",
            bigIntType,
            false,
            {}};
}

std::string Emitter::windowText(const Window& window, const Scope& scope) {
    std::string text;
    for (std::size_t i = 0; i < window.partitionBy.size(); ++i) {
        Fragment part = valueOf(*window.partitionBy[i], scope);
        const Fragment shown = part;
        text += (i == 0 ? "PARTITION BY " : ", ") + collatedText(shown, placed(std::move(part)));
    }
    for (std::size_t i = 0; i < window.orderBy.size(); ++i) {
        Fragment part = valueOf(*window.orderBy[i].expr, scope);
        const Fragment shown = part;
        text += (i == 0 ? " ORDER BY " : ", ") + collatedText(shown, placed(std::move(part)));
        text += window.orderBy[i].descending ? " DESC" : "";
    }
    if (window.hasFrame) {
        text += window.frameIsRows ? " ROWS BETWEEN " : " RANGE BETWEEN ";
        text += frameBound(window.from, scope) + " AND " + frameBound(window.to, scope);
    }
    return text;
}

std::string Emitter::frameBound(const FrameBound& bound, const Scope& scope) {
    switch (bound.kind) {
    case FrameBound::Kind::UnboundedPreceding:
        return "UNBOUNDED PRECEDING";
    case FrameBound::Kind::Preceding:
        return as(valueOf(*bound.count, scope), bigIntType) + " PRECEDING";
    case FrameBound::Kind::CurrentRow:
        return "CURRENT ROW";
    case FrameBound::Kind::Following:
        return as(valueOf(*bound.count, scope), bigIntType) + " FOLLOWING";
    default:
        return "UNBOUNDED FOLLOWING";
    }
}

std::string Emitter::argument(ArgumentKind kind, const Expr& expr, const Scope& scope, Type& type) {
    if (kind == ArgumentKind::DatePart) {
        const auto* word = std::get_if<ColumnRef>(&expr.node);
        const std::string written = word != nullptr ? referenceText(*word) : "expression";
        const std::string_view part = word != nullptr ? datePartName(written) : std::string_view();
        if (part.empty()) {
            raise(155, {written, "datepart"}, line_);
        }
        return quoteText(part);
    }
    Fragment fragment = valueOf(expr, scope);
    type = fragment.type;
    switch (kind) {
    case ArgumentKind::Text:
    case ArgumentKind::LongText:
    case ArgumentKind::OnlyText:
    case ArgumentKind::OnlyLongText:
        return asText(std::move(fragment));
    case ArgumentKind::Integer:
    case ArgumentKind::OnlyNumber:
        return as(std::move(fragment), intType);
    case ArgumentKind::Number:
        return type.isNumber() ? placed(std::move(fragment)) : as(std::move(fragment), floatType);
    case ArgumentKind::Float:
        return asReal(std::move(fragment));
    case ArgumentKind::DateTime:
        return type.isDateTime() ? placed(std::move(fragment))
                                 : as(std::move(fragment), dateTimeType);
    default:
        return placed(std::move(fragment));
    }
}

Emitter::Fragment Emitter::plainFunction(const FunctionInfo& info, const FunctionCall& call,
                                         const Scope& scope) {
    std::vector<Type> types(call.arguments.size());
    std::string text = std::string(info.sqliteName) + "(";
    for (std::size_t i = 0; i < call.arguments.size(); ++i) {
        const auto letter =
            info.arguments.empty() ? 'a' : info.arguments[std::min(i, info.arguments.size() - 1)];
        text += i == 0 ? "" : ",";
        const auto kind = static_cast<ArgumentKind>(letter);
        text += argument(kind, *call.arguments[i], scope, types[i]);
        if (!accepts(kind, types[i])) {
            const auto name = info.name == "TRIM" ? "Trim" : lowerText(info.name);
            raise(8116, {baseTypeName(types[i].id), std::to_string(i + 1), name}, line_);
        }
        if (info.passesTypes) {
            text += "," + std::to_string(types[i].code());
        }
    }
    return {text + ")", resultType(info, types), false, {}};
}

} // namespace velcro::sql::tsql

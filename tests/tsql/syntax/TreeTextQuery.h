// Expressions and queries of the T-SQL tree as text: the part that statements stand on.
#pragma once

#include "tsql/syntax/AstStatement.h"
#include "tsql/syntax/Keywords.h"

#include <algorithm>

namespace velcro::sql::tsql::tree_text {

inline constexpr std::string_view binaryOps[] = {"+", "-", "*", "/", "%", "&", "|", "^"};
inline constexpr std::string_view compareOps[] = {"=", "<>", "<", "<=", ">", ">="};
inline constexpr std::string_view unaryOps[] = {"+", "-", "~"};
inline constexpr std::string_view setOps[] = {"UNION", "UNION ALL", "EXCEPT", "INTERSECT"};
inline constexpr std::string_view joins[] = {"INNER JOIN", "LEFT JOIN", "RIGHT JOIN", "FULL JOIN",
                                             "CROSS JOIN"};
inline constexpr std::string_view assignOps[] = {
    "=", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^="};

inline std::string doubled(std::string_view text, char mark) {
    std::string result;
    for (const char c : text) {
        result.append(c == mark ? 2 : 1, c);
    }
    return result;
}

inline std::string name(std::string_view text) {
    const std::size_t first = text.starts_with('#') ? 1 : 0;
    bool plain = text.size() > first && (text[first] < '0' || text[first] > '9');
    for (const char c : text.substr(first)) {
        plain = plain &&
                (c == '_' || (c >= '0' && c <= '9') || ((c | 0x20) >= 'a' && (c | 0x20) <= 'z'));
    }
    Token token;
    token.kind = TokenKind::Identifier;
    token.text = text;
    return plain && keywordOf(token) == Keyword::None ? std::string(text)
                                                      : "[" + doubled(text, ']') + "]";
}

template <class List, class Function>
std::string joined(const List& list, Function&& text, std::string_view between = ", ") {
    std::string result;
    for (const auto& entry : list) {
        result += result.empty() ? "" : between;
        result += text(entry);
    }
    return result;
}

inline std::string names(const std::vector<std::string>& list, std::string_view between = ", ") {
    return joined(
        list, [](const std::string& entry) { return name(entry); }, between);
}
inline std::string optionalNames(const std::vector<std::string>& list) {
    return list.empty() ? "" : " (" + names(list) + ")";
}
inline std::string dotted(const std::vector<std::string>& parts) {
    std::string result;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        result += (i > 0 ? "." : "") + (parts[i].empty() ? "" : name(parts[i]));
    }
    return result;
}
inline std::string object(const ObjectName& object) {
    std::vector<std::string> parts{object.name};
    for (const std::string* part : {&object.schema, &object.database, &object.server}) {
        parts.insert(parts.begin(), *part);
    }
    while (parts.size() > 1 && parts.front().empty()) {
        parts.erase(parts.begin());
    }
    // A table variable stands as it is; every other name may begin like one within brackets.
    const bool isVariable = parts.size() == 1 && object.name.starts_with('@');
    return isVariable && name(object.name.substr(1)) == object.name.substr(1) ? object.name
                                                                              : dotted(parts);
}
inline std::string type(const DataType& type) {
    std::string result = (type.schema.empty() ? "" : name(type.schema) + ".") + name(type.name);
    if (type.max) {
        return result + "(max)";
    }
    if (type.first >= 0) {
        result += "(" + std::to_string(type.first);
        result += type.second >= 0 ? ", " + std::to_string(type.second) + ")" : ")";
    }
    return result;
}

/// One function a node of expressions and queries.
struct QueryText
{
    std::string of(const ExprPtr& expr) const { return std::visit(*this, expr->node); }
    std::string list(const std::vector<ExprPtr>& exprs) const {
        return joined(exprs, [this](const ExprPtr& expr) { return of(expr); });
    }
    std::string optional(std::string_view before, const ExprPtr& expr) const {
        return expr ? std::string(before) + of(expr) : "";
    }

    std::string operator()(const Literal& node) const {
        switch (node.kind) {
        case LiteralKind::String:
            return "'" + doubled(node.text, '\'') + "'";
        case LiteralKind::NationalString:
            return "N'" + doubled(node.text, '\'') + "'";
        case LiteralKind::Money:
            return "$" + node.text;
        default:
            return node.text;
        }
    }
    std::string operator()(const NullLiteral&) const { return "NULL"; }
    std::string operator()(const DefaultValue&) const { return "DEFAULT"; }
    std::string operator()(const Variable& node) const { return node.name; }
    std::string operator()(const GlobalVariable& node) const { return node.name; }
    std::string operator()(const NamedParameter& node) const { return ":" + node.name; }
    std::string operator()(const ColumnRef& node) const { return dotted(node.parts); }
    std::string operator()(const Star& node) const {
        return node.qualifier.empty() ? "*" : dotted(node.qualifier) + ".*";
    }
    std::string operator()(const Unary& node) const {
        return "(" + std::string(unaryOps[int(node.op)]) + " " + of(node.operand) + ")";
    }
    std::string operator()(const Binary& node) const {
        return "(" + of(node.left) + " " + std::string(binaryOps[int(node.op)]) + " " +
               of(node.right) + ")";
    }
    std::string operator()(const Comparison& node) const {
        return "(" + of(node.left) + " " + std::string(compareOps[int(node.op)]) + " " +
               of(node.right) + ")";
    }
    std::string operator()(const Logical& node) const {
        return "(" +
               joined(
                   node.operands, [this](const ExprPtr& expr) { return of(expr); },
                   node.isAnd ? " AND " : " OR ") +
               ")";
    }
    std::string operator()(const Not& node) const { return "(NOT " + of(node.operand) + ")"; }
    std::string operator()(const IsNull& node) const {
        return "(" + of(node.operand) + (node.negated ? " IS NOT NULL)" : " IS NULL)");
    }
    std::string operator()(const Between& node) const {
        return "(" + of(node.operand) + no(node.negated) + " BETWEEN " + of(node.low) + " AND " +
               of(node.high) + ")";
    }
    std::string operator()(const InList& node) const {
        return "(" + of(node.operand) + no(node.negated) + " IN (" + list(node.values) + "))";
    }
    std::string operator()(const InQuery& node) const {
        return "(" + of(node.operand) + no(node.negated) + " IN (" + query(*node.query) + "))";
    }
    std::string operator()(const Like& node) const {
        return "(" + of(node.operand) + no(node.negated) + " LIKE " + of(node.pattern) +
               optional(" ESCAPE ", node.escape) + ")";
    }
    std::string operator()(const Exists& node) const {
        return "EXISTS (" + query(*node.query) + ")";
    }
    std::string operator()(const Quantified& node) const {
        return "(" + of(node.operand) + " " + std::string(compareOps[int(node.op)]) +
               (node.all ? " ALL (" : " ANY (") + query(*node.query) + "))";
    }
    std::string operator()(const ScalarQuery& node) const { return "(" + query(*node.query) + ")"; }
    std::string operator()(const Case& node) const {
        std::string result = "CASE" + optional(" ", node.operand);
        for (const Case::Branch& branch : node.branches) {
            result += " WHEN " + of(branch.when) + " THEN " + of(branch.then);
        }
        return result + optional(" ELSE ", node.otherwise) + " END";
    }
    std::string operator()(const Cast& node) const {
        return std::string(node.isTry ? "TRY_" : "") + "CAST(" + of(node.operand) + " AS " +
               type(node.type) + ")";
    }
    std::string operator()(const Convert& node) const {
        return std::string(node.isTry ? "TRY_" : "") + "CONVERT(" + type(node.type) + ", " +
               of(node.operand) + optional(", ", node.style) + ")";
    }
    std::string operator()(const Collate& node) const {
        return of(node.operand) + " COLLATE " + name(node.collation);
    }
    std::string operator()(const FunctionCall& node) const {
        const std::string capital = upper(node.name.name);
        const auto isOneOf = [&](std::initializer_list<std::string_view> words) {
            return node.name.schema.empty() &&
                   std::find(words.begin(), words.end(), capital) != words.end();
        };
        const bool niladic =
            isOneOf({"CURRENT_TIMESTAMP", "USER", "CURRENT_USER", "SESSION_USER", "SYSTEM_USER"});
        const bool reserved = niladic || isOneOf({"LEFT", "RIGHT", "COALESCE", "NULLIF"});
        const std::string called = reserved ? node.name.name : object(node.name);
        return called +
               (niladic ? ""
                        : "(" + std::string(node.distinct ? "DISTINCT " : "") +
                              list(node.arguments) + ")") +
               (node.over ? " OVER (" + window(*node.over) + ")" : "");
    }

    static std::string no(bool negated) { return negated ? " NOT" : ""; }
    std::string order(const std::vector<OrderItem>& items) const {
        return "ORDER BY " + joined(items, [this](const OrderItem& item) {
                   return of(item.expr) + (item.descending ? " DESC" : "");
               });
    }
    std::string bound(const FrameBound& bound) const {
        static constexpr std::string_view kinds[] = {
            "UNBOUNDED PRECEDING", "PRECEDING", "CURRENT ROW", "FOLLOWING", "UNBOUNDED FOLLOWING"};
        return (bound.count ? of(bound.count) + " " : "") + std::string(kinds[int(bound.kind)]);
    }
    std::string window(const Window& window) const {
        std::string result;
        if (!window.partitionBy.empty()) {
            result = "PARTITION BY " + list(window.partitionBy);
        }
        if (!window.orderBy.empty()) {
            result += (result.empty() ? "" : " ") + order(window.orderBy);
        }
        if (window.hasFrame) {
            result += std::string(window.frameIsRows ? " ROWS" : " RANGE") + " BETWEEN " +
                      bound(window.from) + " AND " + bound(window.to);
        }
        return result;
    }

    // ---- queries ----
    std::string item(const SelectItem& item) const {
        return (item.variable.empty() ? "" : item.variable + " = ") + of(item.expr) +
               (item.alias.empty() ? "" : " AS " + name(item.alias));
    }
    std::string items(const std::vector<SelectItem>& list) const {
        return joined(list, [this](const SelectItem& entry) { return item(entry); });
    }
    static std::string hints(const TableHints& hints) {
        const auto hint = [](const std::string& name) {
            return name == "INDEX" ? "INDEX = 0" : name; // which index is not kept
        };
        return hints.names.empty() ? "" : " WITH (" + joined(hints.names, hint) + ")";
    }
    static std::string alias(const std::string& text) {
        return text.empty() ? "" : " AS " + name(text);
    }
    std::string rows(const std::vector<std::vector<ExprPtr>>& rows) const {
        return "VALUES " + joined(rows, [this](const auto& row) { return "(" + list(row) + ")"; });
    }
    std::string operator()(const NamedTable& node) const {
        return object(node.name) + alias(node.alias) + hints(node.hints);
    }
    std::string operator()(const DerivedTable& node) const {
        return "(" + query(*node.query) + ")" + alias(node.alias) + optionalNames(node.columns);
    }
    std::string operator()(const ValuesTable& node) const {
        return "(" + rows(node.rows) + ")" + alias(node.alias) + optionalNames(node.columns);
    }
    std::string operator()(const Join& node) const {
        return source(node.left) + " " + std::string(joins[int(node.kind)]) + " " +
               bracketedJoin(node.right) + optional(" ON ", node.on);
    }
    std::string source(const TableSourcePtr& source) const {
        return std::visit(*this, source->node);
    }
    std::string bracketedJoin(const TableSourcePtr& right) const {
        const bool nested = std::holds_alternative<Join>(right->node);
        return nested ? "(" + source(right) + ")" : source(right);
    }
    std::string from(const std::vector<TableSourcePtr>& sources) const {
        return sources.empty() ? ""
                               : " FROM " + joined(sources, [this](const TableSourcePtr& entry) {
                                     return source(entry);
                                 });
    }
    std::string top(const ExprPtr& count) const { return !count ? "" : " TOP (" + of(count) + ")"; }
    std::string operator()(const SelectCore& node) const {
        return "SELECT" + std::string(node.distinct ? " DISTINCT" : "") + top(node.top) + " " +
               items(node.items) + (node.into ? " INTO " + object(*node.into) : "") +
               from(node.from) + optional(" WHERE ", node.where) +
               (node.groupBy.empty() ? "" : " GROUP BY " + list(node.groupBy)) +
               optional(" HAVING ", node.having);
    }
    std::string operator()(const SetOperation& node) const {
        return "(" + body(*node.left) + " " + std::string(setOps[int(node.op)]) + " " +
               body(*node.right) + ")";
    }
    std::string body(const QueryBody& body) const { return std::visit(*this, body.node); }
    std::string query(const Query& query) const {
        const auto* set = std::get_if<SetOperation>(&query.body->node);
        std::string result = body(*query.body);
        if (set) {
            result = result.substr(1, result.size() - 2); // the outermost needs no brackets
        }
        result += query.orderBy.empty() ? "" : " " + order(query.orderBy);
        result += query.offset ? " OFFSET " + of(query.offset) + " ROWS" : "";
        return result + (query.fetch ? " FETCH NEXT " + of(query.fetch) + " ROWS ONLY" : "");
    }
    std::string with(const std::vector<CommonTable>& tables) const {
        return tables.empty() ? "" : "WITH " + joined(tables, [this](const CommonTable& table) {
                                         return name(table.name) + optionalNames(table.columns) +
                                                " AS (" + query(*table.query) + ")";
                                     }) + " ";
    }
    static std::string option(const QueryHints& hints) {
        return hints.empty() ? "" : " OPTION (" + joined(hints, [](const std::string& hint) {
                                        return hint;
                                    }) + ")";
    }
};

} // namespace velcro::sql::tsql::tree_text

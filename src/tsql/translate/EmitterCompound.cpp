// UNION and its kin, and the common tables in front of a statement.
#include "tsql/translate/Emitter.h"

#include "tsql/translate/SqliteText.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace velcro::sql::tsql {

namespace {

const char* signOf(SetOperator op) {
    switch (op) {
    case SetOperator::Union:
        return " UNION ";
    case SetOperator::UnionAll:
        return " UNION ALL ";
    case SetOperator::Except:
        return " EXCEPT ";
    default:
        return " INTERSECT ";
    }
}

/// The alias under which a FROM names the table; blank when it does not.
std::string aliasOf(std::string_view table, const TableSource& source) {
    if (const auto* named = std::get_if<NamedTable>(&source.node)) {
        const bool isIt = named->name.schema.empty() && sameName(named->name.name, table);
        return !isIt ? "" : named->alias.empty() ? named->name.name : named->alias;
    }
    const auto* join = std::get_if<Join>(&source.node);
    const std::string left = join != nullptr ? aliasOf(table, *join->left) : "";
    return join == nullptr || !left.empty() ? left : aliasOf(table, *join->right);
}

std::string aliasOf(std::string_view table, const SelectCore& select) {
    for (const auto& source : select.from) {
        if (const auto alias = aliasOf(table, *source); !alias.empty()) {
            return alias;
        }
    }
    return {};
}

bool namesItself(const QueryBody& body, std::string_view table) {
    const auto* operation = std::get_if<SetOperation>(&body.node);
    if (operation == nullptr) {
        return !aliasOf(table, std::get<SelectCore>(body.node)).empty();
    }
    return namesItself(*operation->left, table) || namesItself(*operation->right, table);
}

int recursionLimit(const QueryHints& hints) {
    constexpr std::string_view word = "MAXRECURSION ";
    constexpr int most = 32767;
    int limit = Recursion().limit;
    for (const std::string_view hint : hints) {
        if (!hint.starts_with(word)) {
            continue;
        }
        const auto written = hint.substr(word.size());
        const auto read = std::from_chars(written.data(), written.data() + written.size(), limit);
        if (read.ec != std::errc() || limit > most) {
            raise(310, {written});
        }
    }
    return limit;
}

constexpr std::string_view levelColumn = "sys$level";

/// How deep a row of a recursive table lies. SQLite would go on for ever where rows lead to each
/// other in a circle; the server counts.
std::string levelText(const std::string& alias, int limit) {
    if (alias.empty()) {
        return "0";
    }
    const std::string above = quoteName(alias) + "." + quoteName(levelColumn);
    const std::string next = above + " + 1";
    const std::string most = std::to_string(limit);
    return limit == 0 ? next
                      : "CASE WHEN " + above + " < " + most + " THEN " + next +
                            " ELSE ts_raise(530, '" + most + "') END";
}

const QueryBody& firstBody(const QueryBody& body) {
    const auto* operation = std::get_if<SetOperation>(&body.node);
    return operation != nullptr ? firstBody(*operation->left) : body;
}

} // namespace

/// The rows of a query as a table of their own, where SQLite takes no such query directly.
Emitter::Core Emitter::wrapped(QueryText rows) {
    Core core;
    core.head = "SELECT ";
    core.tail = " FROM (" + rows.text + ") AS \"part\"";
    for (const auto& column : rows.columns) {
        const std::string text = "\"part\"." + quoteName(column.name);
        core.items.push_back({column.name, {text, column.type, column.type.isCollated(), {}}, {}});
    }
    return core;
}

void Emitter::flatten(const QueryBody& body, const Scope* outer, const char* sign,
                      std::vector<std::pair<const char*, Core>>& parts,
                      const Recursion& recursion) {
    if (const auto* operation = std::get_if<SetOperation>(&body.node)) {
        flatten(*operation->left, outer, sign, parts, recursion);
        const auto before = parts.size();
        flatten(*operation->right, outer, signOf(operation->op), parts, recursion);
        if (parts.size() > before + 1) {
            raiseUnsupported("a UNION inside brackets on the right of another", line_);
        }
        return;
    }
    const auto& select = std::get<SelectCore>(body.node);
    std::string none;
    Core part = core(select, outer, nullptr, none);
    if (!recursion.table.empty()) {
        const std::string alias = aliasOf(recursion.table, select);
        if (!alias.empty() && signOf(SetOperator::UnionAll) != std::string_view(sign)) {
            raise(252, {recursion.table}, line_);
        }
        if (!alias.empty() && select.top) {
            raise(461, {recursion.table}, line_);
        }
        const std::string level = levelText(alias, recursion.limit);
        part.items.push_back({std::string(levelColumn), {level, intType, false, {}}, {}});
    }
    if (select.top) {
        const Scope empty;
        const std::string limit = limitText(&select, Query{}, empty);
        QueryText rows = joined(std::move(part), true, {}, {});
        rows.text += limit;
        part = wrapped(std::move(rows));
    }
    parts.emplace_back(sign, std::move(part));
}

Emitter::QueryText Emitter::compound(const Query& query, const Scope* outer, bool nested,
                                     std::span<const std::string> names) {
    std::vector<std::pair<const char*, Core>> parts;
    flatten(*query.body, outer, "", parts, std::exchange(recursion_, {}));
    std::vector<Type> types;
    for (const auto& item : parts[0].second.items) {
        types.push_back(item.value.type);
    }
    bool distinct = false;
    for (const auto& [sign, part] : parts) {
        if (part.items.size() != types.size()) {
            raise(205, {}, line_);
        }
        distinct = distinct || (*sign != '\0' && std::string_view(sign) != " UNION ALL ");
        for (std::size_t i = 0; i < types.size(); ++i) {
            types[i] = commonType(types[i], part.items[i].value.type);
        }
    }
    QueryText result;
    for (auto& [sign, part] : parts) {
        QueryText text = joined(std::move(part), nested || distinct, types, names);
        result.text += sign + text.text;
        if (result.columns.empty()) {
            result.columns = std::move(text.columns);
        }
    }
    result.text += compoundOrder(query.orderBy, result.columns);
    result.text += limitText(nullptr, query, Scope{});
    return result;
}

std::string Emitter::compoundOrder(const std::vector<OrderItem>& order,
                                   const std::vector<ResultColumn>& columns) {
    std::string text;
    for (const auto& item : order) {
        const auto* position = std::get_if<Literal>(&item.expr->node);
        const auto* reference = std::get_if<ColumnRef>(&item.expr->node);
        std::size_t ordinal = 0;
        if (position != nullptr && position->kind == LiteralKind::Integer) {
            ordinal = std::stoull(position->text);
        } else if (reference != nullptr) {
            const auto found = std::find_if(columns.begin(), columns.end(), [&](const auto& c) {
                return sameName(c.name, reference->parts.back());
            });
            ordinal = found == columns.end() ? 0 : found - columns.begin() + 1;
        }
        if (ordinal < 1 || ordinal > columns.size()) {
            raise(104, {}, line_);
        }
        text += (text.empty() ? " ORDER BY " : ", ") + std::to_string(ordinal);
        if (columns[ordinal - 1].type.isCollated()) {
            text += " COLLATE " + std::string(collationName);
        }
        text += item.descending ? " DESC" : "";
    }
    return text;
}

/// The columns of a table that may name itself: those of its first SELECT.
std::vector<SourceColumn> Emitter::anchorColumns(const CommonTable& table) {
    const auto before = binds_.size();
    std::string none;
    const auto& select = std::get<SelectCore>(firstBody(*table.query->body).node);
    const QueryText anchor = joined(core(select, nullptr, nullptr, none), true, {}, table.columns);
    binds_.resize(before);
    std::vector<SourceColumn> columns;
    for (const auto& column : anchor.columns) {
        if (column.name.empty()) {
            raise(8155, {std::to_string(columns.size() + 1), table.name}, line_);
        }
        columns.push_back({column.name, column.type});
    }
    if (!table.columns.empty() && table.columns.size() != columns.size()) {
        raise(table.columns.size() < columns.size() ? 8158 : 8159, {table.name}, line_);
    }
    return columns;
}

std::string Emitter::withText(const std::vector<CommonTable>& tables, const QueryHints& hints) {
    const int limit = recursionLimit(hints);
    std::string text;
    for (const auto& table : tables) {
        commonTables_.push_back({table.name, anchorColumns(table)});
        if (namesItself(*table.query->body, table.name)) {
            if (std::holds_alternative<SelectCore>(table.query->body->node)) {
                raise(252, {table.name}, line_);
            }
            recursion_ = {table.name, limit};
        }
        const QueryText rows = query(*table.query, nullptr, true, table.columns);
        text += text.empty() ? "WITH RECURSIVE " : ", ";
        text += quoteName(table.name) + " AS (" + rows.text + ")";
        auto& columns = commonTables_.back().columns;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            columns[i].type = rows.columns[i].type;
        }
    }
    return text.empty() ? text : text + " ";
}

} // namespace velcro::sql::tsql

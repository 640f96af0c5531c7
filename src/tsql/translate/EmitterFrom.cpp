// FROM: stored tables, views, the server's catalogue, derived tables and joins.
#include "tsql/translate/Emitter.h"

#include "tsql/translate/SqliteText.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>

namespace velcro::sql::tsql {

namespace {

std::string writtenName(const ObjectName& name) {
    std::string text;
    for (const auto* part : {&name.server, &name.database, &name.schema}) {
        if (!part->empty() || !text.empty()) {
            text += *part + ".";
        }
    }
    return text + name.name;
}

std::string aliasOr(const std::string& alias, const std::string& name) {
    return alias.empty() ? name : alias;
}

std::vector<SourceColumn> columnsOf(const std::vector<ResultColumn>& columns,
                                    const std::string& alias, int line) {
    std::vector<SourceColumn> result;
    for (const auto& column : columns) {
        if (column.name.empty()) {
            raise(8155, {std::to_string(result.size() + 1), alias}, line);
        }
        result.push_back({column.name, column.type});
    }
    return result;
}

} // namespace

std::string Emitter::fromText(const std::vector<TableSourcePtr>& from, Scope& scope) {
    std::string text;
    for (const auto& source : from) {
        text += (text.empty() ? " FROM " : ", ") + sourceText(*source, scope);
    }
    return text;
}

std::string Emitter::sourceText(const TableSource& source, Scope& scope) {
    return std::visit([&](const auto& node) { return emitSource(node, scope); }, source.node);
}

const TableDef& Emitter::requireTable(const ObjectName& name) const {
    const TableDef* table = names_.table(name);
    if (table == nullptr) {
        raise(208, {writtenName(name)}, line_);
    }
    return *table;
}

Source Emitter::tableSource(const TableDef& table, std::string alias) {
    Source source{std::move(alias), {}, &table};
    for (const auto& column : table.columns) {
        source.columns.push_back({column.name, column.type});
    }
    return source;
}

std::string Emitter::emitSource(const NamedTable& named, Scope& scope) {
    const std::string alias = aliasOr(named.alias, named.name.name);
    const auto common =
        std::find_if(commonTables_.rbegin(), commonTables_.rend(), [&](const auto& table) {
            return named.name.schema.empty() && sameName(table.name, named.name.name);
        });
    if (common != commonTables_.rend()) {
        scope.add({alias, common->columns, nullptr});
        return quoteName(common->name) + " AS " + quoteName(alias);
    }
    const TableDef* table = names_.table(named.name);
    const bool changes =
        !changed_.empty() && (sameName(alias, changed_) || sameName(named.name.name, changed_));
    if (const RoutineDef* changed = changes ? names_.view(named.name) : nullptr) {
        return emitView(*changed, *table, alias, scope);
    }
    const SystemView* view =
        table == nullptr ? systemView(named.name.schema, named.name.name) : nullptr;
    if (view == nullptr) {
        scope.add(tableSource(requireTable(named.name), alias));
        return quoteName(table->name) + " AS " + quoteName(alias);
    }
    Source source{alias, {}, nullptr};
    for (const auto& [name, type] : view->columns) {
        source.columns.push_back({std::string(name), type});
    }
    scope.add(std::move(source));
    return "(" + view->text + ") AS " + quoteName(alias);
}

std::string Emitter::emitSource(const DerivedTable& derived, Scope& scope) {
    const QueryText rows = query(*derived.query, nullptr, true, derived.columns);
    if (!derived.columns.empty() && derived.columns.size() != rows.columns.size()) {
        raise(derived.columns.size() < rows.columns.size() ? 8158 : 8159, {derived.alias}, line_);
    }
    scope.add({derived.alias, columnsOf(rows.columns, derived.alias, line_), nullptr});
    return "(" + rows.text + ") AS " + quoteName(derived.alias);
}

std::string Emitter::emitSource(const ValuesTable& values, Scope& scope) {
    const Scope none;
    std::vector<std::vector<Fragment>> rows;
    std::vector<Type> types(values.columns.size());
    for (const auto& row : values.rows) {
        if (row.size() != types.size()) {
            raise(row.size() > types.size() ? 8158 : 8159, {values.alias}, line_);
        }
        std::vector<Fragment> cells;
        for (std::size_t i = 0; i < row.size(); ++i) {
            cells.push_back(valueOf(*row[i], none));
            types[i] = commonType(types[i], cells.back().type);
        }
        rows.push_back(std::move(cells));
    }
    Source source{values.alias, {}, nullptr};
    for (std::size_t i = 0; i < types.size(); ++i) {
        source.columns.push_back({values.columns[i], types[i]});
    }
    std::string text;
    for (auto& row : rows) {
        text += text.empty() ? "SELECT " : " UNION ALL SELECT ";
        for (std::size_t i = 0; i < row.size(); ++i) {
            const Fragment shown{{}, types[i], row[i].collated, {}};
            text += i == 0 ? "" : ",";
            text += collatedText(shown, as(std::move(row[i]), types[i]));
            text += " AS " + quoteName(values.columns[i]);
        }
    }
    scope.add(std::move(source));
    return "(" + text + ") AS " + quoteName(values.alias);
}

std::string Emitter::emitSource(const Join& join, Scope& scope) {
    std::string text = sourceText(*join.left, scope);
    switch (join.kind) {
    case JoinKind::Inner:
    case JoinKind::Cross:
        text += " JOIN ";
        break;
    case JoinKind::Left:
        text += " LEFT JOIN ";
        break;
    case JoinKind::Right:
        text += " RIGHT JOIN ";
        break;
    case JoinKind::Full:
        text += " FULL JOIN ";
        break;
    }
    const std::string right = sourceText(*join.right, scope);
    text += std::holds_alternative<Join>(join.right->node) ? "(" + right + ")" : right;
    if (join.on) {
        text += " ON " + conditionOf(*join.on, scope);
    }
    return text;
}

} // namespace velcro::sql::tsql

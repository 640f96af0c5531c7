// INSERT of rows that are written out, of a query's rows, and of rows that another statement gave.
#include "tsql/translate/Emitter.h"

#include "tsql/translate/SqliteText.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>

namespace velcro::sql::tsql {

Translation Emitter::finish(std::string text, std::string verb, std::vector<ResultColumn> columns) {
    Translation result;
    result.text = withoutNumbers(text, binds_, result.binds);
    result.verb = std::move(verb);
    result.columns = std::move(columns);
    result.assigns = std::any_of(result.columns.begin(), result.columns.end(),
                                 [](const auto& column) { return !column.variable.empty(); });
    return result;
}

std::vector<const ColumnDef*> Emitter::insertColumns(const std::vector<std::string>& names,
                                                     const TableDef& table) {
    const bool setsIdentity = names_.identityInsert(table);
    std::vector<const ColumnDef*> columns;
    for (const auto& name : names) {
        const ColumnDef* column = table.column(name);
        if (column == nullptr) {
            raise(207, {name}, line_);
        }
        if (std::find(columns.begin(), columns.end(), column) != columns.end()) {
            raise(264, {name}, line_);
        }
        if (column->identity && !setsIdentity) {
            raise(544, {table.name}, line_);
        }
        columns.push_back(column);
    }
    if (names.empty()) {
        for (const auto& column : table.columns) {
            if (!column.identity) {
                columns.push_back(&column);
            }
        }
    }
    return columns;
}

std::string Emitter::insertHead(const TableDef& table,
                                const std::vector<const ColumnDef*>& columns) {
    std::string text = "INSERT INTO " + quoteName(table.name) + " (";
    for (std::size_t i = 0; i < columns.size(); ++i) {
        text += (i == 0 ? "" : ",") + quoteName(columns[i]->name);
    }
    return text + ") ";
}

Translation Emitter::insert(const Insert& statement) {
    std::vector<std::string> names;
    const TableDef& table = insertTarget(statement, names);
    std::string text = withText(statement.with, statement.hints);
    if (statement.rows.empty() && !statement.query) {
        text += "INSERT INTO " + quoteName(table.name) + " DEFAULT VALUES";
    } else {
        const auto columns = insertColumns(names, table);
        text += insertHead(table, columns);
        text += statement.query ? insertQuery(*statement.query, table, columns)
                                : insertRows(statement, table, columns);
    }
    std::vector<ResultColumn> output;
    if (!statement.output.empty()) {
        text += returning(statement.output, table, "inserted", output);
    }
    Translation result = finish(std::move(text), "INSERT", std::move(output));
    result.setsIdentity = table.identityColumn() != nullptr;
    result.manyRows = statement.query || statement.rows.size() > 1;
    return result;
}

std::string Emitter::rowValue(const Expr& expr, const TableDef& table, const ColumnDef& column,
                              const Scope& scope) {
    if (std::holds_alternative<DefaultValue>(expr.node)) {
        return column.defaultValue ? column.defaultValue->sqlite : "NULL";
    }
    return stored(valueOf(expr, scope), table, column);
}

std::string Emitter::insertRows(const Insert& statement, const TableDef& table,
                                const std::vector<const ColumnDef*>& columns) {
    const Scope none;
    std::string text = "VALUES ";
    for (const auto& row : statement.rows) {
        if (row.size() != columns.size()) {
            const int number = row.size() < columns.size() ? 109 : 110;
            raise(statement.columns.empty() ? 213 : number, {}, line_);
        }
        text += &row == &statement.rows.front() ? "(" : ",(";
        for (std::size_t i = 0; i < row.size(); ++i) {
            text += i == 0 ? "" : ",";
            text += rowValue(*row[i], table, *columns[i], none);
        }
        text += ")";
    }
    return text;
}

std::string Emitter::insertQuery(const Query& rows, const TableDef& table,
                                 const std::vector<const ColumnDef*>& columns) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        names.push_back("c" + std::to_string(i));
    }
    const QueryText given = query(rows, nullptr, true, names);
    if (given.columns.size() != columns.size()) {
        raise(given.columns.size() < columns.size() ? 120 : 121, {}, line_);
    }
    std::string text = "SELECT ";
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::string cell = "\"given\"." + quoteName(names[i]);
        text += i == 0 ? "" : ",";
        text += stored({cell, given.columns[i].type, true, {}}, table, *columns[i]);
    }
    return text + " FROM (" + given.text + ") AS \"given\"";
}

Translation Emitter::insertBound(const Insert& statement, std::span<const ResultColumn> given) {
    std::vector<std::string> names;
    const TableDef& table = insertTarget(statement, names);
    const auto columns = insertColumns(names, table);
    if (given.size() != columns.size()) {
        raise(213, {}, line_);
    }
    std::string text = insertHead(table, columns) + "VALUES (";
    for (std::size_t i = 0; i < columns.size(); ++i) {
        Bind bind;
        bind.source = Bind::Source::Given;
        bind.index = static_cast<std::uint32_t>(i);
        bind.from = given[i].type;
        text += i == 0 ? "" : ",";
        text += stored({"", given[i].type, false, std::move(bind)}, table, *columns[i]);
    }
    Translation result = finish(text + ")", "INSERT");
    result.setsIdentity = table.identityColumn() != nullptr;
    return result;
}

/// OUTPUT inserted.x: the columns of the row as it is after an insert or update, or was before a
/// delete. What an update replaced is gone by then.
std::string Emitter::returning(const std::vector<SelectItem>& output, const TableDef& table,
                               std::string_view pseudoTable, std::vector<ResultColumn>& columns) {
    Scope scope;
    Source source = tableSource(table, std::string(pseudoTable));
    scope.add(std::move(source));
    Core core;
    for (const auto& item : output) {
        addItem(item, scope, core);
    }
    std::string text;
    for (auto& item : core.items) {
        columns.push_back({item.name, item.value.type, item.variable});
        text += text.empty() ? " RETURNING " : ",";
        const std::string qualifier = quoteName(pseudoTable) + ".";
        std::string cell = placed(std::move(item.value));
        for (auto at = cell.find(qualifier); at != std::string::npos; at = cell.find(qualifier)) {
            cell.replace(at, qualifier.size(), "");
        }
        text += cell;
    }
    return text;
}

} // namespace velcro::sql::tsql

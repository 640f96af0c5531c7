// UPDATE and DELETE, over one table or over the rows of a join.
#include "tsql/translate/Emitter.h"

#include "tsql/translate/SqliteText.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>

namespace velcro::sql::tsql {

std::string Emitter::assignedValue(const Assignment& assignment, const ColumnDef& column,
                                   const Source& target, const Scope& scope) {
    if (assignment.op == AssignOp::Set) {
        return rowValue(*assignment.value, *target.table, column, scope);
    }
    const auto op = static_cast<BinaryOp>(static_cast<int>(assignment.op) - 1);
    Fragment old = columnFragment(target, {assignment.column.back(), column.type});
    return stored(arithmetic(op, std::move(old), valueOf(*assignment.value, scope)), *target.table,
                  column);
}

Emitter::Changes Emitter::changes(const std::vector<Assignment>& set, const Source& target,
                                  const Scope& scope) {
    Changes result;
    for (const auto& assignment : set) {
        if (assignment.column.empty()) {
            raiseUnsupported("SET of a variable without a column in an UPDATE", line_);
        }
        const ColumnDef* column = &changedColumn(target, assignment.column.back());
        if (column->identity) {
            raise(8102, {column->name}, line_);
        }
        const bool twice = std::any_of(result.columns.begin(), result.columns.end(),
                                       [&](const auto& done) { return done.first == column; });
        if (twice) {
            raise(264, {column->name}, line_);
        }
        result.columns.emplace_back(column, assignedValue(assignment, *column, target, scope));
        if (!assignment.variable.empty()) {
            result.variables.push_back({column->name, column->type, assignment.variable});
        }
    }
    return result;
}

std::string Emitter::returningVariables(const std::vector<ResultColumn>& variables) {
    std::string text;
    for (const auto& variable : variables) {
        text += (text.empty() ? " RETURNING " : ",") + quoteName(variable.name);
    }
    return text;
}

Translation Emitter::update(const Update& statement) {
    const std::string with = withText(statement.with, statement.hints);
    const bool plain = statement.from.empty() && names_.view(statement.target) == nullptr;
    if (plain && with.empty()) {
        return updatePlain(statement, requireTable(statement.target));
    }
    if (!statement.output.empty() || statement.top) {
        raiseUnsupported("OUTPUT or TOP in an UPDATE with FROM", line_);
    }
    Scope scope;
    std::string from = changedText(statement.from, statement.target.name, scope);
    const Source& target = targetOf(statement.target, scope, from);
    if (statement.where) {
        from += " WHERE " + conditionOf(*statement.where, scope);
    }
    return updateJoined(target, changes(statement.set, target, scope), with, from);
}

Translation Emitter::updatePlain(const Update& statement, const TableDef& table) {
    Scope scope;
    const Source& target = scope.add(tableSource(table, table.name));
    const Changes changed = changes(statement.set, target, scope);
    std::string text = "UPDATE " + quoteName(table.name) + " SET ";
    for (const auto& [column, value] : changed.columns) {
        text += column == changed.columns.front().first ? "" : ",";
        text += quoteName(column->name) + "=" + value;
    }
    std::string where;
    if (statement.where) {
        where = " WHERE " + conditionOf(*statement.where, scope);
    }
    if (statement.top) {
        const std::string name = quoteName(table.name);
        where = " WHERE " + name + ".rowid IN (SELECT " + name + ".rowid FROM " + name + where +
                topText(*statement.top, scope) + ")";
    }
    text += where;
    std::vector<ResultColumn> output = changed.variables;
    text += returningVariables(changed.variables);
    if (!statement.output.empty()) {
        text += returning(statement.output, table, "inserted", output);
    }
    Translation result = finish(std::move(text), "UPDATE", std::move(output));
    result.manyRows = true;
    return result;
}

/// The target by its alias or by its own name in FROM; a FROM without it is joined to it.
const Source& Emitter::targetOf(const ObjectName& target, Scope& scope, std::string& from) {
    const Source* found = scope.source(target.name);
    for (const auto& source : scope.sources()) {
        const bool stored = source.table != nullptr && source.view.empty();
        const bool same = sameName(stored ? source.table->name : source.view, target.name);
        found = found == nullptr && same ? &source : found;
    }
    if (found == nullptr) {
        const TableDef& table = requireTable(target);
        const RoutineDef* view = names_.view(target);
        from += from.empty() ? " FROM " : " JOIN ";
        from += view != nullptr ? emitView(*view, table, table.name, scope)
                                : quoteName(scope.add(tableSource(table, table.name)).alias);
        found = &scope.sources().back();
    }
    if (found->table == nullptr || found->table->isView) {
        raiseUnsupported("a change of rows through " + target.name, line_);
    }
    return *found;
}

Translation Emitter::updateJoined(const Source& target, const Changes& changes,
                                  const std::string& with, const std::string& from) {
    const std::string table = quoteName(target.table->name);
    std::string set;
    std::string values = quoteName(target.alias) + ".rowid AS \"id\"";
    for (std::size_t i = 0; i < changes.columns.size(); ++i) {
        const std::string name = "\"v" + std::to_string(i) + "\"";
        set += i == 0 ? "" : ",";
        set += quoteName(changes.columns[i].first->name) + "=\"new\"." + name;
        values += "," + changes.columns[i].second + " AS " + name;
    }
    std::string text = with + "UPDATE " + table + " SET " + set;
    text +=
        " FROM (SELECT " + values + from + ") AS \"new\" WHERE " + table + ".rowid=\"new\".\"id\"";
    text += returningVariables(changes.variables);
    Translation result = finish(std::move(text), "UPDATE", changes.variables);
    result.manyRows = true;
    return result;
}

std::string Emitter::removeText(const TableDef& table, const std::string& alias,
                                const std::string& from) {
    return "DELETE FROM " + quoteName(table.name) + " WHERE rowid IN (SELECT " + quoteName(alias) +
           ".rowid" + from + ")";
}

Translation Emitter::remove(const Delete& statement) {
    const std::string with = withText(statement.with, statement.hints);
    Scope scope;
    std::string from = changedText(statement.from, statement.target.name, scope);
    const Source& target = targetOf(statement.target, scope, from);
    const bool plain = statement.from.empty() && !statement.top && target.view.empty();
    if (!statement.output.empty() && !target.view.empty()) {
        raiseUnsupported("OUTPUT of a change through a view", line_);
    }
    std::string where;
    if (statement.where) {
        where = " WHERE " + conditionOf(*statement.where, scope);
    }
    if (statement.top) {
        where += topText(*statement.top, scope);
    }
    std::string text = with;
    text += plain ? "DELETE FROM " + quoteName(target.table->name) + where
                  : removeText(*target.table, target.alias, from + where);
    std::vector<ResultColumn> output;
    if (!statement.output.empty()) {
        text += returning(statement.output, *target.table, "deleted", output);
    }
    Translation result = finish(std::move(text), "DELETE", std::move(output));
    result.manyRows = true;
    return result;
}

} // namespace velcro::sql::tsql

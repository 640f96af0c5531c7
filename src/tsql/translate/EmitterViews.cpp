// Rows changed through a view of one table: the view stands in FROM as the rows of its table with
// their row numbers, and its columns for those of the table.
#include "tsql/translate/Emitter.h"

#include "tsql/syntax/Parser.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>

namespace velcro::sql::tsql {

/// The one SELECT of a view whose rows are rows of a table; the server's refusals for others.
const SelectCore& Emitter::changeableRows(const Select& select, const std::string& view) const {
    const QueryBody& body = *select.query->body;
    if (const auto* operation = std::get_if<SetOperation>(&body.node)) {
        raise(operation->op == SetOperator::UnionAll ? 4436 : 4426, {view}, line_);
    }
    const auto& core = std::get<SelectCore>(body.node);
    if (core.distinct || groups(core)) {
        raise(4403, {view}, line_);
    }
    const bool one =
        core.from.size() == 1 && std::holds_alternative<NamedTable>(core.from.front()->node);
    if (!one && !core.from.empty()) {
        raise(4405, {view}, line_);
    }
    if (!one || core.top || select.query->offset || !select.with.empty()) {
        raiseUnsupported("a change of rows through the view " + view, line_);
    }
    return core;
}

/// rows: "SELECT ..." with the view's columns and "rowid", the row number in the table.
Source Emitter::changedView(const RoutineDef& view, const TableDef& shown, std::string alias,
                            std::string& rows) {
    const Batch batch = parse(view.text);
    const auto& definition = std::get<CreateView>(batch.statements.front()->node);
    const SelectCore& select = changeableRows(definition.select, shown.name);
    Scope scope;
    Core core;
    const auto& table = std::get<NamedTable>(select.from.front()->node);
    core.tail = changedText(select.from, table.name.name, scope);
    if (select.where) {
        core.tail += " WHERE " + conditionOf(*select.where, scope);
    }
    for (const auto& item : select.items) {
        addItem(item, scope, core);
    }
    const Source& base = scope.sources().front();
    if (base.table == nullptr) {
        raiseUnsupported("a change of rows through the view " + shown.name, line_);
    }
    Source source{std::move(alias), {}, base.table, shown.name};
    rows = "SELECT " + quoteName(base.alias) + ".rowid AS \"rowid\"";
    for (std::size_t i = 0; i < core.items.size(); ++i) {
        const ColumnDef& column = shown.columns.at(i);
        const std::string text = placed(std::move(core.items[i].value));
        const auto same =
            std::find_if(base.columns.begin(), base.columns.end(), [&](const SourceColumn& c) {
                return columnFragment(base, c).text == text;
            });
        source.columns.push_back({column.name, column.type, {}});
        if (same != base.columns.end()) {
            source.columns.back().shown = base.view.empty() ? same->name : same->shown;
        }
        const Fragment value{{}, column.type, same != base.columns.end(), {}};
        rows += "," + collatedText(value, text) + " AS " + quoteName(column.name);
    }
    rows += core.tail;
    return source;
}

/// What stands in the view's own text is neither this statement's literal nor its common table.
std::string Emitter::emitView(const RoutineDef& view, const TableDef& shown, std::string alias,
                              Scope& scope) {
    const Literals literals = std::exchange(literals_, Literals::Inline);
    auto commonTables = std::exchange(commonTables_, {});
    std::string rows;
    const Source& source = scope.add(changedView(view, shown, std::move(alias), rows));
    literals_ = literals;
    commonTables_ = std::move(commonTables);
    return "(" + rows + ") AS " + quoteName(source.alias);
}

/// FROM of a statement that changes rows of the table that is called so there.
std::string Emitter::changedText(const std::vector<TableSourcePtr>& from, const std::string& target,
                                 Scope& scope) {
    const std::string around = std::exchange(changed_, target);
    std::string text = fromText(from, scope);
    changed_ = around;
    return text;
}

/// 207 for a column that there is not, 4406 for one of a view that is no column of its table.
const ColumnDef& Emitter::changedColumn(const Source& target, const std::string& name) const {
    const auto found =
        std::find_if(target.columns.begin(), target.columns.end(),
                     [&](const SourceColumn& column) { return sameName(column.name, name); });
    if (found == target.columns.end()) {
        raise(207, {name}, line_);
    }
    if (!target.view.empty() && found->shown.empty()) {
        raise(4406, {target.view}, line_);
    }
    return *target.table->column(target.view.empty() ? found->name : found->shown);
}

const TableDef& Emitter::insertTarget(const Insert& statement, std::vector<std::string>& names) {
    const TableDef& table = requireTable(statement.table);
    names = statement.columns;
    const RoutineDef* view = names_.view(statement.table);
    if (view == nullptr) {
        return table;
    }
    if (!statement.output.empty()) {
        raiseUnsupported("OUTPUT of a change through a view", line_);
    }
    Scope scope;
    emitView(*view, table, table.name, scope);
    const Source& source = scope.sources().front();
    if (names.empty()) {
        for (const auto& column : source.columns) {
            names.push_back(column.name);
        }
    }
    for (auto& name : names) {
        name = changedColumn(source, name).name;
    }
    return *source.table;
}

} // namespace velcro::sql::tsql

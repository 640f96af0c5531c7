// The statements that read and write rows, and the walk over a list of statements.
#include "tsql/session/PlaceNames.h"
#include "tsql/session/RowCells.h"
#include "tsql/session/SessionVisit.h"
#include "tsql/translate/SqliteText.h"
#include "tsql/values/Errors.h"

namespace velcro::sql::tsql {

namespace {

std::vector<Translation> only(Translation translation) {
    std::vector<Translation> one;
    one.push_back(std::move(translation));
    return one;
}

const ObjectName* intoOf(const Select& select) {
    const auto* core = std::get_if<SelectCore>(&select.query->body->node);
    return core != nullptr && core->into ? &*core->into : nullptr;
}

} // namespace

Session::Flow Session::runAll(const std::vector<StatementPtr>& statements, Place& place) {
    for (const auto& statement : statements) {
        const Flow flow = runStatement(*statement, place);
        if (flow != Flow::Normal) {
            return flow;
        }
    }
    return Flow::Normal;
}

Session::Flow Session::runStatement(const Statement& statement, Place& place) {
    line_ = static_cast<int>(statement.line);
    statementTime_.reset();
    if (cancelled_) {
        throw Fault({.text = "The statement was cancelled."});
    }
    try {
        const Flow flow = visitStatement(statement, place);
        lastError_ = 0;
        return flow;
    } catch (Fault& fault) {
        fault.setLine(static_cast<int>(statement.line));
        lastError_ = fault.number();
        throw;
    }
}

Session::Flow Session::execute(const Select& select, Place& place) {
    if (const ObjectName* into = intoOf(select)) {
        selectInto(select, *into, place);
        return Flow::Normal;
    }
    Prepared& prepared = prepare(&select, place, [&](const PlaceNames& names) {
                             return only(Emitter(names, place.program.literals).select(select));
                         }).front();
    rowCount_ = runOne(prepared, place);
    return Flow::Normal;
}

Session::Flow Session::execute(const Insert& insert, Place& place) {
    if (insert.execute || insert.executeText) {
        return insertResults(insert, place);
    }
    Prepared& prepared = prepare(&insert, place, [&](const PlaceNames& names) {
                             return only(Emitter(names, place.program.literals).insert(insert));
                         }).front();
    report(place, runOne(prepared, place));
    return Flow::Normal;
}

Session::Flow Session::execute(const Update& update, Place& place) {
    Prepared& prepared = prepare(&update, place, [&](const PlaceNames& names) {
                             return only(Emitter(names, place.program.literals).update(update));
                         }).front();
    report(place, runOne(prepared, place));
    return Flow::Normal;
}

Session::Flow Session::execute(const Delete& remove, Place& place) {
    Prepared& prepared = prepare(&remove, place, [&](const PlaceNames& names) {
                             return only(Emitter(names, place.program.literals).remove(remove));
                         }).front();
    report(place, runOne(prepared, place));
    return Flow::Normal;
}

Session::Flow Session::execute(const Merge& merge, Place& place) {
    auto& parts = prepare(&merge, place, [&](const PlaceNames& names) {
        return Emitter::merge(merge, names, place.program.literals);
    });
    StatementScope whole(transactions_);
    std::int64_t affected = 0;
    for (auto& part : parts) {
        affected += runOne(part, place);
    }
    whole.done();
    report(place, affected);
    return Flow::Normal;
}

Session::Flow Session::execute(const TruncateTable& truncate, Place& place) {
    return define(place, [&] { ddl_.truncateTable(truncate.table.name); });
}

/// INSERT ... EXEC: runs the other statement first, then puts its rows in, all or none.
Session::Flow Session::insertResults(const Insert& insert, Place& place) {
    std::vector<RowSet> sets;
    const OnResult collect = [&sets](StatementResult&& result) {
        if (result.rows) {
            sets.push_back(std::move(*result.rows));
        }
    };
    Place inner{place.program, place.text, place.frame, place.literals, place.parameters, collect};
    insert.execute ? execute(*insert.execute, inner) : execute(*insert.executeText, inner);
    std::int64_t affected = 0;
    StatementScope whole(transactions_);
    for (const auto& rows : sets) {
        affected += insertRows(insert, rows, place);
    }
    whole.done();
    report(place, affected);
    return Flow::Normal;
}

std::int64_t Session::insertRows(const Insert& insert, const RowSet& rows, Place& place) {
    std::vector<ResultColumn> columns;
    for (std::size_t i = 0; i < rows.columnCount(); ++i) {
        columns.push_back({rows.column(i).name, typeOfColumn(rows.column(i).type), {}});
    }
    Translation translation =
        Emitter(PlaceNames(*this, place), place.program.literals).insertBound(insert, columns);
    auto statement = compile(translation.text);
    Prepared prepared{std::move(translation), std::move(statement)};
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        std::vector<Value> cells;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            cells.push_back(valueOfCell(rows, row, i));
        }
        bind(prepared, place, cells);
        step(prepared, place, nullptr);
    }
    return static_cast<std::int64_t>(rows.rowCount());
}

/// SELECT ... INTO makes the table from the types of the list, then fills it.
void Session::selectInto(const Select& select, const ObjectName& into, Place& place) {
    Translation rows = translated(place, [&](const PlaceNames& names) {
        return Emitter(names, place.program.literals).select(select);
    });
    std::vector<ColumnSpec> columns;
    std::string head = "INSERT INTO " + quoteName(into.name) + " (";
    for (const auto& column : rows.columns) {
        if (column.name.empty()) {
            raise(1038, {}, line_);
        }
        head += (columns.empty() ? "" : ",") + quoteName(column.name);
        columns.push_back(
            {column.name, column.type.isNull() ? intType : column.type, true, {}, {}});
    }
    StatementScope whole(transactions_);
    makeTable(into.name, columns, {});
    rows.text = head + ") " + rows.text;
    rows.columns.clear();
    rows.verb = "INSERT";
    auto statement = compile(rows.text);
    Prepared prepared{std::move(rows), std::move(statement)};
    bind(prepared, place);
    const std::int64_t affected = step(prepared, place, nullptr);
    whole.done();
    report(place, affected);
}

} // namespace velcro::sql::tsql

// Statements that SQLite runs: translated, prepared, bound, stepped, their rows taken.
#include "tsql/catalogue/UniqueKey.h"
#include "tsql/session/PlaceNames.h"
#include "tsql/session/RowCells.h"
#include "tsql/values/Errors.h"

namespace velcro::sql::tsql {

namespace {

std::vector<Column> columnsOf(const Translation& translation) {
    std::vector<Column> columns;
    columns.reserve(translation.columns.size());
    for (const auto& column : translation.columns) {
        columns.push_back({column.name, columnTypeOf(column.type)});
    }
    return columns;
}

/// Puts the statement back on every path, so that it holds no lock.
struct ResetAfterUse
{
    sqlite3_stmt* statement;
    ~ResetAfterUse() { sqlite3_reset(statement); }
};

} // namespace

/// SQLite's parser has a stack of fixed size; later versions let it grow.
class Session::TooDeep : public Fault
{
public:
    using Fault::Fault;
};

void Session::refuseText(std::string_view said) const {
    const std::string what = "this statement (" + std::string(said) + ")";
    if (said == "parser stack overflow") {
        throw TooDeep(serverMessage(unsupportedNumber, {what}, line_));
    }
    raiseUnsupported(what, line_);
}

StatementHandle Session::compile(const std::string& text) {
    sqlite3_stmt* raw = nullptr;
    const int code =
        sqlite3_prepare_v3(file_.handle.get(), text.data(), static_cast<int>(text.size()),
                           SQLITE_PREPARE_PERSISTENT, &raw, nullptr);
    if (code == SQLITE_ERROR) {
        refuseText(sqlite3_errmsg(file_.handle.get()));
    }
    if (code != SQLITE_OK) {
        throw faultFromSqlite(file_.handle.get(), code, catalogue_, "SELECT");
    }
    return StatementHandle(raw);
}

std::deque<Prepared>& Session::prepare(const void* node, Place& place,
                                       const Translator& translate) {
    Program& program = place.program;
    if (program.version != versionNow()) {
        program.prepared.clear();
        program.version = versionNow();
    }
    const auto found = program.prepared.find(node);
    if (found != program.prepared.end()) {
        return found->second;
    }
    return program.prepared.emplace(node, compiled(place, translate)).first->second;
}

std::deque<Prepared> Session::compiled(Place& place, const Translator& translate) {
    try {
        std::deque<Prepared> made;
        for (auto& translation : translate(PlaceNames(*this, place))) {
            auto handle = compile(translation.text);
            made.push_back({std::move(translation), std::move(handle)});
        }
        return made;
    } catch (const TooDeep&) {
        if (std::exchange(place.program.cutsExpressions, true)) {
            throw;
        }
    }
    return compiled(place, translate);
}

Translation Session::translated(Place& place, const OneTranslator& translate) {
    auto made = compiled(place, [&](const PlaceNames& names) {
        std::vector<Translation> one;
        one.push_back(translate(names));
        return one;
    });
    return std::move(made.front().translation);
}

void Session::bind(Prepared& prepared, const Place& place, std::span<const Value> given) {
    const BindSources sources{place.literals, place.parameters, &place.frame, &sessionValue_,
                              given};
    bindAll(prepared.statement.get(), prepared.translation.binds, sources);
}

void Session::failStep(Prepared& prepared, int code) {
    auto raised = host_.takeFault();
    if (raised) {
        throw Fault(*raised);
    }
    const std::string_view said = sqlite3_errmsg(file_.handle.get());
    if ((code & 0xFF) == SQLITE_CONSTRAINT && said.starts_with("UNIQUE")) {
        throw uniqueFault(said, catalogue_, prepared.statement.get(), &host_);
    }
    const std::string& verb = prepared.translation.verb;
    throw faultFromSqlite(file_.handle.get(), code, catalogue_, verb.empty() ? "SELECT" : verb);
}

/// Runs a bound statement to its end; gives the number of its rows, or of those it changed.
std::int64_t Session::step(Prepared& prepared, Place& place, RowSetBuilder* rows) {
    sqlite3_stmt* statement = prepared.statement.get();
    const ResetAfterUse reset{statement};
    std::vector<ColumnType> types;
    for (const auto& column : prepared.translation.columns) {
        types.push_back(columnTypeOf(column.type));
    }
    std::int64_t count = 0;
    int code = sqlite3_step(statement);
    for (; code == SQLITE_ROW; code = sqlite3_step(statement)) {
        ++count;
        if (prepared.translation.assigns) {
            keepVariables(prepared, place);
        } else if (rows != nullptr) {
            addRow(*rows, statement, types);
        }
    }
    if (code != SQLITE_DONE) {
        failStep(prepared, code);
    }
    if (!prepared.translation.writes()) {
        return count;
    }
    if (prepared.translation.setsIdentity && sqlite3_changes64(file_.handle.get()) > 0) {
        identity_ = sqlite3_last_insert_rowid(file_.handle.get());
    }
    return sqlite3_changes64(file_.handle.get());
}

void Session::keepVariables(Prepared& prepared, Place& place) {
    int index = 0;
    for (const auto& column : prepared.translation.columns) {
        place.frame.assign(column.variable, cellValue(prepared.statement.get(), index), column.type,
                           line_);
        ++index;
    }
}

/// Binds and runs one statement and hands its rows over.
std::int64_t Session::runOne(Prepared& prepared, Place& place) {
    bind(prepared, place);
    const Translation& translation = prepared.translation;
    std::optional<StatementScope> whole;
    if (translation.writes()) {
        transactions_.beforeWrite();
        if (translation.manyRows && sqlite3_get_autocommit(file_.handle.get()) == 0) {
            whole.emplace(transactions_);
        }
    }
    const bool givesRows = !translation.columns.empty() && !translation.assigns;
    std::optional<RowSetBuilder> rows;
    if (givesRows) {
        rows.emplace(columnsOf(translation));
    }
    const std::int64_t count = step(prepared, place, rows ? &*rows : nullptr);
    if (whole) {
        whole->done();
    }
    if (rows) {
        place.onResult({rows->take(), -1, {}});
    }
    return count;
}

void Session::report(Place& place, std::int64_t affected) {
    rowCount_ = affected < 0 ? 0 : affected;
    if (!noCount_) {
        place.onResult({std::nullopt, affected, {}});
    }
}

template <class Translate, class Read>
auto Session::oneCell(const Expr& expr, Place& place, Translate translate, Read read) {
    Prepared& prepared = prepare(&expr, place, [&](const PlaceNames& names) {
                             std::vector<Translation> one;
                             one.push_back(translate(Emitter(names, place.program.literals)));
                             return one;
                         }).front();
    bind(prepared, place);
    const ResetAfterUse reset{prepared.statement.get()};
    const int code = sqlite3_step(prepared.statement.get());
    if (code != SQLITE_ROW) {
        failStep(prepared, code);
    }
    return read(prepared);
}

Value Session::evaluate(const Expr& expr, Place& place, Type* type) {
    const auto translate = [&expr](Emitter emitter) { return emitter.value(expr); };
    return oneCell(expr, place, translate, [type](const Prepared& prepared) {
        if (type != nullptr) {
            *type = prepared.translation.columns.front().type;
        }
        return cellValue(prepared.statement.get(), 0);
    });
}

bool Session::holds(const Expr& expr, Place& place) {
    const auto translate = [&expr](Emitter emitter) { return emitter.condition(expr); };
    return oneCell(expr, place, translate, [](const Prepared& prepared) {
        return sqlite3_column_int(prepared.statement.get(), 0) != 0;
    });
}

} // namespace velcro::sql::tsql

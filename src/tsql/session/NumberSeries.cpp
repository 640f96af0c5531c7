#include "tsql/session/NumberSeries.h"

#include "tsql/catalogue/DatabaseFile.h"
#include "tsql/functions/Functions.h"

#include <optional>
#include <utility>

namespace velcro::sql::tsql {

namespace {

// One row a series. Keys compare like the server's text does: blanks behind are cut before binding.
constexpr const char* layout = "CREATE TABLE IF NOT EXISTS Series ("
                               " Company TEXT COLLATE NOCASE NOT NULL,"
                               " Branch TEXT COLLATE NOCASE NOT NULL,"
                               " Module TEXT COLLATE NOCASE NOT NULL,"
                               " Type TEXT COLLATE NOCASE NOT NULL,"
                               " Number INTEGER NOT NULL,"
                               " PRIMARY KEY (Company, Branch, Module, Type)) WITHOUT ROWID";

constexpr const char* advanceText = "UPDATE Series SET Number = Number + 1"
                                    " WHERE Company = ?1 AND Branch = ?2"
                                    " AND Module = ?3 AND Type = ?4"
                                    " RETURNING Number";

// Two seats may meet a new series at once: the second one's start is then an ordinary advance.
constexpr const char* startText = "INSERT INTO Series (Company, Branch, Module, Type, Number)"
                                  " VALUES (?1, ?2, ?3, ?4, ?5 + 1)"
                                  " ON CONFLICT DO UPDATE SET Number = Number + 1"
                                  " RETURNING Number";

void bindKey(sqlite3_stmt* statement, const SeriesKey& key) {
    int index = 1;
    for (const auto* part : {&key.company, &key.branch, &key.module, &key.type}) {
        const auto length = part->find_last_not_of(' ') + 1;
        sqlite3_bind_text(statement, index++, part->c_str(), static_cast<int>(length),
                          SQLITE_TRANSIENT);
    }
}

} // namespace

NumberSeries::NumberSeries(const std::filesystem::path& database, const Catalogue& catalogue,
                           LastKnown lastKnown)
    : file_(database)
    , catalogue_(catalogue)
    , lastKnown_(std::move(lastKnown)) {
    file_.replace_extension(".numbers");
}

std::int64_t NumberSeries::next(const SeriesKey& key) {
    if (!database_) {
        open();
    }
    bindKey(advance_.get(), key);
    if (const auto number = take(advance_.get())) {
        return *number;
    }
    bindKey(start_.get(), key);
    sqlite3_bind_int64(start_.get(), 5, lastKnown_(key));
    return take(start_.get()).value_or(0);
}

/// Steps to the end, since the change is durable only then.
std::optional<std::int64_t> NumberSeries::take(sqlite3_stmt* statement) {
    std::optional<std::int64_t> number;
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(statement)) == SQLITE_ROW) {
        number = sqlite3_column_int64(statement, 0);
    }
    std::optional<Fault> fault;
    if (code != SQLITE_DONE) {
        fault = faultFromSqlite(database_.get(), code, catalogue_, "UPDATE");
    }
    sqlite3_reset(statement);
    if (fault) {
        throw Fault(*fault);
    }
    return number;
}

void NumberSeries::require(int code) {
    if (code != SQLITE_OK) {
        throw faultFromSqlite(database_.get(), code, catalogue_, "UPDATE");
    }
}

void NumberSeries::open() {
    sqlite3* raw = nullptr;
    const auto text = file_.u8string();
    const int code =
        sqlite3_open_v2(reinterpret_cast<const char*>(text.c_str()), &raw,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    database_.reset(raw);
    try {
        require(code);
        sqlite3_busy_timeout(raw, lockTimeoutMilliseconds);
        require(useWriteAheadLog(raw));
        require(sqlite3_exec(raw, "PRAGMA synchronous = FULL", nullptr, nullptr, nullptr));
        require(sqlite3_exec(raw, layout, nullptr, nullptr, nullptr));
        advance_ = prepare(advanceText);
        start_ = prepare(startText);
    } catch (...) {
        database_.reset();
        throw;
    }
}

StatementHandle NumberSeries::prepare(const char* sql) {
    sqlite3_stmt* raw = nullptr;
    require(sqlite3_prepare_v3(database_.get(), sql, -1, SQLITE_PREPARE_PERSISTENT, &raw, nullptr));
    return StatementHandle(raw);
}

} // namespace velcro::sql::tsql

#include "tsql/catalogue/SqliteQuery.h"

namespace velcro::sql::tsql {

namespace {

std::string databaseName(sqlite3* database) {
    const char* file = sqlite3_db_filename(database, "main");
    std::string name = file ? file : "";
    name.erase(0, name.find_last_of("/\\") + 1);
    return name.substr(0, name.rfind('.'));
}

} // namespace

Fault storageFault(sqlite3* database, int code) {
    const std::string text = sqlite3_errmsg(database);
    const std::string name = databaseName(database);
    switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        // A read that others have overtaken cannot become a write: only a new transaction helps.
        return Fault(code == SQLITE_BUSY_SNAPSHOT ? serverMessage(1205, {"51"})
                                                  : serverMessage(1222));
    case SQLITE_FULL:
        return Fault(serverMessage(9002, {name, "ACTIVE_TRANSACTION"}));
    case SQLITE_READONLY:
        return Fault(serverMessage(3906, {name}));
    case SQLITE_IOERR:
        return Fault(
            {823, 24, 2, 0,
             "The operating system returned an error during a read or write of database '" + name +
                 "': " + text + "."});
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return Fault({824, 24, 2, 0, "Database '" + name + "' is damaged: " + text + "."});
    case SQLITE_TOOBIG:
        return Fault(serverMessage(7119, {std::to_string(longestValue)}));
    case SQLITE_ERROR:
        // All that SQLite says of a SUM of integers that is no integer any more.
        return Fault(text == "integer overflow" ? serverMessage(8115, {"expression", "bigint"})
                                                : SqlMessage{50000, 16, 1, 0, text});
    case SQLITE_NOMEM:
        return Fault({701, 17, 1, 0, "There is insufficient system memory to run this query."});
    default:
        return Fault({50000, 16, 1, 0, text});
    }
}

SqliteQuery::SqliteQuery(sqlite3* database, std::string_view sql)
    : database_(database) {
    sqlite3_stmt* raw = nullptr;
    const int code =
        sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &raw, nullptr);
    statement_.reset(raw);
    if (code != SQLITE_OK) {
        throw storageFault(database, sqlite3_extended_errcode(database));
    }
}

SqliteQuery& SqliteQuery::bind(std::int64_t value) {
    sqlite3_bind_int64(statement_.get(), ++bound_, value);
    return *this;
}

SqliteQuery& SqliteQuery::bind(std::string_view text) {
    sqlite3_bind_text64(statement_.get(), ++bound_, text.data() ? text.data() : "", text.size(),
                        SQLITE_TRANSIENT, SQLITE_UTF8);
    return *this;
}

SqliteQuery& SqliteQuery::bindNull() {
    sqlite3_bind_null(statement_.get(), ++bound_);
    return *this;
}

bool SqliteQuery::step() {
    const int code = sqlite3_step(statement_.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE) {
        throw storageFault(database_, sqlite3_extended_errcode(database_));
    }
    return code == SQLITE_ROW;
}

void SqliteQuery::run() {
    while (step()) {
    }
    sqlite3_reset(statement_.get());
    bound_ = 0;
}

std::string SqliteQuery::text(int column) const {
    const auto* bytes =
        reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column));
    return bytes ? std::string(bytes, size) : std::string();
}

void runSqlite(sqlite3* database, const std::string& sql) {
    const int code = sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
        throw storageFault(database, sqlite3_extended_errcode(database));
    }
}

} // namespace velcro::sql::tsql

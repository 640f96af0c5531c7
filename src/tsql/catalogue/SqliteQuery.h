// One prepared statement of our own on SQLite, for the catalogue and for schema changes.
#pragma once

#include "tsql/catalogue/SqliteHandle.h"
#include "tsql/values/Errors.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velcro::sql::tsql {

/// What SQLite says when the fault is not the statement's: locked, full, read-only, damaged; in the
/// server's numbers (1205, 1222, 9002, 3906, 823, 824, 701), else 50000 with SQLite's text.
Fault storageFault(sqlite3* database, int code);

/// Faults come from storageFault().
class SqliteQuery
{
public:
    SqliteQuery(sqlite3* database, std::string_view sql);

    /// Binds the next parameter, from the first on.
    SqliteQuery& bind(std::int64_t value);
    SqliteQuery& bind(std::string_view text);
    SqliteQuery& bindNull();

    /// True while there is a row.
    bool step();
    /// Runs to the end and makes ready for the next bindings.
    void run();

    std::int64_t integer(int column) const {
        return sqlite3_column_int64(statement_.get(), column);
    }
    std::string text(int column) const;
    bool isNull(int column) const {
        return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
    }

private:
    sqlite3* database_;
    StatementHandle statement_;
    int bound_ = 0;
};

/// Runs statements that give no rows.
void runSqlite(sqlite3* database, const std::string& sql);

} // namespace velcro::sql::tsql

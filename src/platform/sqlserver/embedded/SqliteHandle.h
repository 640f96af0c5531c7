// Owners of SQLite's connections and prepared statements, so that each is freed on every path.
#pragma once

#include <memory>

#include <sqlite3.h>

namespace velcro::sql::tsql {

struct CloseDatabase
{
    void operator()(sqlite3* database) const noexcept { sqlite3_close_v2(database); }
};

struct FinalizeStatement
{
    void operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }
};

using DatabaseHandle = std::unique_ptr<sqlite3, CloseDatabase>;
using StatementHandle = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

} // namespace velcro::sql::tsql

// Owners of SQLite's connections and prepared statements, so that each is freed on every path.
#pragma once

#include <cstddef>
#include <memory>

#include <sqlite3.h>

namespace velcro::sql::tsql {

/// Bytes of the longest text or picture that is taken; what is longer is refused with 7119. Far more
/// than the program stores, and little enough that a mistake does not take all of a seat's memory.
inline constexpr std::size_t longestValue = 256 * 1024 * 1024;

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

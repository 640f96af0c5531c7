// Where a database of the stand-in lies, and opening it with errors a user can act on.
#pragma once

#include "platform/sqlserver/SqlConnection.h"
#include "platform/sqlserver/embedded/SqliteHandle.h"

#include <filesystem>

namespace velcro::sql::tsql {

/// An open database and the file it is.
struct DatabaseFile
{
    std::filesystem::path path;
    DatabaseHandle handle;
    bool readOnly = false; // the file or its folder cannot be written
};

/// Opens <folder>/<database>.sqlite, the folder taken from the server value; the name's case does
/// not count. Makes the file only with settings.createDatabase, and never the folder. Throws SqlError
/// of kind NotConnected: 4060 no such database, 53 no such folder, 5120 the file cannot be opened,
/// 5172 the file is no database, 1222 another process keeps it locked.
DatabaseFile openDatabaseFile(const ConnectionSettings& settings);

/// Turns the write-ahead log on; two processes that meet a new file wait for each other. Gives
/// SQLite's result code.
int useWriteAheadLog(sqlite3* database);

/// How long a statement waits for another process's lock before it fails, in milliseconds.
inline constexpr int lockTimeoutMilliseconds = 15'000;

} // namespace velcro::sql::tsql

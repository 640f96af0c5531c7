// Where a database of the stand-in lies, and opening it with errors a user can act on.
#pragma once

#include "tsql/catalogue/SqliteHandle.h"

#include <filesystem>
#include <string>

namespace velcro::sql::tsql {

/// Which database to open, and how.
struct DatabaseSettings
{
    std::string folder = {};    // UTF-8
    std::string name = {};      // of the database; case does not count
    int openTimeoutSeconds = 0; // 0 waits as long as a statement waits for a lock
    bool readOnly = false;
    bool autoCommit = true; // false: what a batch writes outside begin() waits for commit()
    bool create = false;    // the file may be made, if its folder is there
};

/// An open database and the file it is.
struct DatabaseFile
{
    std::filesystem::path path;
    DatabaseHandle handle;
    bool readOnly = false; // the file or its folder cannot be written
};

/// Opens <folder>/<name>.sqlite. Makes the file only with settings.create, and never the folder. Throws SqlError
/// of kind NotConnected: 4060 no such database, 53 no such folder, 5120 the file cannot be opened,
/// 5172 the file is no database, 1222 another process keeps it locked.
DatabaseFile openDatabaseFile(const DatabaseSettings& settings);

/// Makes a file that is missing, empty and for its owner alone, before SQLite would make it for
/// everybody; the logs beside it get its rights. What fails here is told when the file is opened.
void makeForOwnerAlone(const std::filesystem::path& file);

/// Turns the write-ahead log on; two processes that meet a new file wait for each other. Gives
/// SQLite's result code.
int useWriteAheadLog(sqlite3* database);

/// How long a statement waits for another process's lock before it fails, in milliseconds.
inline constexpr int lockTimeoutMilliseconds = 15'000;

} // namespace velcro::sql::tsql

#include "tsql/catalogue/DatabaseFile.h"

#include "tsql/catalogue/LockWait.h"
#include "tsql/values/SqlError.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <fstream>
#include <optional>
#include <system_error>
#include <thread>

namespace velcro::sql::tsql {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view fileSuffix = ".sqlite";

[[noreturn]] void raiseNotOpened(int number, const std::string& state, const std::string& text) {
    throw SqlError(SqlErrorKind::NotConnected, state, {number, 16, 1, 0, text}, {});
}

fs::path fromUtf8(std::string_view text) {
    return {std::u8string(text.begin(), text.end())};
}

std::string toUtf8(const fs::path& path) {
    const auto text = path.u8string();
    return {text.begin(), text.end()};
}

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

bool isPlainName(std::string_view name) {
    return !name.empty() && !name.starts_with('.') &&
           name.find_first_of(std::string_view("/\\:*?\"<>|\0", 10)) == std::string_view::npos;
}

fs::path folderOf(const DatabaseSettings& settings) {
    const fs::path folder = fromUtf8(settings.folder);
    std::error_code error;
    if (settings.folder.empty() || !fs::is_directory(folder, error)) {
        raiseNotOpened(53, "08001",
                       "The folder \"" + settings.folder +
                           "\" of the embedded databases was not found or cannot be read.");
    }
    return folder;
}

/// A file system may tell cases apart; database names never do.
std::optional<fs::path> findFile(const fs::path& folder, const std::string& database) {
    const std::string wanted = lowered(database + std::string(fileSuffix));
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (lowered(toUtf8(entry->path().filename())) == wanted) {
            return entry->path();
        }
    }
    if (error) {
        raiseNotOpened(5120, "08001",
                       "Unable to read the folder \"" + toUtf8(folder) + "\": " + error.message() +
                           ".");
    }
    return std::nullopt;
}

[[noreturn]] void raiseUnusable(const fs::path& path, sqlite3* handle, int code) {
    const std::string name = toUtf8(path);
    switch (code & 0xff) {
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        raiseNotOpened(5172, "HY000",
                       "The header for file '" + name + "' is not a valid database file header.");
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        raiseNotOpened(1222, "HYT00",
                       "The database file '" + name +
                           "' is in use by another process: lock request time "
                           "out period exceeded.");
    case SQLITE_READONLY:
        // Even to read it, SQLite makes files of its own beside a database that nobody has open.
        raiseNotOpened(5120, "08001",
                       "Unable to open the physical file \"" + name +
                           "\": its folder cannot be written.");
    default:
        raiseNotOpened(
            5120, "08001",
            "Unable to open the physical file \"" + name +
                "\": " + (handle != nullptr ? sqlite3_errmsg(handle) : sqlite3_errstr(code)) + ".");
    }
}

void apply(const DatabaseFile& file, const char* pragma) {
    const int code = sqlite3_exec(file.handle.get(), pragma, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
        raiseUnusable(file.path, file.handle.get(), sqlite3_extended_errcode(file.handle.get()));
    }
}

/// The first read tells whether the file is a database at all, before anything could be written.
void prepareForUse(const DatabaseFile& file, int openTimeoutSeconds) {
    const bool limited = openTimeoutSeconds > 0;
    limitLockWait(file.handle.get(), limited ? openTimeoutSeconds * 1000 : lockTimeoutMilliseconds);
    apply(file, "SELECT count(*) FROM sqlite_schema");
    if (!file.readOnly) {
        const int code = useWriteAheadLog(file.handle.get());
        if (code != SQLITE_OK) {
            raiseUnusable(file.path, file.handle.get(), code);
        }
    }
    apply(file, "PRAGMA synchronous = FULL");
    apply(file, "PRAGMA foreign_keys = OFF");
    apply(file, "PRAGMA temp_store = MEMORY");
    apply(file, "PRAGMA cache_size = -32768");
    apply(file, "PRAGMA mmap_size = 268435456");
    limitLockWait(file.handle.get(), lockTimeoutMilliseconds);
}

/// Whoever may only read a file leaves its log beside it with the same rights, and nobody could
/// write when the file gets others. What fails here is told when it is written.
void giveRightsToLog(const fs::path& path) {
    std::error_code error;
    const fs::perms rights = fs::status(path, error).permissions();
    for (const char* suffix : {"-wal", "-shm"}) {
        fs::path log = path;
        log += suffix;
        const fs::file_status status = fs::status(log, error);
        if (fs::exists(status) && status.permissions() != rights) {
            fs::permissions(log, rights, error);
        }
    }
}

DatabaseFile openFile(const fs::path& path, int flags) {
    if ((flags & SQLITE_OPEN_CREATE) != 0) {
        makeForOwnerAlone(path);
    }
    giveRightsToLog(path);
    DatabaseFile file{path, nullptr, (flags & SQLITE_OPEN_READONLY) != 0};
    sqlite3* raw = nullptr;
    const int code = sqlite3_open_v2(toUtf8(path).c_str(), &raw,
                                     flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    file.handle.reset(raw);
    if (code != SQLITE_OK) {
        raiseUnusable(path, raw, code);
    }
    sqlite3_limit(raw, SQLITE_LIMIT_LENGTH, static_cast<int>(longestValue));
    file.readOnly = sqlite3_db_readonly(raw, "main") == 1;
    return file;
}

} // namespace

void makeForOwnerAlone(const fs::path& file) {
    std::error_code error;
    if (!fs::exists(file, error)) {
        std::ofstream(file, std::ios::app).close();
        fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write, error);
    }
}

int useWriteAheadLog(sqlite3* database) {
    // The switch itself does not wait for a lock, whatever the time-out says.
    int code = SQLITE_BUSY;
    for (int attempt = 0; attempt < 200 && (code & 0xff) == SQLITE_BUSY; ++attempt) {
        if (attempt > 0) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        code = sqlite3_exec(database, "PRAGMA journal_mode = WAL", nullptr, nullptr, nullptr);
    }
    return code;
}

DatabaseFile openDatabaseFile(const DatabaseSettings& settings) {
    const fs::path folder = folderOf(settings);
    if (!isPlainName(settings.name)) {
        raiseNotOpened(
            4060, "08001",
            "Cannot open database \"" + settings.name +
                "\" requested by the login: this is no database name. The login failed.");
    }
    auto path = findFile(folder, settings.name);
    if (!path && !settings.create) {
        raiseNotOpened(4060, "08001",
                       "Cannot open database \"" + settings.name +
                           "\" requested by the login: there is no such file in \"" +
                           toUtf8(folder) + "\". The login failed.");
    }
    const int create = path ? 0 : SQLITE_OPEN_CREATE;
    const int access = settings.readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    auto file =
        openFile(path.value_or(folder / fromUtf8(settings.name + ".sqlite")), access | create);
    prepareForUse(file, settings.openTimeoutSeconds);
    return file;
}

} // namespace velcro::sql::tsql

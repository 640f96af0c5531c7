#include "platform/sqlserver/NumberSeries.h"

#include "tsql/catalogue/DatabaseFile.h"
#include "tsql/catalogue/LockWait.h"
#include "tsql/catalogue/SqliteQuery.h"
#include "tsql/values/Errors.h"

#include <algorithm>
#include <array>

namespace velcro::sql {

namespace {

// One row a series. Keys compare like the server's text does: blanks behind are cut before binding.
constexpr const char* layout = "CREATE TABLE IF NOT EXISTS Series ("
                               " Company TEXT COLLATE NOCASE NOT NULL,"
                               " Branch TEXT COLLATE NOCASE NOT NULL,"
                               " Module TEXT COLLATE NOCASE NOT NULL,"
                               " Type TEXT COLLATE NOCASE NOT NULL,"
                               " Number INTEGER NOT NULL,"
                               " PRIMARY KEY (Company, Branch, Module, Type)) WITHOUT ROWID;"
                               "CREATE TABLE IF NOT EXISTS Waits ("
                               " Id INTEGER PRIMARY KEY, Count INTEGER NOT NULL)";

constexpr const char* advanceText = "UPDATE Series SET Number = max(Number, ?5) + 1"
                                    " WHERE Company = ?1 AND Branch = ?2"
                                    " AND Module = ?3 AND Type = ?4"
                                    " RETURNING Number";

// Two seats may meet a new series at once: the second one's start is then an ordinary advance.
constexpr const char* startText = "INSERT INTO Series (Company, Branch, Module, Type, Number)"
                                  " VALUES (?1, ?2, ?3, ?4, ?5 + 1)"
                                  " ON CONFLICT DO UPDATE SET Number = max(Number, ?5) + 1"
                                  " RETURNING Number";

// SQLite waits for what it writes, and so for all that was written before; a row that is set to what
// it was is not written.
constexpr const char* waitText = "INSERT INTO Waits VALUES (1, 0)"
                                 " ON CONFLICT DO UPDATE SET Count = Count + 1";

constexpr const char* beforeFirst = "SELECT MAX(Number) FROM SYSNumbers WHERE CO = @CO"
                                    " AND Branch = @BRANCH AND ModCode = @MODCODE"
                                    " AND TxTp = @TXTP";

constexpr std::array<tsql::NativeParameter, 4> parameterList{{{"@CO", tsql::nvarcharType(10)},
                                                              {"@BRANCH", tsql::nvarcharType(10)},
                                                              {"@MODCODE", tsql::nvarcharType(3)},
                                                              {"@TXTP", tsql::nvarcharType(6)}}};

/// Letters as NOCASE takes them to be equal.
std::string keyPart(const tsql::Value& value) {
    const auto* text = std::get_if<std::string>(&value);
    std::string part = text == nullptr ? std::string() : *text;
    part.erase(part.find_last_not_of(' ') + 1);
    std::transform(part.begin(), part.end(), part.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return part;
}

/// The name under which the database keeps a series' last number.
std::string keptName(const std::vector<std::string>& key) {
    std::string name = "numbers";
    for (const std::string& part : key) {
        name += '\x1f' + part;
    }
    return name;
}

/// Where a series stood before its first number here; a database need not have the table.
std::int64_t lastBefore(tsql::NativeCaller& caller) {
    constexpr int invalidColumn = 207;
    constexpr int invalidObject = 208;
    try {
        return caller.query(beforeFirst).integer(0, 0);
    } catch (const tsql::Fault& fault) {
        if (fault.number() != invalidColumn && fault.number() != invalidObject) {
            throw;
        }
        return 0;
    }
}

} // namespace

NumberSeries::~NumberSeries() {
    afterTransaction(false);
}

std::string_view NumberSeries::name() const {
    return "VELMARA_GENERATE_NUMBER";
}

std::span<const tsql::NativeParameter> NumberSeries::parameters() const {
    return parameterList;
}

RowSet NumberSeries::run(std::span<const tsql::Value> arguments, tsql::NativeCaller& caller) {
    if (!database_) {
        open(caller.databaseFile());
    }
    Key key;
    for (const tsql::Value& argument : arguments) {
        key.push_back(keyPart(argument));
    }
    const std::int64_t number = next(key, caller);
    RowSetBuilder rows({{"NUMBER", ColumnType::Integer}});
    rows.addInteger(number);
    rows.endRow();
    return rows.take();
}

std::int64_t NumberSeries::next(const Key& key, tsql::NativeCaller& caller) {
    const auto known = last_.find(key);
    const std::int64_t after = known == last_.end() ? caller.highest(keptName(key)) : known->second;
    waitForDisk(!caller.inTransaction());
    auto number = take(advance_.get(), key, after);
    if (!number) {
        number = take(start_.get(), key, std::max(after, lastBefore(caller)));
    }
    last_[key] = number.value();
    if (caller.inTransaction()) {
        open_[key] = *number;
    }
    return *number;
}

std::optional<std::int64_t> NumberSeries::take(sqlite3_stmt* statement, const Key& key,
                                               std::int64_t after) {
    int index = 0;
    for (const std::string& part : key) {
        sqlite3_bind_text(statement, ++index, part.c_str(), static_cast<int>(part.size()),
                          SQLITE_TRANSIENT);
    }
    sqlite3_bind_int64(statement, ++index, after);
    return runToEnd(statement);
}

/// Steps to the end, since the change is made only then.
std::optional<std::int64_t> NumberSeries::runToEnd(sqlite3_stmt* statement) {
    std::optional<std::int64_t> number;
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(statement)) == SQLITE_ROW) {
        number = sqlite3_column_int64(statement, 0);
    }
    std::optional<tsql::Fault> fault;
    if (code != SQLITE_DONE) {
        fault = this->fault(code);
    }
    sqlite3_reset(statement);
    if (fault) {
        throw tsql::Fault(*fault);
    }
    return number;
}

void NumberSeries::beforeCommit(tsql::NativeCaller& caller) {
    for (const auto& [key, number] : open_) {
        caller.keepHighest(keptName(key), number);
    }
}

void NumberSeries::afterTransaction(bool written) noexcept {
    if (!written && !open_.empty()) {
        try {
            makeDurable();
        } catch (const tsql::Fault&) {
            return; // they stand in no row; the next end of a transaction tries again
        }
    }
    open_.clear();
}

/// All counters lie in one log: what makes one durable makes all.
void NumberSeries::makeDurable() {
    waitForDisk(true);
    runToEnd(wait_.get());
}

/// The log is whole after a cut of the power either way; only its end may be missing.
void NumberSeries::waitForDisk(bool wait) {
    if (wait != waiting_) {
        require(sqlite3_exec(database_.get(),
                             wait ? "PRAGMA synchronous = FULL" : "PRAGMA synchronous = NORMAL",
                             nullptr, nullptr, nullptr));
        waiting_ = wait;
    }
}

void NumberSeries::require(int code) {
    if (code != SQLITE_OK) {
        throw fault(code);
    }
}

/// Damage here is none of the database's own, which can be used on.
tsql::Fault NumberSeries::fault(int code) const {
    const int kind = code & 0xFF;
    if (kind != SQLITE_CORRUPT && kind != SQLITE_NOTADB) {
        return tsql::storageFault(database_.get(), code);
    }
    const std::string_view file = sqlite3_db_filename(database_.get(), "main");
    return tsql::Fault({824, 16, 2, 0,
                        "The document numbers in the file '" +
                            std::string(file.substr(file.find_last_of("/\\") + 1)) +
                            "' are damaged: " + sqlite3_errmsg(database_.get()) +
                            ". The database beside it is not."});
}

void NumberSeries::open(const std::filesystem::path& database) {
    auto file = database;
    file.replace_extension(".numbers");
    tsql::makeForOwnerAlone(file);
    sqlite3* raw = nullptr;
    const auto text = file.u8string();
    const int code =
        sqlite3_open_v2(reinterpret_cast<const char*>(text.c_str()), &raw,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    database_.reset(raw);
    try {
        require(code);
        tsql::limitLockWait(raw, tsql::lockTimeoutMilliseconds);
        require(tsql::useWriteAheadLog(raw));
        waiting_ = false;
        waitForDisk(true);
        require(sqlite3_exec(raw, layout, nullptr, nullptr, nullptr));
        advance_ = prepare(advanceText);
        start_ = prepare(startText);
        wait_ = prepare(waitText);
    } catch (...) {
        database_.reset();
        throw;
    }
}

tsql::StatementHandle NumberSeries::prepare(const char* sql) {
    sqlite3_stmt* raw = nullptr;
    require(sqlite3_prepare_v3(database_.get(), sql, -1, SQLITE_PREPARE_PERSISTENT, &raw, nullptr));
    return tsql::StatementHandle(raw);
}

} // namespace velcro::sql

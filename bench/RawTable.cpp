#include "RawTable.h"

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

void require(bool isSo, sqlite3* database) {
    if (!isSo) {
        std::fprintf(stderr, "the reference fails: %s\n", sqlite3_errmsg(database));
        std::abort();
    }
}

} // namespace

RawDatabase::RawDatabase(const std::string& file) {
    require(sqlite3_open(file.c_str(), &database_) == SQLITE_OK, database_);
    execute("PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL;"
            "PRAGMA mmap_size = 268435456; PRAGMA cache_size = -32768");
}

void RawDatabase::execute(const std::string& sql) {
    require(sqlite3_exec(database_, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK,
            database_);
}

// Column by column, since CREATE TABLE AS asks for the collations of the source.
void RawDatabase::copyTable(const std::string& fromFile, const std::string& table) {
    execute("ATTACH '" + fromFile + "' AS source");
    const auto columns =
        prepare("SELECT group_concat(name) FROM pragma_table_info('" + table + "', 'source')");
    require(sqlite3_step(columns.get()) == SQLITE_ROW, database_);
    const std::string names = reinterpret_cast<const char*>(sqlite3_column_text(columns.get(), 0));
    sqlite3_reset(columns.get());
    execute("CREATE TABLE " + table + " (" + names + "); INSERT INTO " + table +
            " SELECT * FROM source." + table + "; DETACH source");
}

RawStatement RawDatabase::prepare(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    require(sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement, nullptr) == SQLITE_OK,
            database_);
    return RawStatement(statement);
}

void RawDatabase::bind(sqlite3_stmt* statement, int place, const std::string& text) {
    require(sqlite3_bind_text(statement, place, text.data(), int(text.size()), SQLITE_TRANSIENT) ==
                SQLITE_OK,
            database_);
}

int stepOver(sqlite3_stmt* statement) {
    int rows = 0;
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(statement)) == SQLITE_ROW) {
        ++rows;
        for (int column = 0; column < sqlite3_column_count(statement); ++column) {
            sqlite3_column_text(statement, column);
            sqlite3_column_bytes(statement, column);
        }
    }
    require(code == SQLITE_DONE, sqlite3_db_handle(statement));
    sqlite3_reset(statement);
    return rows;
}

} // namespace bench

// The reference side: a table of a desk's database copied to a plain SQLite file, and statements
// over it as somebody would write them for SQLite by hand.
#pragma once

#include <memory>
#include <string>

#include <sqlite3.h>

namespace bench {

struct Finalize
{
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using RawStatement = std::unique_ptr<sqlite3_stmt, Finalize>;

/// Every problem ends the program: a reference that did nothing would be worse than none.
class RawDatabase
{
public:
    /// A new file in the write-ahead log, durable at every commit.
    explicit RawDatabase(const std::string& file);
    ~RawDatabase() { sqlite3_close(database_); }
    RawDatabase(const RawDatabase&) = delete;
    RawDatabase& operator=(const RawDatabase&) = delete;

    void execute(const std::string& sql);
    /// Takes a table with its rows, without its collations.
    void copyTable(const std::string& fromFile, const std::string& table);
    RawStatement prepare(const std::string& sql);
    void bind(sqlite3_stmt* statement, int place, const std::string& text);

private:
    sqlite3* database_ = nullptr;
};

/// Steps to the end and reads every column; returns the rows.
int stepOver(sqlite3_stmt* statement);

} // namespace bench

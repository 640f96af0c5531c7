// Document numbers: each call takes one for good, whatever becomes of the caller's transaction. The
// counters lie in a file of their own beside the database, <database>.numbers, so that drawing a
// number neither waits for the caller's own write lock nor is rolled back with it.
#pragma once

#include "tsql/catalogue/Catalogue.h"
#include "tsql/catalogue/SqliteHandle.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace velcro::sql::tsql {

/// What a series of numbers is told by; blanks behind and letter case do not count.
struct SeriesKey
{
    std::string company;
    std::string branch;
    std::string module;
    std::string type;
};

class NumberSeries
{
public:
    /// The last number a series had before this file knew it; asked once for each series.
    using LastKnown = std::function<std::int64_t(const SeriesKey&)>;

    /// Opens nothing until the first number is drawn.
    NumberSeries(const std::filesystem::path& database, const Catalogue& catalogue,
                 LastKnown lastKnown);

    /// The next number, 1 upward; durable when it returns. Throws Fault (1222, 9002 ...).
    std::int64_t next(const SeriesKey& key);

private:
    void open();
    StatementHandle prepare(const char* sql);
    std::optional<std::int64_t> take(sqlite3_stmt* statement);
    void require(int code);

    std::filesystem::path file_;
    const Catalogue& catalogue_;
    LastKnown lastKnown_;
    DatabaseHandle database_;
    StatementHandle advance_;
    StatementHandle start_;
};

} // namespace velcro::sql::tsql

// Document numbers of the embedded end: EXEC VELMARA_GENERATE_NUMBER takes one for good, whatever
// becomes of the caller's transaction.
#pragma once

#include "tsql/catalogue/SqliteHandle.h"
#include "tsql/session/NativeProcedure.h"
#include "tsql/values/Errors.h"

#include <map>
#include <optional>
#include <string>

namespace velcro::sql {

/// The counters lie in a file of their own beside the database, <database>.numbers, so that taking
/// a number neither waits for the caller's own write lock nor is rolled back with it. One row a
/// series: company, branch, module, transaction type; blanks behind and letter case do not count.
/// A series that the file does not know begins after SYSNumbers.Number of its key.
///
/// A number taken in a transaction waits for the disk once, together with what the transaction
/// writes. Its counter is written at once, where every process sees it and the end of this one
/// leaves it, but reaches the disk only with the next wait; the transaction itself keeps the number
/// as its last work. After a cut of the power the counter may be behind, and no process is left
/// that knows better: the first number that any connection takes therefore goes above what the
/// database keeps. So a number that stands in committed rows is never given again; one whose
/// transaction was cut off with the power stands nowhere. A transaction that ends without writing,
/// by a rollback too, makes its numbers durable by themselves.
class NumberSeries final : public tsql::NativeProcedure
{
public:
    NumberSeries() = default;
    ~NumberSeries() override;

    std::string_view name() const override;
    std::span<const tsql::NativeParameter> parameters() const override;
    /// One row with the column NUMBER: the next number, 1 upward. Throws Fault (1222, 9002 ...).
    RowSet run(std::span<const tsql::Value> arguments, tsql::NativeCaller& caller) override;

    void beforeCommit(tsql::NativeCaller& caller) override;
    void afterTransaction(bool written) noexcept override;

private:
    using Key = std::vector<std::string>;

    void open(const std::filesystem::path& database);
    tsql::StatementHandle prepare(const char* sql);
    void require(int code);
    tsql::Fault fault(int code) const;
    std::int64_t next(const Key& key, tsql::NativeCaller& caller);
    std::optional<std::int64_t> take(sqlite3_stmt* statement, const Key& key, std::int64_t after);
    std::optional<std::int64_t> runToEnd(sqlite3_stmt* statement);
    void waitForDisk(bool wait);
    void makeDurable();

    tsql::DatabaseHandle database_;
    tsql::StatementHandle advance_;
    tsql::StatementHandle start_;
    tsql::StatementHandle wait_;
    bool waiting_ = false;             // each change waits for the disk
    std::map<Key, std::int64_t> last_; // of each series taken from on this connection
    std::map<Key, std::int64_t> open_; // taken in the transaction that is open
};

} // namespace velcro::sql

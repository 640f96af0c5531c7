// The seam to a SQL Server database. Two ends answer it: the real server through ODBC, and the
// embedded stand-in. Text is UTF-8 T-SQL, sent as it is written.
#pragma once

#include "tsql/values/Exchange.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace velcro::sql {

/// Where to connect. server is "embedded:<folder>" for the stand-in, else host, host,port,
/// host\instance, or "odbc:" and a driver's own text.
struct ConnectionSettings
{
    std::string server = {};
    std::string database = {};
    std::string user = {};
    std::string password = {};
    int connectTimeoutSeconds = 0; // 0: 15 seconds
    bool readOnlyIntent = false;
    bool autoCommit = true;      // false: what run() writes outside begin() waits for commit()
    bool createDatabase = false; // the stand-in may make the database, if its folder is there
    /// Whether a server "odbc:<connection string>", which loads the driver it names, is honoured: only
    /// where whoever looks after this machine wrote it.
    bool mayNameDriver = false;
};

/// One connection, used by one thread but for cancel(). Every operation throws SqlError. A connection
/// that was lost stays unusable until connect() is called again.
class SqlConnection
{
public:
    using OnResult = sql::OnResult;

    virtual ~SqlConnection() = default;

    /// Drops an open connection first.
    virtual void connect(const ConnectionSettings& settings) = 0;
    /// Rolls an open transaction back; does nothing when not connected.
    virtual void disconnect() noexcept = 0;
    virtual bool isConnected() const = 0;

    /// Runs a batch to its end and hands over the result of each statement in order. The first
    /// failed statement ends the batch on the embedded end; a real server may go on, and what it
    /// says of later statements is drained before the first error is thrown.
    virtual void run(std::string_view batch, std::span<const Parameter> parameters,
                     const OnResult& onResult) = 0;

    /// Asks the batch that runs to end, from any thread; run() then throws SQLSTATE HY008, as soon
    /// as a server that is asked answers. Does nothing when nothing runs.
    virtual void cancel() noexcept = 0;

    /// With autoCommit off the transaction begins with whatever waits, and ends with it.
    virtual void begin() = 0;
    /// Also makes durable what waits where autoCommit is off; nothing waiting is no error there. The
    /// embedded end holds the database's write lock while something waits, so a seat commits before
    /// it goes back to its user.
    virtual void commit() = 0;
    virtual void rollback() = 0;

    /// Runs a batch whose results nobody needs.
    void execute(std::string_view batch, std::span<const Parameter> parameters = {}) {
        run(batch, parameters, [](StatementResult&&) {});
    }
    /// The rows of the first statement of the batch that gives rows; no rows and no columns if none
    /// does.
    RowSet query(std::string_view statement, std::span<const Parameter> parameters = {}) {
        std::optional<RowSet> rows;
        run(statement, parameters, [&rows](StatementResult&& result) {
            if (result.rows && !rows) {
                rows = std::move(result.rows);
            }
        });
        return rows.value_or(RowSet());
    }
};

/// The end that a server value names: "embedded:<folder>" the stand-in, anything else ODBC.
std::unique_ptr<SqlConnection> createConnection(std::string_view server);

} // namespace velcro::sql

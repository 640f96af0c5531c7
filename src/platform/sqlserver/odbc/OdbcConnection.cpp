#include "platform/sqlserver/odbc/OdbcConnection.h"

#include "platform/sqlserver/Utf16.h"
#include "platform/sqlserver/odbc/BatchRun.h"
#include "platform/sqlserver/odbc/ConnectionString.h"
#include "platform/sqlserver/odbc/Diagnostics.h"
#include "platform/sqlserver/odbc/Handle.h"

namespace velcro::sql {

namespace {

using namespace odbc;

SQLPOINTER attributeValue(SQLULEN value) {
    return reinterpret_cast<SQLPOINTER>(value);
}

std::string info(SQLHANDLE connection, SQLUSMALLINT what) {
    char16_t text[256] = {};
    SQLSMALLINT bytes = 0;
    SQLGetInfoW(connection, what, wide(text), sizeof text, &bytes);
    return toUtf8(std::u16string_view(text));
}

Driver driverFor(SQLHANDLE environment) {
    if (const auto driver = chooseDriver(installedDrivers(environment))) {
        return *driver;
    }
    if (const auto library = findFreeTdsLibrary()) {
        return {*library, DriverKind::FreeTds};
    }
    throw SqlError(SqlErrorKind::NotConnected, "IM002",
                   {.text = "No ODBC driver for SQL Server is installed on this machine."}, {});
}

/// Whether work went well; false where the server has no transaction for it.
template <typename Work>
bool ignoringMissingTransaction(Work work) {
    try {
        work();
        return true;
    } catch (const SqlError& error) {
        const bool missing = error.sqlState() == "25000" || error.number() == 3903;
        if (!missing || error.kind() != SqlErrorKind::Statement) {
            throw;
        }
        return false;
    }
}

// A server that takes the connection and never answers must not hold a start for ever.
constexpr int connectSeconds = 15;

void requireMayNameDriver(const ConnectionSettings& settings) {
    if (settings.server.starts_with(explicitPrefix) && !settings.mayNameDriver) {
        throw SqlError(SqlErrorKind::NotConnected, "IM002",
                       {.text =
                            "A server that begins with \"odbc:\" names the driver to load, and is "
                            "taken from the machine configuration file only."},
                       {});
    }
}

class OdbcConnection final : public SqlConnection
{
public:
    ~OdbcConnection() override { disconnect(); }

    void connect(const ConnectionSettings& settings) override;
    void disconnect() noexcept override;
    bool isConnected() const override { return static_cast<bool>(connection_) && !lost_; }

    void run(std::string_view batch, std::span<const Parameter> parameters,
             const OnResult& onResult) override;
    void cancel() noexcept override { running_.cancel(); }

    void begin() override;
    void commit() override;
    void rollback() override;

private:
    void requireConnected() const;
    /// Turns what the driver says about a call on the connection into the exception.
    [[noreturn]] void fail();
    void setAutoCommit(bool on);
    void endTransaction(SQLSMALLINT how);
    void keepTransaction();
    bool hasTransaction();
    void beginAtServer();

    RunningStatement running_;
    Environment environment_;
    ConnectionHandle connection_;
    DriverKind kind_ = DriverKind::Other;
    bool autoCommit_ = true;
    bool inTransaction_ = false;
    bool endedByServer_ = false; // the transaction that inTransaction_ speaks of
    bool lost_ = false;
};

void OdbcConnection::connect(const ConnectionSettings& settings) {
    disconnect();
    requireMayNameDriver(settings);
    const bool isExplicit = settings.server.starts_with(explicitPrefix);
    const Driver driver = isExplicit ? Driver() : driverFor(environment_.get());
    ConnectionHandle connection(environment_.get());
    const int seconds =
        settings.connectTimeoutSeconds > 0 ? settings.connectTimeoutSeconds : connectSeconds;
    SQLSetConnectAttrW(connection.get(), SQL_ATTR_LOGIN_TIMEOUT,
                       attributeValue(static_cast<SQLULEN>(seconds)), 0);
    const auto text = toUtf16(connectionString(settings, driver));
    const auto code = SQLDriverConnectW(connection.get(), nullptr, wide(text.data()),
                                        static_cast<SQLSMALLINT>(text.size()), nullptr, 0, nullptr,
                                        SQL_DRIVER_NOPROMPT);
    if (!SQL_SUCCEEDED(code)) {
        auto [state, message] = connectCause(diagnostics(SQL_HANDLE_DBC, connection.get(), true));
        message.text = withoutPassword(std::move(message.text), settings.password);
        throw SqlError(SqlErrorKind::NotConnected, state, std::move(message), {});
    }
    connection_ = std::move(connection);
    lost_ = false;
    inTransaction_ = false;
    endedByServer_ = false;
    kind_ = kindOfLibrary(info(connection_.get(), SQL_DRIVER_NAME));
    autoCommit_ = settings.autoCommit;
    try {
        setAutoCommit(autoCommit_);
    } catch (const SqlError& error) {
        disconnect();
        throw SqlError(SqlErrorKind::NotConnected, error.sqlState(), error.message(), {});
    }
}

void OdbcConnection::disconnect() noexcept {
    if (!connection_) {
        return;
    }
    // A driver may refuse to disconnect inside a transaction.
    SQLEndTran(SQL_HANDLE_DBC, connection_.get(), SQL_ROLLBACK);
    SQLDisconnect(connection_.get());
    connection_ = ConnectionHandle();
    inTransaction_ = false;
}

void OdbcConnection::requireConnected() const {
    if (!isConnected()) {
        throw SqlError(SqlErrorKind::NotConnected, "08003",
                       {.text = lost_ ? "The connection to the server was lost."
                                      : "There is no connection to a server."},
                       {});
    }
}

void OdbcConnection::fail() {
    const auto all = diagnostics(SQL_HANDLE_DBC, connection_.get(), true);
    Diagnostic said = decisive(all);
    lost_ = isDead(connection_.get()) || isLossState(said.sqlState);
    if (lost_) {
        said = asLoss(std::move(said));
    }
    throw SqlError(lost_ ? SqlErrorKind::ConnectionLost : SqlErrorKind::Statement, said.sqlState,
                   said.message, {});
}

void OdbcConnection::run(std::string_view batch, std::span<const Parameter> parameters,
                         const OnResult& onResult) {
    requireConnected();
    try {
        runBatch(connection_.get(), kind_, batch, parameters, onResult, running_);
    } catch (const SqlError& error) {
        lost_ = error.kind() == SqlErrorKind::ConnectionLost;
        if (!lost_) {
            keepTransaction();
        }
        throw;
    }
}

// Some errors make the server end the transaction by itself. What is sent then would be kept at
// once, statement by statement, and the commit after it fail: so it is found out here, and what was
// begun for the program goes on as a new one, which only a rollback may end.
void OdbcConnection::keepTransaction() {
    const bool expected = !autoCommit_ || inTransaction_;
    if (!expected || kind_ == DriverKind::Other) {
        return;
    }
    try {
        if (!hasTransaction()) {
            endedByServer_ = inTransaction_;
            beginAtServer();
        }
    } catch (const SqlError& error) {
        // Nobody knows what would become of work on it.
        lost_ = true;
        const Diagnostic said{error.sqlState(), error.message()};
        throw SqlError(
            SqlErrorKind::ConnectionLost, said.sqlState,
            error.kind() == SqlErrorKind::ConnectionLost ? said.message : asLoss(said).message, {});
    }
}

bool OdbcConnection::hasTransaction() {
    std::int64_t count = 0;
    const auto take = [&count](StatementResult&& result) {
        if (result.rows && result.rows->rowCount() > 0) {
            count = result.rows->integer(0, 0);
        }
    };
    runBatch(connection_.get(), kind_, "SELECT @@TRANCOUNT AS N", {}, take, running_);
    return count > 0;
}

// The vendor's drivers have the server begin one with the next statement; a begin beside that would
// make two of it.
void OdbcConnection::beginAtServer() {
    if (kind_ == DriverKind::FreeTds) {
        runBatch(
            connection_.get(), kind_, "BEGIN TRANSACTION", {}, [](StatementResult&&) {}, running_);
    }
}

void OdbcConnection::setAutoCommit(bool on) {
    const auto value = attributeValue(on ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF);
    if (!SQL_SUCCEEDED(
            SQLSetConnectAttrW(connection_.get(), SQL_ATTR_AUTOCOMMIT, value, SQL_IS_UINTEGER))) {
        fail();
    }
}

void OdbcConnection::begin() {
    requireConnected();
    if (autoCommit_) {
        setAutoCommit(false);
    }
    inTransaction_ = true;
}

void OdbcConnection::endTransaction(SQLSMALLINT how) {
    if (!SQL_SUCCEEDED(SQLEndTran(SQL_HANDLE_DBC, connection_.get(), how))) {
        fail();
    }
}

void OdbcConnection::commit() {
    requireConnected();
    if (!inTransaction_ && autoCommit_) {
        throw SqlError(
            SqlErrorKind::Statement, "25000",
            {.number = 3902,
             .text = "The COMMIT TRANSACTION request has no corresponding BEGIN TRANSACTION."},
            {});
    }
    if (endedByServer_) {
        rollback();
        throw SqlError(SqlErrorKind::Statement, "25000",
                       {.number = 3902,
                        .text =
                            "The server ended the transaction when an error occurred: nothing of "
                            "it was saved."},
                       {});
    }
    endTransaction(SQL_COMMIT);
    inTransaction_ = false;
    setAutoCommit(autoCommit_);
}

void OdbcConnection::rollback() {
    inTransaction_ = false;
    endedByServer_ = false;
    if (lost_) {
        return; // the server has rolled back when the connection went
    }
    requireConnected();
    // Some errors make the server end the transaction by itself; there is nothing left to do then.
    const bool ended = ignoringMissingTransaction([this] { endTransaction(SQL_ROLLBACK); });
    if (!autoCommit_) {
        if (!ended) {
            beginAtServer();
        }
        return;
    }
    if (!ignoringMissingTransaction([this] { setAutoCommit(true); })) {
        // A driver that rolls back once more before it turns auto-commit on stays off without a
        // transaction to roll back.
        execute("BEGIN TRANSACTION");
        setAutoCommit(true);
    }
}

} // namespace

std::unique_ptr<SqlConnection> createOdbcConnection() {
    return std::make_unique<OdbcConnection>();
}

} // namespace velcro::sql

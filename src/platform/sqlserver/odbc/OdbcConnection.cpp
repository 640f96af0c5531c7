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

class OdbcConnection final : public SqlConnection
{
public:
    ~OdbcConnection() override { disconnect(); }

    void connect(const ConnectionSettings& settings) override;
    void disconnect() noexcept override;
    bool isConnected() const override { return static_cast<bool>(connection_) && !lost_; }

    void run(std::string_view batch, std::span<const Parameter> parameters,
             const OnResult& onResult) override;

    void begin() override;
    void commit() override;
    void rollback() override;

private:
    void requireConnected() const;
    /// Turns what the driver says about a call on the connection into the exception.
    [[noreturn]] void fail();
    void setAutoCommit(bool on);
    void endTransaction(SQLSMALLINT how);

    Environment environment_;
    ConnectionHandle connection_;
    DriverKind kind_ = DriverKind::Other;
    bool autoCommit_ = true;
    bool inTransaction_ = false;
    bool lost_ = false;
};

void OdbcConnection::connect(const ConnectionSettings& settings) {
    disconnect();
    const bool isExplicit = settings.server.starts_with(explicitPrefix);
    const Driver driver = isExplicit ? Driver() : driverFor(environment_.get());
    ConnectionHandle connection(environment_.get());
    if (settings.connectTimeoutSeconds > 0) {
        const auto seconds = static_cast<SQLULEN>(settings.connectTimeoutSeconds);
        SQLSetConnectAttrW(connection.get(), SQL_ATTR_LOGIN_TIMEOUT, attributeValue(seconds), 0);
    }
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
    const auto& [state, message] = decisive(all);
    lost_ = isDead(connection_.get()) || isLossState(state);
    throw SqlError(lost_ ? SqlErrorKind::ConnectionLost : SqlErrorKind::Statement, state, message,
                   {});
}

void OdbcConnection::run(std::string_view batch, std::span<const Parameter> parameters,
                         const OnResult& onResult) {
    requireConnected();
    try {
        runBatch(connection_.get(), kind_, batch, parameters, onResult);
    } catch (const SqlError& error) {
        lost_ = error.kind() == SqlErrorKind::ConnectionLost;
        throw;
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
    endTransaction(SQL_COMMIT);
    inTransaction_ = false;
    setAutoCommit(autoCommit_);
}

void OdbcConnection::rollback() {
    inTransaction_ = false;
    if (lost_) {
        return; // the server has rolled back when the connection went
    }
    requireConnected();
    // Some errors make the server end the transaction by itself; there is nothing left to do then.
    ignoringMissingTransaction([this] { endTransaction(SQL_ROLLBACK); });
    if (!autoCommit_) {
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

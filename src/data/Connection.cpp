#include "data/Connection.h"

#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/Statement.h"
#include "platform/sqlserver/EmbeddedConnection.h"

#include <QTimer>

#include <map>

using velcro::sql::ConnectionSettings;
using velcro::sql::SqlError;
using velcro::sql::SqlErrorKind;

QString sfg_BuildUNIConnectionStr(const QString& xServer, const QString& xDBase,
                                  const QString& xUser, const QString& xPswd, const QString&,
                                  const QString&) {
    return QLatin1String("Provider Name=SQL Server;Server=") + xServer + QLatin1String(";") +
           QLatin1String("Database=") + xDBase + QLatin1String(";") + QLatin1String("User ID=") +
           xUser + QLatin1String(";") + QLatin1String("Password=") + xPswd + QLatin1String(";") +
           QLatin1String("Login Prompt=False;") + QLatin1String("Connect Timeout=0;");
}

namespace {

/// Takes "Server=odbc:..." out of the text and gives its value; blank where there is none.
QString takeDriverText(QString& text) {
    const QLatin1String key("Server=");
    const auto start = text.indexOf(key + QLatin1String("odbc:"));
    if (start < 0) {
        return {};
    }
    const auto end = text.indexOf(QLatin1String(";Database="), start);
    const QString server = text.mid(start, end < 0 ? -1 : end - start);
    text.remove(start, server.size());
    return server.mid(key.size());
}

/// The machine's administrator wrote the configuration file; the row of a database can have been
/// written by anybody.
bool standsInMachineConfiguration(const std::string& server) {
    return server == gCmnHost.toStdString() || server == gLocHost.toStdString();
}

} // namespace

ConnectionSettings parseConnectionString(const QString& text) {
    using Take = std::function<void(ConnectionSettings&, const QString&)>;
    static const auto ignore = [](ConnectionSettings&, const QString&) {};
    static const std::map<QString, Take> settings = {
        {"provider name", ignore},
        {"server",
         [](auto& to, const QString& value) { to.server = value.trimmed().toStdString(); }},
        {"database",
         [](auto& to, const QString& value) { to.database = value.trimmed().toStdString(); }},
        {"user id", [](auto& to, const QString& value) { to.user = value.toStdString(); }},
        {"password", [](auto& to, const QString& value) { to.password = value.toStdString(); }},
        {"login prompt", ignore},
        {"connect timeout",
         [](auto& to, const QString& value) { to.connectTimeoutSeconds = StrToInt(value); }},
    };
    ConnectionSettings result;
    QString rest = text;
    const std::string driver = takeDriverText(rest).toStdString();
    result.server = driver;
    for (const QString& part : rest.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const auto equals = part.indexOf(QLatin1Char('='));
        const auto found = settings.find(part.left(equals).trimmed().toLower());
        if (equals < 0 || found == settings.end()) {
            throw VelmaraError(
                QStringLiteral("The connection string is broken: it has a part that is no setting. "
                               "Host, database, user and password must not hold a \";\"."));
        }
        found->second(result, part.mid(equals + 1));
    }
    // A second server in front of it does not hide it.
    if (!driver.empty() && !result.server.starts_with("odbc:")) {
        result.server = driver;
    }
    return result;
}

Connection::Connection(ConnectionOptions options)
    : options_(std::move(options)) {}

Connection::~Connection() {
    Disconnect();
    for (Statement* statement : std::as_const(statements_)) {
        statement->connection_ = nullptr;
    }
}

void Connection::Connect() {
    Disconnect();
    open();
}

void Connection::open() {
    ConnectionSettings settings = parseConnectionString(connectString_);
    settings.autoCommit = options_.autoCommit;
    settings.readOnlyIntent =
        options_.specificOptions.contains(QLatin1String("ApplicationIntent=aiReadOnly"));
    settings.createDatabase =
        options_.specificOptions.contains(QLatin1String("ForceCreateDatabase=True"));
    settings.mayNameDriver = standsInMachineConfiguration(settings.server);
    embedded_ = settings.server.starts_with(velcro::sql::embeddedPrefix);
    link_ = factory(settings.server);
    try {
        link_->connect(settings);
    } catch (...) {
        link_.reset();
        throw;
    }
    lost_ = false;
    inTransaction_ = false;
    directWork_ = false;
    if (afterConnect) {
        afterConnect();
    }
}

void Connection::Disconnect() noexcept {
    for (Statement* statement : std::as_const(statements_)) {
        statement->Close();
    }
    if (link_) {
        if (!inTransaction_) {
            settleAtLast();
        }
        link_->disconnect();
        link_.reset();
    }
    lost_ = false; // closed on purpose: what comes next must not open it again
    inTransaction_ = false;
}

bool Connection::Connected() const {
    return link_ && link_->isConnected();
}

void Connection::ensureOpen() {
    if (lost_) {
        open();
    }
    if (!link_) {
        throw SqlError(SqlErrorKind::NotConnected, "08003",
                       {.number = 0, .text = "The connection is not open."}, {});
    }
}

// Runs one piece of work and keeps count of what a loss of the connection takes with it.
template <class Work>
void Connection::notingLoss(const Work& work) {
    try {
        work();
    } catch (const SqlError& error) {
        if (error.kind() == SqlErrorKind::ConnectionLost) {
            lost_ = true;
            directWork_ = false;
        }
        throw;
    }
}

void Connection::StartTransaction() {
    ensureOpen();
    notingLoss([this] { link_->begin(); });
    inTransaction_ = true;
    workInTransaction_ = false;
}

void Connection::Commit() {
    ensureOpen();
    notingLoss([this] { commitOnLink(); });
    inTransaction_ = false;
    directWork_ = false;
}

void Connection::commitOnLink() {
    try {
        link_->commit();
    } catch (const SqlError& error) {
        if (error.kind() != SqlErrorKind::ConnectionLost) {
            throw;
        }
        auto message = error.message();
        message.text =
            "It may or may not be saved: look for it before you save it again.\r" + message.text;
        throw SqlError(error.kind(), error.sqlState(), std::move(message), {});
    }
}

void Connection::Rollback() {
    inTransaction_ = false;
    directWork_ = false;
    if (link_ && !lost_) {
        notingLoss([this] { link_->rollback(); });
    }
}

void Connection::settle() {
    if (!directWork_ || !link_ || lost_ || inTransaction_) {
        return;
    }
    directWork_ = false;
    try {
        notingLoss([this] { commitOnLink(); });
    } catch (const SqlError&) {
        rollbackAfterFailure(); // a commit that failed still holds its locks
        throw;
    }
}

void Connection::settleAtLast() noexcept {
    try {
        settle();
    } catch (const std::exception& error) {
        qWarning("Work that was waiting could not be made durable: %s", error.what());
    }
}

void Connection::rollbackAfterFailure() noexcept {
    try {
        Rollback();
    } catch (const std::exception& error) {
        // The server has ended the transaction itself; the failure before it is what counts.
        qWarning("Rollback: %s", error.what());
    }
}

// The embedded end holds the database's write lock while work waits for its commit, and other
// programs of the seat would wait for a user who thinks.
void Connection::noteDirectWork() {
    if (options_.autoCommit || inTransaction_) {
        return;
    }
    directWork_ = true;
    if (!embedded_ || settleScheduled_) {
        return;
    }
    settleScheduled_ = true;
    QTimer::singleShot(0, this, [this] {
        settleScheduled_ = false;
        try {
            settle();
        } catch (const std::exception& error) {
            // Whoever did the work has long returned: here it can only be told.
            errorBox(QStringLiteral("Error"), QLatin1String("SQL Error\r") + errorText(error));
        }
    });
}

std::vector<velcro::sql::StatementResult>
Connection::run(const QString& batch, std::span<const velcro::sql::Parameter> parameters) {
    ensureOpen();
    noteDirectWork();
    const std::string text = batch.toStdString();
    std::vector<velcro::sql::StatementResult> results;
    const auto send = [&] {
        results.clear();
        link_->run(text, parameters, [&results](velcro::sql::StatementResult&& result) {
            results.push_back(std::move(result));
        });
    };
    try {
        notingLoss(send);
    } catch (const SqlError&) {
        // What an open transaction did before is gone with the connection: half of it must not run.
        if (!runsAgain() || (inTransaction_ && workInTransaction_)) {
            throw;
        }
        const bool inTransaction = inTransaction_;
        open();
        if (inTransaction) {
            StartTransaction();
        }
        notingLoss(send);
    }
    workInTransaction_ = true;
    return results;
}

// A connection of a data module: how it is opened, what it does when it is lost, and when work on
// it becomes durable.
#pragma once

#include "platform/sqlserver/SqlConnection.h"

#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <span>
#include <vector>

class Statement;

/// What a connection does with a statement that was lost together with the server.
enum class WhenLost {
    Raise,    // the statement fails; only a later one connects again
    RunAgain, // connects again and runs the statement once more, unseen by the user
};

/// Settings of a connection as they have always been listed. Those marked * have a meaning for the
/// ends of the seam; the others are kept because sites know them, and change nothing.
struct ConnectionOptions
{
    QString provider = QStringLiteral("SQL Server");
    int port = 1433;                     // the driver's own default
    bool pooling = true;                 // one connection a module, never pooled
    bool autoCommit = true;              // * off: direct work waits for the next commit
    bool localFailover = true;           // told by whenLost
    bool keepDesignConnected = false;    // no designer
    bool enableBCD = false;              // decimals are read as floats or text
    WhenLost whenLost = WhenLost::Raise; // *
    QStringList specificOptions = {};    // "Name=Value"; * ApplicationIntent, ForceCreateDatabase
};

/// Server, database, user and password as one text; nothing is escaped, so a ";" in a value breaks
/// it. xProvider and xIsAzure are accepted and change nothing.
QString sfg_BuildUNIConnectionStr(const QString& xServer, const QString& xDBase,
                                  const QString& xUser, const QString& xPswd,
                                  const QString& xProvider, const QString& xIsAzure);

/// Reads such a text back. A server that begins with "odbc:" goes on to the database, semicolons and
/// all. Throws VelmaraError for a part that is no setting, without quoting it: it may be the rest of a
/// password.
velcro::sql::ConnectionSettings parseConnectionString(const QString& text);

class Connection : public QObject
{
public:
    explicit Connection(ConnectionOptions options);
    ~Connection() override;

    const ConnectionOptions& options() const { return options_; }
    void setConnectString(const QString& text) { connectString_ = text; }

    /// Opens by the connect string, closing first what is open. Throws SqlError or VelmaraError.
    void Connect();
    /// Closes every statement object and the connection; direct work that waits is committed first,
    /// an open transaction is rolled back.
    void Disconnect() noexcept;
    bool Connected() const;

    /// A connection that is found lost at this call is not opened again for it: the failure is the
    /// caller's, and the next work connects. Throws SqlError.
    void StartTransaction();
    /// Where the connection is lost meanwhile, nobody knows whether it happened, and SqlError says so.
    void Commit();
    void Rollback();
    /// The same when a failure is already on its way to the user: one of its own is only logged.
    void rollbackAfterFailure() noexcept;
    bool InTransaction() const { return inTransaction_; }

    /// Makes durable what was run outside a transaction on a connection without auto-commit. Where
    /// that fails the work is taken back and SqlError thrown. On the embedded end it happens by
    /// itself as soon as control is back in the event loop, and a failure there is shown.
    void settle();

    /// Runs a batch by the lost-connection rule of this connection and gives the result of each of
    /// its statements. Throws SqlError.
    std::vector<velcro::sql::StatementResult>
    run(const QString& batch, std::span<const velcro::sql::Parameter> parameters);

    /// Called whenever the connection has been opened, also by itself after a loss; may be empty.
    std::function<void()> afterConnect;

    /// Makes the end of the seam; a test may put a faulty one in.
    using Factory =
        std::function<std::unique_ptr<velcro::sql::SqlConnection>(std::string_view server)>;
    inline static Factory factory = &velcro::sql::createConnection;

private:
    friend class Statement;
    void open();
    void ensureOpen();
    void noteDirectWork();
    void commitOnLink();
    void settleAtLast() noexcept;
    bool runsAgain() const { return lost_ && options_.whenLost == WhenLost::RunAgain; }
    template <class Work>
    void notingLoss(const Work& work);

    ConnectionOptions options_;
    QString connectString_;
    std::unique_ptr<velcro::sql::SqlConnection> link_;
    QList<Statement*> statements_;
    bool embedded_ = false;
    bool lost_ = false; // broke in use; the next piece of work connects again
    bool inTransaction_ = false;
    bool workInTransaction_ = false;
    bool directWork_ = false;
    bool settleScheduled_ = false;
};

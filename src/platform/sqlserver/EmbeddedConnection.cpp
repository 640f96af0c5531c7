#include "platform/sqlserver/EmbeddedConnection.h"

#include "platform/sqlserver/NumberSeries.h"
#include "platform/sqlserver/Waiting.h"
#include "tsql/catalogue/LockWait.h"
#include "tsql/session/Session.h"

namespace velcro::sql {

namespace {

tsql::DatabaseSettings databaseOf(const ConnectionSettings& settings) {
    std::string_view folder = settings.server;
    if (folder.starts_with(embeddedPrefix)) {
        folder.remove_prefix(embeddedPrefix.size());
    }
    return {.folder = std::string(folder),
            .name = settings.database,
            .openTimeoutSeconds = settings.connectTimeoutSeconds,
            .readOnly = settings.readOnlyIntent,
            .autoCommit = settings.autoCommit,
            .create = settings.createDatabase};
}

class EmbeddedConnection : public SqlConnection
{
public:
    void connect(const ConnectionSettings& settings) override {
        disconnect();
        const EndOfLockWait end;
        tsql::NativeProcedures natives;
        natives.push_back(std::make_unique<NumberSeries>());
        session_ = std::make_unique<tsql::Session>(databaseOf(settings), std::move(natives));
    }
    void disconnect() noexcept override { session_.reset(); }
    bool isConnected() const override { return session_ != nullptr; }

    void run(std::string_view batch, std::span<const Parameter> parameters,
             const OnResult& onResult) override {
        work(batch, [&](tsql::Session& session) { session.run(batch, parameters, onResult); });
    }
    void cancel() noexcept override {
        if (session_) {
            session_->cancel();
        }
    }
    void begin() override {
        work({}, [](tsql::Session& session) { session.begin(); });
    }
    void commit() override {
        work({}, [](tsql::Session& session) { session.commit(); });
    }
    void rollback() override {
        work({}, [](tsql::Session& session) { session.rollback(); });
    }

private:
    template <typename Work>
    void work(std::string_view batch, const Work& work) {
        if (!session_) {
            throw SqlError(SqlErrorKind::NotConnected, "08003",
                           {0, 16, 1, 0, "The connection is not open."}, std::string(batch));
        }
        if (tsql::isWaitingForLock()) {
            throw SqlError(SqlErrorKind::Statement, "HY010",
                           {.text = "The connection still waits for another program's lock."},
                           std::string(batch));
        }
        const EndOfLockWait end;
        work(*session_);
    }

    std::unique_ptr<tsql::Session> session_;
};

} // namespace

std::unique_ptr<SqlConnection> createEmbeddedConnection() {
    return std::make_unique<EmbeddedConnection>();
}

} // namespace velcro::sql

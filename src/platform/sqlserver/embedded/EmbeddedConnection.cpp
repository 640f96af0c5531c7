#include "platform/sqlserver/embedded/EmbeddedConnection.h"

#include "platform/sqlserver/embedded/Session.h"

namespace velcro::sql {

namespace {

class EmbeddedConnection : public SqlConnection
{
public:
    void connect(const ConnectionSettings& settings) override {
        disconnect();
        session_ = std::make_unique<tsql::Session>(settings);
    }
    void disconnect() noexcept override { session_.reset(); }
    bool isConnected() const override { return session_ != nullptr; }

    void run(std::string_view batch, std::span<const Parameter> parameters,
             const OnResult& onResult) override {
        session(batch).run(batch, parameters, onResult);
    }
    void begin() override { session({}).begin(); }
    void commit() override { session({}).commit(); }
    void rollback() override { session({}).rollback(); }

private:
    tsql::Session& session(std::string_view batch) const {
        if (!session_) {
            throw SqlError(SqlErrorKind::NotConnected, "08003",
                           {0, 16, 1, 0, "The connection is not open."}, std::string(batch));
        }
        return *session_;
    }

    std::unique_ptr<tsql::Session> session_;
};

} // namespace

std::unique_ptr<SqlConnection> createEmbeddedConnection() {
    return std::make_unique<EmbeddedConnection>();
}

} // namespace velcro::sql

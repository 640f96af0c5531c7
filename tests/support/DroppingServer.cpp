#include "support/DroppingServer.h"

#include <utility>

namespace velcro::test {

namespace {

class DroppingConnection : public sql::SqlConnection
{
public:
    DroppingConnection(std::unique_ptr<SqlConnection> real, DroppingServer& server)
        : real_(std::move(real))
        , server_(server) {}

    void connect(const sql::ConnectionSettings& settings) override { real_->connect(settings); }
    void disconnect() noexcept override { real_->disconnect(); }
    bool isConnected() const override { return real_->isConnected(); }

    void run(std::string_view batch, std::span<const sql::Parameter> parameters,
             const OnResult& onResult) override {
        maybeDrop();
        ++server_.statements;
        server_.texts.emplace_back(batch);
        real_->run(batch, parameters, onResult);
    }
    void cancel() noexcept override { real_->cancel(); }
    void begin() override {
        maybeDrop();
        real_->begin();
    }
    void commit() override {
        maybeDrop();
        real_->commit();
    }
    void rollback() override {
        maybeDrop();
        real_->rollback();
    }

private:
    // A server rolls back what a connection that breaks has left open.
    void maybeDrop() {
        if (server_.countdown > 0 && --server_.countdown == 0) {
            server_.countdown = -1;
            real_->disconnect();
            throw sql::SqlError(sql::SqlErrorKind::ConnectionLost, "08S01",
                                {.text = "Communication link failure."}, {});
        }
    }

    std::unique_ptr<SqlConnection> real_;
    DroppingServer& server_;
};

} // namespace

DroppingServer::DroppingServer()
    : real_(Connection::factory) {
    Connection::factory = [this](std::string_view server) {
        return std::make_unique<DroppingConnection>(real_(server), *this);
    };
}

DroppingServer::~DroppingServer() {
    Connection::factory = real_;
}

} // namespace velcro::test

#include "support/FakeServer.h"

#include "data/Connection.h"

#include <algorithm>

namespace velcro::test {

using sql::SqlError;
using sql::SqlErrorKind;

class FakeConnection : public sql::SqlConnection
{
public:
    explicit FakeConnection(FakeServer& server)
        : server_(server) {}

    void connect(const sql::ConnectionSettings& settings) override {
        if (server_.refusesConnections) {
            throw SqlError(SqlErrorKind::NotConnected, "08001", {.text = "Server is down."}, {});
        }
        server_.settings = settings;
        server_.log.push_back("connect " + settings.database);
        connected_ = true;
    }
    void disconnect() noexcept override {
        server_.log.emplace_back("disconnect");
        connected_ = false;
    }
    bool isConnected() const override { return connected_; }
    void run(std::string_view batch, std::span<const sql::Parameter> parameters,
             const OnResult& onResult) override {
        const std::string text(batch);
        server_.log.push_back(text);
        server_.parameters.assign(parameters.begin(), parameters.end());
        loseWhenTold(text);
        const auto rule =
            std::find_if(server_.rules_.begin(), server_.rules_.end(),
                         [&](const auto& it) { return text.find(it.word) != std::string::npos; });
        sql::StatementResult result;
        if (rule != server_.rules_.end()) {
            result.rows = rule->answer();
        }
        onResult(std::move(result));
    }
    void cancel() noexcept override {}
    void begin() override { note("begin"); }
    void commit() override { note("commit"); }
    void rollback() override { note("rollback"); }

private:
    void note(const std::string& what) {
        server_.log.push_back(what);
        loseWhenTold(what);
    }
    void loseWhenTold(const std::string& text) {
        for (auto& loss : server_.losses_) {
            if (loss.times > 0 && text.find(loss.word) != std::string::npos) {
                --loss.times;
                connected_ = false;
                throw SqlError(SqlErrorKind::ConnectionLost, "08S01", {.text = "Link is gone."},
                               text);
            }
        }
    }

    FakeServer& server_;
    bool connected_ = false;
};

FakeServer::FakeServer() {
    Connection::factory = [this](std::string_view) {
        return std::make_unique<FakeConnection>(*this);
    };
}

FakeServer::~FakeServer() {
    Connection::factory = &sql::createConnection;
}

void FakeServer::answer(const std::string& word, Answer answer) {
    rules_.insert(rules_.begin(), {word, std::move(answer)});
}

void FakeServer::answer(const std::string& word, const std::vector<std::string>& columns,
                        const std::vector<std::vector<std::string>>& rows) {
    answer(word, [columns, rows] {
        std::vector<sql::Column> made;
        for (const auto& name : columns) {
            made.push_back({name, sql::ColumnType::Text});
        }
        sql::RowSetBuilder builder(made);
        for (const auto& row : rows) {
            for (const auto& cell : row) {
                builder.addBytes(cell);
            }
            builder.endRow();
        }
        return builder.take();
    });
}

void FakeServer::lose(const std::string& word, int times) {
    losses_.push_back({word, times});
}

void FakeServer::fail(const std::string& word, const std::string& message) {
    answer(word, [word, message]() -> sql::RowSet {
        throw SqlError(SqlErrorKind::Statement, "42000", {.number = 50000, .text = message}, word);
    });
}

int FakeServer::count(const std::string& entry) const {
    return int(std::count(log.begin(), log.end(), entry));
}

} // namespace velcro::test

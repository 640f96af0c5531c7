// The ODBC end through FreeTDS against a server that fails, talks and breaks off at will.
#include "platform/sqlserver/Utf16.h"
#include "platform/sqlserver/odbc/OdbcConnection.h"
#include "support/BadNetwork.h"
#include "support/TdsServer.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

using namespace velcro::sql;
using velcro::test::BadNetwork;
using velcro::test::TdsReply;
using velcro::test::TdsServer;

namespace {

TdsReply answer(const std::string& batch) {
    TdsReply reply;
    if (batch == "cut at once") {
        return reply.cut();
    }
    if (const auto at = batch.find(" after "); at != std::string::npos) {
        reply.column("s");
        for (int i = 0; i < std::stoi(batch.substr(at + 7)); ++i) {
            reply.row("row " + std::to_string(i));
        }
        return batch.starts_with("cut")
                   ? reply.cut()
                   : reply.error(245, "Conversion failed.").done(-1, false, true);
    }
    if (batch == "three statements") {
        reply.column("s").row("first").done(1, true);
        reply.error(208, "Invalid object name 'nowhere'.", 15, 3, 2).done(-1, true, true);
        reply.error(2627, "Violation of PRIMARY KEY constraint.", 14, 1, 3).done(-1, true, true);
        return reply.done(5);
    }
    if (batch == "stall") {
        return reply.column("s").row("never the last").stall();
    }
    if (batch == "ends the transaction") {
        return reply.error(1205, "Chosen as the deadlock victim.", 13)
            .endTransaction()
            .done(-1, false, true);
    }
    if (batch.starts_with("decimals of ")) {
        return reply.decimalColumn("d", std::stoi(batch.substr(12)), 2)
            .decimalRow(123'456'789'012'345'678)
            .decimalRow(-50)
            .decimalRow(1200)
            .decimalRow(0)
            .done(4);
    }
    if (batch == "first fails") {
        return reply.error(245, "Conversion failed.").done(-1, false, true);
    }
    if (batch.starts_with("echo ")) {
        return reply.column("s").row(batch.substr(5)).done(1);
    }
    return reply.done();
}

class OdbcServerTest : public testing::Test
{
protected:
    void connect() { connection->connect(settings); }

    SqlError failure(const std::function<void()>& work) {
        try {
            work();
        } catch (const SqlError& error) {
            return error;
        }
        throw std::logic_error("did not fail");
    }
    SqlError failure(const char* batch) {
        return failure([this, batch] { connection->execute(batch); });
    }

    TdsServer server{answer};
    ConnectionSettings settings{.server = server.address(),
                                .database = "suite",
                                .user = "till",
                                .password = "Top;Secret}1"};
    std::unique_ptr<SqlConnection> connection = createOdbcConnection();
};

} // namespace

TEST_F(OdbcServerTest, errorsOfLaterStatementsAreSeenAndTheFirstIsThrown) {
    connect();
    std::vector<std::string> seen;
    const auto collect = [&seen](StatementResult&& result) {
        for (const auto& message : result.messages) {
            seen.push_back("message " + std::to_string(message.number));
        }
        if (result.rows) {
            seen.push_back("row " + result.rows->text(0, 0));
        } else if (result.affected >= 0) {
            seen.push_back("count " + std::to_string(result.affected));
        }
    };
    const auto error = failure([&] { connection->run("three statements", {}, collect); });
    EXPECT_EQ(seen,
              (std::vector<std::string>{"row first", "message 208", "message 2627", "count 5"}));
    EXPECT_EQ(error.kind(), SqlErrorKind::Statement);
    EXPECT_EQ(error.number(), 208);
    EXPECT_EQ(error.sqlState(), "42S02");
    EXPECT_STREQ(error.what(), "Invalid object name 'nowhere'.");
    EXPECT_EQ(error.message().level, 15);
    EXPECT_EQ(error.message().line, 2);
    EXPECT_EQ(error.statement(), "three statements");
    EXPECT_EQ(connection->query("echo still here").text(0, 0), "still here");
    EXPECT_EQ(failure("first fails").number(), 245);
}

TEST_F(OdbcServerTest, aSelectThatFailsOnTheWayGivesNoRows) {
    connect();
    for (const char* batch :
         {"fail after 0", "fail after 1", "fail after 2000", "fail after 2500"}) {
        bool gaveRows = false;
        const auto error = failure([&] {
            connection->run(batch, {}, [&gaveRows](StatementResult&& result) {
                gaveRows = gaveRows || result.rows;
            });
        });
        EXPECT_EQ(error.number(), 245) << batch;
        EXPECT_FALSE(gaveRows) << batch << ": some of the rows would pass for all of them";
        EXPECT_EQ(connection->query("echo on").text(0, 0), "on");
    }
}

TEST_F(OdbcServerTest, decimalsKeepAllTheirDigits) {
    connect();
    for (const char* digits : {"15", "18"}) {
        const RowSet rows = connection->query(std::string("decimals of ") + digits);
        const char* texts[] = {"1234567890123456.78", "-0.5", "12", "0"};
        const bool all = rows.column(0).type == ColumnType::Decimal;
        EXPECT_EQ(all, std::string(digits) == "18") << "a short one is a plain number";
        for (std::size_t row = all ? 0 : 1; row < std::size(texts); ++row) {
            EXPECT_EQ(rows.text(row, 0), texts[row]);
        }
        EXPECT_EQ(rows.number(1, 0), -0.5);
        EXPECT_EQ(rows.integer(2, 0), 12);
    }
}

TEST_F(OdbcServerTest, literalsArriveNationalAndWhole) {
    connect();
    EXPECT_EQ(connection->query("echo 'Größe' + '漢😀' + 'plain'").text(0, 0),
              "N'Größe' + N'漢😀' + 'plain'");
}

TEST_F(OdbcServerTest, parametersAreSentWhole) {
    connect();
    const auto sent = [this](const std::string& bytes) {
        return server.lastCall().find(bytes) != std::string::npos;
    };
    const auto wide = [](const std::string& text) {
        const auto units = toUtf16(text);
        return std::string(reinterpret_cast<const char*>(units.data()), units.size() * 2);
    };
    std::string picture(3 << 20, '\0');
    for (std::size_t i = 0; i < picture.size(); ++i) {
        picture[i] = static_cast<char>(i * 31 >> 4);
    }
    std::string text; // beyond the 4,000 characters of the short types
    for (int i = 0; i < 2000; ++i) {
        text += "Größe " + std::to_string(i) + " 漢😀 ";
    }
    const Parameter parameters[] = {
        {"Text", text}, {"Picture", Blob{picture}}, {"Name", std::string("Ω")}, {"None", {}}};
    connection->execute("UPDATE t SET a = :Text, b = :Picture, c = :Name, d = :None", parameters);
    EXPECT_TRUE(sent(wide(text)));
    EXPECT_TRUE(sent(picture));
    EXPECT_TRUE(sent(wide("Ω")));
    EXPECT_TRUE(sent(wide(", d = NULL")));
    EXPECT_TRUE(sent(wide("@P1 NVARCHAR(MAX),@P2 VARBINARY(MAX),@P3 NVARCHAR(4000)")));
}

TEST_F(OdbcServerTest, aCutConnectionIsToldFromAFailedStatement) {
    for (const char* batch : {"cut at once", "cut after 0", "cut after 2000", "cut after 2500"}) {
        connect();
        const auto error = failure(batch);
        EXPECT_EQ(error.kind(), SqlErrorKind::ConnectionLost) << batch;
        EXPECT_EQ(error.statement(), batch);
        EXPECT_TRUE(
            std::string(error.what()).starts_with("The connection to the server was lost.\r"))
            << error.what();
        EXPECT_FALSE(connection->isConnected());
        EXPECT_EQ(failure("echo x").kind(), SqlErrorKind::NotConnected);
        EXPECT_NO_THROW(connection->rollback()) << "nothing is left to roll back";
        connect();
        EXPECT_EQ(connection->query("echo back").text(0, 0), "back");
    }
    connection->begin();
    connection->execute("work");
    server.cutAtTransactionEnd = true;
    EXPECT_EQ(failure([this] { connection->commit(); }).kind(), SqlErrorKind::ConnectionLost);
    EXPECT_FALSE(connection->isConnected());
}

TEST_F(OdbcServerTest, aTransactionTheServerEndedIsFoundOutAtOnce) {
    using Batches = std::vector<std::string>;
    for (const bool autoCommit : {false, true}) {
        SCOPED_TRACE(autoCommit);
        const auto before = server.kept().size();
        const auto kept = [&] {
            const auto all = server.kept();
            return Batches(all.begin() + static_cast<long>(before), all.end());
        };
        settings.autoCommit = autoCommit;
        connect();
        EXPECT_EQ(failure("ends the transaction").number(), 1205) << "a read, before the save";
        connection->begin();
        connection->execute("INSERT 1");
        EXPECT_EQ(kept(), Batches()) << "kept before its commit";
        EXPECT_NO_THROW(connection->commit());
        EXPECT_EQ(kept(), Batches{"INSERT 1"});

        connection->begin();
        connection->execute("INSERT half");
        failure("ends the transaction");
        connection->execute("INSERT the other half");
        const auto error = failure([this] { connection->commit(); });
        EXPECT_EQ(error.sqlState(), "25000");
        EXPECT_NE(std::string(error.what()).find("nothing of it was saved"), std::string::npos);
        connection->begin();
        failure("ends the transaction");
        EXPECT_NO_THROW(connection->rollback());
        connection->begin();
        connection->execute("INSERT lost with its connection");
        failure("cut at once");
        connect();
        connection->begin();
        EXPECT_NO_THROW(connection->commit());
        EXPECT_EQ(kept(), Batches{"INSERT 1"});
    }
}

TEST_F(OdbcServerTest, aStatementIsCancelledFromOutside) {
    BadNetwork network(server.address());
    network.delay(std::chrono::milliseconds(1));
    settings.server = network.address();
    connect();
    // A cancel that comes while the driver is still sending can get lost, so it is repeated.
    const auto runAnd = [&](const std::function<void()>& meanwhile) {
        std::atomic<bool> over = false;
        std::thread other([&, come = network.requests() + 1] {
            network.waitForRequests(come);
            while (!over) {
                meanwhile();
                std::this_thread::sleep_for(std::chrono::milliseconds(10));
            }
        });
        const auto error = failure("stall");
        over = true;
        other.join();
        return error;
    };
    connection->cancel();
    const auto error = runAnd([this] { connection->cancel(); });
    EXPECT_EQ(error.kind(), SqlErrorKind::Statement);
    EXPECT_EQ(error.sqlState(), "HY008");
    EXPECT_STREQ(error.what(), "The statement was cancelled.");
    EXPECT_EQ(connection->query("echo on").text(0, 0), "on");
    const auto unanswered = runAnd([&] {
        network.stall();
        std::thread canceller([&] { connection->cancel(); }); // may wait for its own answer
        network.cut();
        canceller.join();
    });
    EXPECT_EQ(unanswered.kind(), SqlErrorKind::ConnectionLost);
}

TEST_F(OdbcServerTest, aLostAnswerToACommitIsALossWhetherItWasKeptOrNot) {
    BadNetwork network(server.address());
    settings.server = network.address();
    for (const bool arrives : {true, false}) {
        connect();
        connection->begin();
        connection->execute(arrives ? "INSERT kept" : "INSERT not kept");
        arrives ? network.cutAtAnswer(1) : network.cutAtRequest(1);
        EXPECT_EQ(failure([this] { connection->commit(); }).kind(), SqlErrorKind::ConnectionLost);
        EXPECT_EQ(server.kept(), std::vector<std::string>{"INSERT kept"});
    }
}

TEST_F(OdbcServerTest, connectFailuresAreClearAndShowNoPassword) {
    TdsServer refuses(answer, TdsServer::Login::Refuse);
    TdsServer cuts(answer, TdsServer::Login::CutAtOnce);
    TdsServer silent(answer, TdsServer::Login::NeverAnswer);
    struct Case
    {
        std::string address;
        std::vector<int> numbers; // any of them
        const char* words;
    };
    const Case cases[] = {
        {refuses.address(), {18456}, "Login failed for user 'till'."},
        {"127.0.0.1,1", {20009}, "Unable to connect"},
        {cuts.address(), {20002, 20006, 20017}, "erver"},
        {silent.address(), {0}, "Timeout expired"},
    };
    settings.connectTimeoutSeconds = 1;
    for (const auto& [address, numbers, words] : cases) {
        settings.server = address;
        const auto error = failure([this] { connect(); });
        EXPECT_EQ(error.kind(), SqlErrorKind::NotConnected) << address;
        EXPECT_EQ(std::count(numbers.begin(), numbers.end(), error.number()), 1) << error.what();
        EXPECT_NE(std::string(error.what()).find(words), std::string::npos) << error.what();
        EXPECT_EQ(std::string(error.what()).find(settings.password), std::string::npos);
        EXPECT_FALSE(connection->isConnected());
    }
}

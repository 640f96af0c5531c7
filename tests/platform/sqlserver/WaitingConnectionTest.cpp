#include "platform/sqlserver/WaitingConnection.h"

#include "platform/sqlserver/Waiting.h"
#include "support/EmbeddedDatabase.h"
#include "support/TdsServer.h"

#include <gtest/gtest.h>

#include <thread>

using namespace velcro::sql;
using std::chrono::milliseconds;
using velcro::test::TdsReply;
using velcro::test::TdsServer;

namespace {

SqlError failureOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const SqlError& error) {
        return error;
    }
    throw std::runtime_error("no failure");
}

/// A server that does not answer a batch "stall", and connections to it, while a hook watches.
struct WaitingConnectionTest : testing::Test
{
    ~WaitingConnectionTest() override { setWaitHook({}); }

    /// The wait is given up once it has lasted this long.
    void watch(milliseconds patience = milliseconds::max()) {
        setWaitHook({[this, patience](WaitFor what, milliseconds waited) {
                         EXPECT_EQ(what, WaitFor::Server);
                         EXPECT_EQ(std::this_thread::get_id(), asker);
                         ++looks;
                         return waited < patience;
                     },
                     [this] { ++ends; }});
    }
    std::unique_ptr<SqlConnection> connected(const TdsServer& to) {
        auto connection = createConnection(to.address());
        connection->connect(
            {.server = to.address(), .database = "d", .user = "u", .password = "p"});
        return connection;
    }

    static TdsReply answer(const std::string& batch) {
        if (batch == "stall") {
            return TdsReply().stall();
        }
        if (batch == "slow") {
            std::this_thread::sleep_for(milliseconds(150));
        }
        if (batch == "wrong") {
            return TdsReply().error(208, "Invalid object name.").done(-1, false, true);
        }
        return TdsReply().column("A").row(batch).done(1);
    }

    TdsServer server{answer};
    std::thread::id asker = std::this_thread::get_id();
    int looks = 0;
    int ends = 0;
};

} // namespace

TEST_F(WaitingConnectionTest, answersComeAsWithoutAHookAndFastOnesAreNotWatched) {
    for (const bool watched : {false, true}) {
        if (watched) {
            watch();
        }
        const auto connection = connected(server);
        looks = 0;
        ends = 0;
        EXPECT_EQ(connection->query("hello").text(0, 0), "hello");
        EXPECT_EQ(looks, 0);
        EXPECT_EQ(failureOf([&] { connection->execute("wrong"); }).number(), 208);
        EXPECT_EQ(connection->query("slow").text(0, 0), "slow");
        EXPECT_EQ(looks > 0, watched);
        EXPECT_EQ(ends, watched ? 1 : 0);
        EXPECT_TRUE(connection->isConnected());
        connection->disconnect();
        EXPECT_FALSE(connection->isConnected());
    }
}

TEST_F(WaitingConnectionTest, aWaitThatIsGivenUpCountsAsALostConnection) {
    watch(milliseconds(100));
    const auto connection = connected(server);
    ends = 0; // the log-in may have been slow
    const auto failure = failureOf([&] { connection->execute("stall"); });
    EXPECT_EQ(failure.kind(), SqlErrorKind::ConnectionLost);
    EXPECT_STREQ(failure.what(), "The server did not answer, and waiting for it was given up.");
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(connection->isConnected());
    connection->rollback(); // of what the server rolls back itself
    EXPECT_EQ(failureOf([&] { connection->execute("hello"); }).kind(), SqlErrorKind::NotConnected);
    connection->connect(
        {.server = server.address(), .database = "d", .user = "u", .password = "p"});
    EXPECT_EQ(connection->query("again").text(0, 0), "again");
}

TEST_F(WaitingConnectionTest, aConnectThatIsNeverAnsweredCanBeGivenUp) {
    const TdsServer deaf(answer, TdsServer::Login::NeverAnswer);
    watch(milliseconds(100));
    EXPECT_EQ(failureOf([&] { connected(deaf); }).kind(), SqlErrorKind::ConnectionLost);
    EXPECT_EQ(ends, 1);
}

TEST_F(WaitingConnectionTest, nothingStartsOnAConnectionThatStillWaits) {
    const auto connection = connected(server);
    std::string refused;
    setWaitHook({[&](WaitFor, milliseconds) {
                     EXPECT_TRUE(connection->isConnected());
                     refused = failureOf([&] { connection->execute("x"); }).sqlState();
                     return true;
                 },
                 {}});
    EXPECT_EQ(connection->query("slow").text(0, 0), "slow");
    EXPECT_EQ(refused, "HY010");
}

TEST_F(WaitingConnectionTest, aLockOfAnotherProgramIsWatchedAndCanBeGivenUp) {
    const velcro::test::EmbeddedDatabase shop;
    shop.answer("CREATE TABLE T (A int)");
    const auto other = shop.open();
    const auto mine = shop.open();
    for (const bool givenUp : {false, true}) {
        other->begin();
        other->execute("INSERT INTO T VALUES (1)");
        looks = 0;
        ends = 0;
        setWaitHook({[&](WaitFor what, milliseconds) {
                         EXPECT_EQ(what, WaitFor::Lock);
                         EXPECT_EQ(failureOf([&] { mine->execute("SELECT 1"); }).sqlState(),
                                   "HY010");
                         if (++looks == 3 && !givenUp) {
                             std::thread([&] { other->commit(); }).join();
                         }
                         return !givenUp;
                     },
                     [this] { ++ends; }});
        if (givenUp) {
            EXPECT_EQ(failureOf([&] { mine->execute("INSERT INTO T VALUES (2)"); }).number(), 1222);
            other->commit();
        } else {
            mine->execute("INSERT INTO T VALUES (2)");
        }
        EXPECT_EQ(looks > 2, !givenUp);
        EXPECT_EQ(ends, 1);
        setWaitHook({});
    }
    EXPECT_EQ(shop.answer("SELECT A FROM T ORDER BY A"), "1;1;2");
}

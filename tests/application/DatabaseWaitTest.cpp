#include "application/DatabaseWait.h"

#include "data/Connection.h"
#include "platform/sqlserver/Waiting.h"
#include "support/TdsServer.h"
#include "support/TypedAhead.h"
#include "support/WaitingScreen.h"

#include <chrono>
#include <thread>

using namespace velcro::test;
using velcro::sql::SqlError;
using velcro::sql::SqlErrorKind;

namespace {

TdsReply answer(const std::string& batch) {
    if (batch == "SELECT never") {
        return TdsReply().stall();
    }
    if (batch == "SELECT late") {
        std::this_thread::sleep_for(std::chrono::milliseconds(800));
    }
    return TdsReply().column("A").row("1").done(1);
}

class DatabaseWaitTest : public WaitingScreen
{
protected:
    DatabaseWaitTest() {
        connection.setConnectString(sfg_BuildUNIConnectionStr(
            QString::fromStdString(server.address()), "SUITE", "till", "secret", {}, {}));
        connection.Connect();
        watchDatabaseWaits();
    }
    ~DatabaseWaitTest() override { velcro::sql::setWaitHook({}); }

    TdsServer server{answer};
    Connection connection{{}};
};

} // namespace

TEST_F(DatabaseWaitTest, theWindowPaintsTellsOfTheWaitAndKeepsWhatIsTyped) {
    queueText("a");
    typeWhenTold = [this] {
        painted = false;
        screen.update();
        queueText("b");
    };
    EXPECT_EQ(connection.run("SELECT late", {}).size(), 1U);
    EXPECT_EQ(told, QStringList("Waiting for the server to answer."));
    EXPECT_TRUE(painted);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(edit->text(), "");
    takeQueue();
    EXPECT_EQ(edit->text(), "ab");
}

TEST_F(DatabaseWaitTest, escapeGivesAServerUpThatDoesNotAnswer) {
    queueText("a");
    typeWhenTold = [] {
        queueKey(Qt::Key_Escape);
        queueText("b");
    };
    try {
        connection.run("SELECT never", {});
        ADD_FAILURE() << "the server never answers";
    } catch (const SqlError& error) {
        EXPECT_EQ(error.kind(), SqlErrorKind::ConnectionLost);
    }
    takeQueue();
    EXPECT_EQ(edit->text(), "ab") << "Escape was for the wait, the letters for the screen";
    EXPECT_EQ(connection.run("SELECT 1", {}).size(), 1U) << "the next statement connects again";
    EXPECT_EQ(told.size(), 1);
}

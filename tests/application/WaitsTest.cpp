// What a seat does while a server lets it wait: its window paints, tells of it, and keeps what is
// typed.
#include "application/DatabaseWait.h"
#include "application/ServiceWait.h"
#include "data/Connection.h"
#include "messaging/Breathing.h"
#include "platform/http/Client.h"
#include "platform/http/Waiting.h"
#include "platform/sqlserver/Waiting.h"
#include "support/RawServer.h"
#include "support/TdsServer.h"
#include "support/TypedAhead.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <thread>

using namespace velcro::test;

namespace {

void takeTime() {
    std::this_thread::sleep_for(std::chrono::milliseconds(800));
}

class WaitsTest : public testing::TestWithParam<const char*>, public QObject
{
protected:
    WaitsTest() {
        (new QVBoxLayout(&screen))->addWidget(edit);
        screen.resize(800, 600);
        screen.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
        connection.setConnectString(sfg_BuildUNIConnectionStr(
            QString::fromStdString(database.address()), "SUITE", "till", "secret", {}, {}));
        connection.Connect();
        watchDatabaseWaits();
        watchServiceWaits();
        qApp->installEventFilter(this);
    }
    ~WaitsTest() override {
        qApp->removeEventFilter(this);
        velcro::sql::setWaitHook({});
        velcro::http::setWaitHook({});
        gLetScreensPaint = {};
    }

    /// What a server answers to "late" or "never" or anything else; or what the wait ended with.
    std::string ask(const std::string& question) {
        try {
            if (isDatabase) {
                return connection.run(QString::fromStdString(question), {}).size() == 1
                           ? question
                           : "no answer";
            }
            return velcro::http::Client()
                .send({.method = "GET", .address = service.address() + question})
                .body;
        } catch (const std::exception& error) {
            return error.what();
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched->objectName() == "WaitNotice" && event->type() == QEvent::Show) {
            told << static_cast<QWidget*>(watched)->findChild<QLabel*>()->text();
            typeWhenTold();
        }
        painted = painted || (event->type() == QEvent::Paint && watched == &screen);
        return false;
    }

    const bool isDatabase = GetParam() == std::string("database");
    TdsServer database{[](const std::string& batch) {
        if (batch == "late") {
            takeTime();
        }
        return batch == "never" ? TdsReply().stall() : TdsReply().column("A").row("1").done(1);
    }};
    RawServer service{[this](int) {
        if (never) {
            return RawServer::Reply{"", RawServer::Reply::Stall};
        }
        takeTime();
        return RawServer::Reply{RawServer::whole("late")};
    }};
    Connection connection{{}};
    QWidget screen;
    QLineEdit* edit = new QLineEdit;
    QStringList told;
    bool painted = false;
    bool never = false;
    std::function<void()> typeWhenTold = [] {};
};

INSTANTIATE_TEST_SUITE_P(On, WaitsTest, testing::Values("database", "service"),
                         [](const auto& info) { return std::string(info.param); });

} // namespace

TEST_P(WaitsTest, theWindowPaintsTellsOfTheWaitAndKeepsWhatIsTyped) {
    queueText("a");
    typeWhenTold = [this] {
        painted = false;
        screen.update();
        queueText("b");
    };
    EXPECT_EQ(ask("late"), "late");
    EXPECT_EQ(told, QStringList(isDatabase ? "Waiting for the server to answer."
                                           : "Waiting for the message service to answer."));
    EXPECT_TRUE(painted);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(edit->text(), "");
    takeQueue();
    EXPECT_EQ(edit->text(), "ab");
}

TEST_P(WaitsTest, escapeGivesUpAServerThatDoesNotAnswer) {
    never = true;
    queueText("a");
    typeWhenTold = [] {
        queueKey(Qt::Key_Escape);
        queueText("b");
    };
    EXPECT_EQ(ask("never"), isDatabase
                                ? "The server did not answer, and waiting for it was given up."
                                : "Waiting for the answer was given up.");
    takeQueue();
    EXPECT_EQ(edit->text(), "ab") << "Escape was for the wait, the letters for the screen";
    EXPECT_EQ(told.size(), 1);
    if (isDatabase) {
        EXPECT_EQ(ask("SELECT 1"), "SELECT 1") << "the next statement connects again";
    }
    painted = false;
    screen.update();
    letScreensPaint();
    EXPECT_TRUE(painted);
}

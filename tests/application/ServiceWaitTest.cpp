#include "application/ServiceWait.h"

#include "messaging/Breathing.h"
#include "platform/http/Client.h"
#include "platform/http/Waiting.h"
#include "support/RawServer.h"
#include "support/TypedAhead.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

using namespace velcro::test;
using velcro::http::Client;
using velcro::http::HttpError;
using Reply = RawServer::Reply;

namespace {

/// A screen of a seat whose message service takes its time. Types when the wait is told.
class ServiceWaitTest : public testing::Test, public QObject
{
protected:
    ServiceWaitTest() {
        (new QVBoxLayout(&screen))->addWidget(edit);
        screen.resize(800, 600);
        screen.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
        watchServiceWaits();
        qApp->installEventFilter(this);
    }
    ~ServiceWaitTest() override {
        qApp->removeEventFilter(this);
        velcro::http::setWaitHook({});
        gLetScreensPaint = {};
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched->objectName() == "WaitNotice" && event->type() == QEvent::Show) {
            told << static_cast<QWidget*>(watched)->findChild<QLabel*>()->text();
            typeWhenTold();
        }
        painted = painted || (event->type() == QEvent::Paint && watched == &screen);
        return false;
    }

    QWidget screen;
    QLineEdit* edit = new QLineEdit;
    QStringList told;
    bool painted = false;
    std::function<void()> typeWhenTold = [] {};
};

} // namespace

TEST_F(ServiceWaitTest, theScreenPaintsAndKeepsWhatIsTyped) {
    const RawServer server([](int) {
        std::this_thread::sleep_for(std::chrono::milliseconds(800));
        return Reply{RawServer::whole("late")};
    });
    queueText("a");
    typeWhenTold = [this] {
        painted = false;
        screen.update();
        queueText("b");
    };
    EXPECT_EQ(Client().send({.method = "GET", .address = server.address()}).body, "late");
    EXPECT_EQ(told, QStringList("Waiting for the message service to answer."));
    EXPECT_TRUE(painted);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(edit->text(), "");
    takeQueue();
    EXPECT_EQ(edit->text(), "ab");
}

TEST_F(ServiceWaitTest, escapeGivesTheMessageUp) {
    const RawServer server([](int) { return Reply{"", Reply::Stall}; });
    typeWhenTold = [] {
        queueKey(Qt::Key_Escape);
        queueText("b");
    };
    try {
        Client().send({.method = "GET", .address = server.address()});
        FAIL() << "nobody answers";
    } catch (const HttpError& error) {
        EXPECT_STREQ(error.what(), "Waiting for the answer was given up.");
    }
    takeQueue();
    EXPECT_EQ(edit->text(), "b") << "Escape was for the wait";
    painted = false;
    screen.update();
    letScreensPaint();
    EXPECT_TRUE(painted);
}

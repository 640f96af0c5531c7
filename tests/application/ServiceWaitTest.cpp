#include "application/ServiceWait.h"

#include "messaging/Breathing.h"
#include "platform/http/Client.h"
#include "platform/http/Waiting.h"
#include "support/RawServer.h"
#include "support/TypedAhead.h"
#include "support/WaitingScreen.h"

#include <chrono>
#include <thread>

using namespace velcro::test;
using velcro::http::Client;
using velcro::http::HttpError;
using Reply = RawServer::Reply;

namespace {

class ServiceWaitTest : public WaitingScreen
{
protected:
    ServiceWaitTest() { watchServiceWaits(); }
    ~ServiceWaitTest() override {
        velcro::http::setWaitHook({});
        gLetScreensPaint = {};
    }
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

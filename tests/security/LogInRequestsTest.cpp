// Each request of a log-in is a way over the network and back, and somebody waits for all of them.

#include "data/ConnectModule.h"
#include "data/DataModules.h"
#include "data/Session.h"
#include "security/SysLogIn.h"
#include "support/Desk.h"
#include "support/DroppingServer.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

using velcro::test::Desk;

TEST(LogInRequestsTest, noneIsSentOftenerThanItsStepsAsk) {
    const Desk desk{Desk::Start::Configured};
    Desk::onSuite("DELETE FROM EMPMaster"); // birthday messages ask again for each employee
    const velcro::test::DroppingServer server;
    cData->ConnectDB_Common();
    ASSERT_TRUE(sli_VerifyDatabase(QStringLiteral("Brindavel Central Workshop")));
    ASSERT_TRUE(sli_LogIn("COUNTER1", "COUNTER", gDBaseRecID.toInt(), {}, {}));
    EXPECT_LE(server.statements, 27);
    std::map<std::string, int> times;
    for (const auto& text : server.texts) {
        // Two steps of it ask for the day and the currency, each for itself.
        const bool asked = text.find("current_timestamp") != std::string::npos ||
                           text.find("FROM SysCurrencyMst") != std::string::npos;
        EXPECT_LE(++times[text], asked ? 2 : 1) << text;
    }
}

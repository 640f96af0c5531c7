// The day's birthday messages, from the log-in to what goes over the wire.
#include "security/SysLogIn.h"

#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/Session.h"
#include "messaging/SysComms.h"
#include "platform/seat/Clock.h"
#include "support/DroppingServer.h"
#include "support/HttpServer.h"
#include "support/MessageSite.h"

#include <gtest/gtest.h>

using namespace velcro::test;

namespace {

class BirthdayMessagesTest : public testing::Test
{
protected:
    BirthdayMessagesTest() {
        velcro::seat::setClock(QDateTime(QDate(2026, 11, 23), QTime(9, 5, 7, 42)));
        cData->ConnectDB_Common();
    }
    ~BirthdayMessagesTest() override { velcro::seat::setClock({}); }

    static bool logIn(const QString& user, const QString& password) {
        return sli_VerifyDatabase("Brindavel Central Workshop") &&
               sli_LogIn(user, password, gDBaseRecID.toInt(), {}, {});
    }
    /// Of today's employees of branch 100, in the order of the run.
    static QStringList names() {
        QStringList names;
        Statement employees(gData->Velmara);
        employees.Open({"SELECT EmplName FROM EMPMaster WHERE CO = '01' AND Branch = '100' AND "
                        "SUBSTRING(BirthDate, 6, 5) = '" +
                        sfg_Date(0).mid(5) + "' ORDER BY EmplName"});
        for (; !employees.Eof(); employees.Next()) {
            names << employees.Fields(0).AsString();
        }
        return names;
    }
    static std::string marked() {
        return Desk::suite("SELECT COUNT(*) FROM EMPTxans WHERE CO = '01' AND Branch = '100' AND "
                           "TxTp = 'POSEMP' AND TranDate = '" +
                           sfg_Date(0) + "'")
            .toStdString();
    }
    std::string shown() const { return desk.shown.join('\n').toStdString(); }
    static std::string textFor(const QString& name, const char* user) {
        QString text = "Birthday today:  " + name + " Sent  " + sfg_Date(0) + "  by  " + user;
        return text.replace('H', 'h').replace('&', 'n').toStdString();
    }

    Desk desk{Desk::Start::Configured};
};

} // namespace

TEST_F(BirthdayMessagesTest, theSampleSeatSendsNothingAndSaysNothing) {
    ASSERT_TRUE(logIn("COUNTER1", "COUNTER")) << gErrorMsg.toStdString();
    EXPECT_EQ(names().size(), 2) << "the sample has employees born today";
    EXPECT_EQ(shown(), "");
    EXPECT_TRUE(sysc_ReturnMsg.startsWith("Error Sending Text Message\rThis is no http address"));
    EXPECT_EQ(marked(), "2") << "an attempt counts";
    EXPECT_EQ(Desk::suite("SELECT COUNT(*) FROM EMPTxans T0 INNER JOIN EMPMaster T1 ON "
                          "T1.CO = T0.CO AND T1.Branch = T0.Branch AND T1.EmplNo = T0.EmplNo "
                          "WHERE T0.Details = T1.CellPhone AND T0.Reference = T1.IDNo AND "
                          "T0.DrCr = '' AND T0.Amount = 0"),
              "2");
}

TEST_F(BirthdayMessagesTest, theFirstLogInOfTheDayAsksTheServiceForEachEmployee) {
    const HttpServer server([](const HttpServer::Received& request) {
        return HttpServer::Reply{request.target == "/Authentication" ? 200 : 202,
                                 request.target == "/Authentication" ? "{\"token\":\"K\"}" : "{}"};
    });
    pointMessagesAt({}, server.address());
    ASSERT_TRUE(logIn("COUNTER1", "COUNTER")) << gErrorMsg.toStdString();
    std::vector<std::string> expected;
    for (const QString& name : names()) {
        expected.emplace_back(
            "POST /Authentication {\"username\":\"mobile\",\"password\":\"secret\"}");
        expected.push_back("POST /v3/bulkmessages {\"messages\":[{\"destination\":"
                           "\"082-555-0105\",\"content\":\"" +
                           textFor(name, "COUNTER1") +
                           "\",\"messageId\":\"single-id-20261123090507042\"}]}");
    }
    EXPECT_EQ(expected.size(), 4U);
    EXPECT_EQ(server.lines(), expected);
    EXPECT_EQ(marked(), "2");
    EXPECT_EQ(shown(), "");
    ASSERT_TRUE(logIn("MANAGER", "MANAGER")) << gErrorMsg.toStdString();
    EXPECT_EQ(server.received().size(), 4U) << "the day's messages are out";
}

TEST_F(BirthdayMessagesTest, withoutATemplateTheNextLogInTriesAgain) {
    const HttpServer server([](const auto&) { return HttpServer::Reply{200, "{\"status\":1}"}; });
    pointMessagesAt(server.address(), {});
    Desk::onSuite("UPDATE SysTxanSMS SET TxTp = 'LATER' WHERE TxTp = 'POSEMP'");
    ASSERT_TRUE(logIn("COUNTER1", "COUNTER"));
    EXPECT_EQ(marked(), "0");
    Desk::onSuite("UPDATE SysTxanSMS SET TxTp = 'POSEMP' WHERE TxTp = 'LATER'");
    EXPECT_TRUE(sli_Process_Employee_Birthday_SMS());
    EXPECT_EQ(server.received().size(), 2U);
    EXPECT_EQ(marked(), "2");
    Desk::onSuite("DELETE FROM EMPMaster");
    EXPECT_FALSE(sli_Process_Employee_Birthday_SMS());
}

TEST_F(BirthdayMessagesTest, faultsAreShownAndTheLogInPasses) {
    Desk::onSuite("DROP TABLE SysTxanSMS");
    ASSERT_TRUE(logIn("COUNTER1", "COUNTER"));
    EXPECT_EQ(desk.shown.size(), 2);
    EXPECT_TRUE(desk.shown.value(0).startsWith("999999|SQL Error on Table: SysTxanSMS :-\r"));
    EXPECT_EQ(marked(), "0");
}

TEST_F(BirthdayMessagesTest, aConnectionLostBeforeTheMarkerEndsTheRunAndKeepsTheLogIn) {
    DroppingServer database;
    const HttpServer server([&database](const auto&) {
        database.dropAt(2); // behind the begin of the transaction
        return HttpServer::Reply{200, "{\"status\":1}"};
    });
    pointMessagesAt(server.address(), {});
    ASSERT_TRUE(logIn("COUNTER1", "COUNTER")) << gErrorMsg.toStdString();
    EXPECT_TRUE(database.dropped());
    EXPECT_EQ(server.received().size(), 1U) << "the second waits until the first can be marked";
    ASSERT_EQ(desk.shown.size(), 1);
    EXPECT_TRUE(desk.shown[0].startsWith("box|SQL Error\r")) << shown();
    ASSERT_TRUE(logIn("COUNTER1", "COUNTER")) << gErrorMsg.toStdString();
    database.forget();
    EXPECT_EQ(server.received().size(), 2U) << "the first is tried again";
}

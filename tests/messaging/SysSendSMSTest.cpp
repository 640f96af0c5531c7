#include "messaging/SysSendSMS.h"

#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "messaging/MessageText.h"
#include "messaging/SysComms.h"
#include "platform/seat/Clock.h"
#include "security/SysLoadParams.h"
#include "support/HttpServer.h"
#include "support/MessageSite.h"

#include <gtest/gtest.h>

#include <QFile>

#include <limits>

using namespace velcro::test;

namespace {

// A gateway that takes everything, and templates of the test's own.
class SysSendSMSTest : public testing::Test
{
protected:
    SysSendSMSTest() {
        velcro::seat::setClock(QDateTime(QDate(2026, 11, 23), QTime(9, 5, 7)));
        pointMessagesAt(gateway.address(), {});
        par_LoadParameters(gCO, gBranch);
        for (const auto* table : {"SysTxanSMS", "SYSUserSMS", "DEBContacts", "POSVIPMembers"}) {
            Desk::onSuite(QStringLiteral("DELETE FROM ") + table);
        }
        for (QString* field : {&syssms_TxTpKey, &syssms_MsgType, &syssms_Account, &syssms_AccName,
                               &syssms_TranDate, &syssms_RefNo, &syssms_DocNo, &syssms_Details,
                               &syssms_TxtHeader, &syssms_TxtTrailer, &syssms_ReturnMsg}) {
            field->clear();
        }
        syssms_Init();
        syssms_TxTp = "POSINV";
        syssms_Account = "C00001";
    }
    ~SysSendSMSTest() override { velcro::seat::setClock({}); }

    static void addTemplate(const QString& type, const QString& header, const QString& trailer = {},
                            const QString& txTp = "POSINV") {
        Desk::onSuite("INSERT INTO SysTxanSMS ([CO], [Branch], [TxTp], [MsgType], [TxtHeader], "
                      "[TxtTrailer]) VALUES (" +
                      valueList({"01", "100", txTp, type, header, trailer}) + ")");
    }
    static void addContact(const QString& cellPhone, const QString& plain, const QString& pins,
                           int place, const QString& branch = "100") {
        Desk::onSuite("INSERT INTO DEBContacts ([CO], [Branch], [DebtorType], [Account], "
                      "[CellPhone], [SMSTxans], [SMSOTP], [PrtySeq]) VALUES (" +
                      valueList({"01", branch, "D", "C00001", cellPhone, plain, pins,
                                 QString::number(place)}) +
                      ")");
    }
    static void addMember(const QString& card, const QString& cellNo) {
        Desk::onSuite("INSERT INTO POSVIPMembers ([VIPCardNo], [Name], [CellNo]) VALUES (" +
                      valueList({card, "Member", cellNo}) + ")");
    }
    static void addToList(const QString& user, const QString& type) {
        Desk::onSuite("INSERT INTO SYSUserSMS ([CO], [Branch], [UserCode], [TxTp], [MsgType]) "
                      "VALUES (" +
                      valueList({"01", "100", user, "POSINV", type}) + ")");
    }
    /// "number text" of the messages that left since the last look, in their order. A text whose
    /// trailer is blank ends in a blank, which is left out here.
    std::string sent() {
        QStringList messages;
        const auto received = gateway.received();
        for (; looked_ < received.size(); ++looked_) {
            const QString target = QString::fromStdString(received[looked_].target);
            const QString text = target.section("&text=", 1).section("&from=", 0, 0);
            messages << target.section("&to=", 1).section("&text=", 0, 0) + ' ' +
                            QString(text).replace("%20", " ").trimmed();
        }
        return messages.join('\n').toStdString();
    }
    static std::string pins() {
        return Desk::suite("SELECT COUNT(*) FROM SysTxanOTP").toStdString();
    }

    Desk desk;
    HttpServer gateway{[](const auto&) { return HttpServer::Reply{200, "{\"status\":\"0\"}"}; }};

private:
    std::size_t looked_ = 0;
};

} // namespace

TEST_F(SysSendSMSTest, placeholdersAreFilledIn) {
    syssms_AccName = "ANN";
    syssms_Amount = 1234.5;
    syssms_Balance = -0.125;
    syssms_TranDate = "2026/11/01";
    syssms_RefNo = "  R1 ";
    syssms_DocNo = " D1";
    syssms_Details = "some \n";
    syssms_OTP = 4711;
    const QString day = sfg_Date(0);
    const struct
    {
        QString text, made;
    } templates[] = {
        {"Dear @AccName#, thanks", "Dear  ANN , thanks"},
        {"@AccName#@AccName#", " ANN  ANN "},
        {"@accname#", "@accname#"},
        {"@Account#|@Amount#|@Balance#", " C00001 | 1234.50 | -0.13 "},
        {"@TranDate#|@RefNo#|@DocNo#|@Details#|@OTP#", " 2026/11/01 | R1 | D1 | some | 4711 "},
        {"@CurrDate#|@CurrDateTime#|@User#", " " + day + " | " + day + " 09:05:07 | COUNTER1 "},
        {"Hello & HELLO @Unknown#", "hello n hELLO @Unknown#"},
        {"", ""},
    };
    for (const auto& [text, made] : templates) {
        EXPECT_EQ(syssms_Make_Message(text).toStdString(), made.toStdString());
    }
    syssms_AccName = "Smith & Hall";
    EXPECT_EQ(syssms_Make_Message("@AccName#"), " Smith n hall ");
    syssms_AccName = "@OTP#";
    EXPECT_EQ(syssms_Make_Message("@AccName#"), "  4711  ") << "what comes later is filled in";
}

TEST_F(SysSendSMSTest, amountsHaveEightDigits) {
    const std::pair<double, const char*> amounts[] = {
        {0, "0.00"},
        {1234.5, "1234.50"},
        {0.005, "0.01"},
        {0.004, "0.00"},
        {-0.001, "0.00"},
        {9.999, "10.00"},
        {999999.999, "1000000.00"},
        {1234567.89, "1234567.90"},
        {12345678.4, "12345678.00"},
        {123456789, "1.2345679E8"},
        {-1e20, "-1E20"},
        {std::numeric_limits<double>::infinity(), "INF"},
    };
    for (const auto& [amount, text] : amounts) {
        EXPECT_EQ(messageAmount(amount).toStdString(), text);
    }
}

TEST_F(SysSendSMSTest, aValueWithItsOwnPlaceholderDoesNotHoldUpTheSeat) {
    syssms_AccName = "@AccName#";
    const QString text = syssms_Make_Message("Dear @AccName#!");
    EXPECT_TRUE(text.startsWith("Dear  ") && text.endsWith(" !"));
    EXPECT_GT(text.size(), 64 * 1024);
    EXPECT_LT(text.size(), 65 * 1024);
    QFile log(gLogPath + "SMSTemplate.log");
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_TRUE(log.readAll().contains("The value of @AccName# holds the placeholder itself"));
    addTemplate("C", "Dear @AccName#!");
    addContact("0825550101", "Y", "N", 1);
    EXPECT_TRUE(syssms_SendSMS());
    EXPECT_GT(syssms_Message.size(), 64 * 1024);
    EXPECT_TRUE(sysc_ReturnMsg.startsWith("Error Sending Text Message\rHTTP/1.1 414"))
        << "it was sent, and is more than this gateway takes";
}

TEST_F(SysSendSMSTest, withoutATypeOrATemplateNothingIsSent) {
    syssms_TxTp = "  ";
    EXPECT_FALSE(syssms_SendSMS());
    EXPECT_EQ(syssms_ReturnMsg, "No Transaction Type");
    syssms_ReturnMsg.clear();
    syssms_TxTp = "POSINV";
    addTemplate("U", "text", {}, "OTHER");
    EXPECT_FALSE(syssms_SendSMS());
    EXPECT_EQ(syssms_ReturnMsg, "");
    EXPECT_FALSE(gData->vQuery10.Active());
    addTemplate("O", "pins alone");
    EXPECT_FALSE(syssms_SendSMS()) << "not without a request for one";
    addTemplate("C", " ", " ");
    addContact("0825550101", "Y", "N", 1);
    EXPECT_TRUE(syssms_SendSMS());
    addTemplate("X", "a type of tomorrow");
    EXPECT_TRUE(syssms_SendSMS());
    EXPECT_EQ(sent(), "");
}

TEST_F(SysSendSMSTest, usersOfTheListWithANumberGetIt) {
    addTemplate("U", "Sold", "by @User#");
    addToList("MANAGER", "U");
    addToList("SUPER2", "U"); // has no number
    addToList("TECH1", "O");
    EXPECT_TRUE(syssms_SendSMS());
    EXPECT_EQ(sent(), "082-555-0105 Sold by  COUNTER1");
    EXPECT_EQ(pins(), "0");
    syssms_MsgType = "O";
    syssms_OTP = 815;
    syssms_TxTpKey = "KEY";
    addTemplate("O", "Pin @OTP#", "end");
    EXPECT_TRUE(syssms_SendSMS());
    EXPECT_EQ(sent(), "082-555-0104 Pin  815 end");
    const QString row =
        Desk::suite("SELECT CONCAT(CO, '|', Branch, '|', TxTp, '|', TxTpKey, '|', Status, "
                    "'|', OTP, '|', CellNo, '|', ReqTime, '|', ReqUser, '|', UpdDate, "
                    "UpdTime, DocNo, '|', SMSMessage) FROM SysTxanOTP");
    EXPECT_EQ(row.toStdString(),
              "01|100|POSINV|KEY|0|815|082-555-0104|09:05:07|COUNTER1||Pin  815 end");
    EXPECT_EQ(Desk::suite("SELECT ReqDate FROM SysTxanOTP"), sfg_Date(0));
}

TEST_F(SysSendSMSTest, contactsWhoAgreedGetItInTheirOrder) {
    addTemplate("C", "Plain");
    addContact("0825550103", "Y", "N", 2);
    addContact("0825550102", "Y", "Y", 1);
    addContact("0825550104", "N", "Y", 3);
    addContact(" ", "Y", "Y", 4);
    addContact("0825550109", "Y", "Y", 5, "101");
    EXPECT_TRUE(syssms_SendSMS());
    EXPECT_EQ(sent(), "0825550102 Plain\n0825550103 Plain");
    Desk::onSuite("DELETE FROM SysTxanSMS");
    addTemplate("N", "Pin");
    EXPECT_TRUE(syssms_SendSMS());
    EXPECT_EQ(sent(), "0825550102 Pin\n0825550104 Pin");
    gDebBranch = "101"; // debtors are those of another branch
    EXPECT_TRUE(syssms_SendSMS());
    EXPECT_EQ(sent(), "0825550109 Pin");
    EXPECT_EQ(pins(), "0");
    syssms_MsgType = "O";
    EXPECT_FALSE(syssms_SendSMS());
    EXPECT_EQ(desk.shown.size(), 1);
    EXPECT_TRUE(desk.shown.value(0).startsWith("999999|SQL Error on Table: DEBContacts :-\r"));
    EXPECT_TRUE(desk.shown.value(0).contains("CellNo")) << desk.shown.value(0).toStdString();
}

TEST_F(SysSendSMSTest, membersAreFoundByCardOrNumber) {
    syssms_TxTp = "VIPJOI";
    addTemplate("C", "Welcome", {}, "VIPJOI");
    addMember("V1", "0825550106");
    addMember("V2", "0825550107");
    for (const auto* account : {"V1", "0825550107", "nobody", "' OR 1=1 --"}) {
        syssms_Account = account;
        EXPECT_TRUE(syssms_SendSMS()) << account;
    }
    EXPECT_EQ(sent(), "0825550106 Welcome\n0825550107 Welcome");
    EXPECT_EQ(pins(), "2") << "a plain message leaves a row too";
    Desk::onSuite("DELETE FROM SysTxanSMS");
    addTemplate("N", "Pin", {}, "VIPJOI");
    syssms_Account = "V1";
    EXPECT_TRUE(syssms_SendSMS());
    EXPECT_EQ(sent(), "0825550106 Pin");
    EXPECT_EQ(pins(), "4") << "two rows for one pin";
}

TEST_F(SysSendSMSTest, aBlankTrailerIsTheOneBefore) {
    addContact("0825550101", "Y", "N", 1);
    addTemplate("C", "first", "@AccName# trailer");
    addTemplate("C", "second");
    syssms_AccName = "Ann";
    EXPECT_TRUE(syssms_SendSMS());
    EXPECT_EQ(sent(), "0825550101 first Ann  trailer\n0825550101 second Ann  trailer");
}

TEST_F(SysSendSMSTest, namesOfAnyKindArriveAsTheyAre) {
    addTemplate("C", "@AccName#");
    addContact("0825550101", "Y", "N", 1);
    syssms_AccName = "O'Hara \"x\"\r\n<b>@ \U0001F600";
    EXPECT_TRUE(syssms_SendSMS());
    EXPECT_EQ(sent(), "0825550101 O'hara \"x\"%0D%0A<b>@ %F0%9F%98%80");
}

TEST_F(SysSendSMSTest, aReadThatFailsIsShownAndEndsTheRun) {
    addTemplate("U", "text", {}, "POSEMP");
    addTemplate("C", "text");
    addTemplate("C", "text", {}, "VIPJOI");
    addTemplate("N", "text", {}, "VIPPIN");
    const struct
    {
        const char* dropped;
        const char* txTp;
        const char* shown;
    } cases[] = {
        {"POSVIPMembers", "VIPJOI", "999999|SQL Error on Table: POSVIPMembers :-\r"},
        {"POSVIPMembers", "VIPPIN", "999999|SQL Error on Table: POSVIPMembers :-\r"},
        {"DEBContacts", "POSINV", "999999|SQL Error on Table: DEBContacts :-\r"},
        {"SYSUserSMS", "POSEMP", "999999|SQL Error on Table: SysUserSMS :-\r"},
        {"SysTxanSMS", "POSINV", "999999|SQL Error on Table: SysTxanSMS :-\r"},
    };
    for (const auto& [dropped, txTp, shown] : cases) {
        Desk::onSuite(QStringLiteral("DROP TABLE IF EXISTS ") + dropped);
        desk.shown.clear();
        syssms_TxTp = txTp;
        EXPECT_FALSE(syssms_SendSMS()) << dropped;
        ASSERT_EQ(desk.shown.size(), 1) << dropped;
        EXPECT_TRUE(desk.shown[0].startsWith(shown)) << desk.shown[0].toStdString();
    }
    EXPECT_EQ(sent(), "");
}

TEST_F(SysSendSMSTest, aPinThatCouldNotBeKeptIsTold) {
    syssms_TxTp = "VIPJOI";
    syssms_Account = "V1";
    addTemplate("C", "Welcome", {}, "VIPJOI");
    addMember("V1", "0825550106");
    Desk::onSuite("DROP TABLE SysTxanOTP");
    EXPECT_FALSE(syssms_SendSMS());
    EXPECT_EQ(sent(), "0825550106 Welcome");
    EXPECT_TRUE(desk.shown.value(0).startsWith("box|SQL Error\r"));
}

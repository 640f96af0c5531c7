#include "security/SysLogIn.h"

#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/Session.h"
#include "data/SessionFile.h"
#include "data/Settings.h"
#include "data/SysDataModel.h"
#include "security/AccessCheck.h"
#include "security/SysLoadAccess.h"
#include "security/SysLoadParams.h"
#include "support/Desk.h"

#include <gtest/gtest.h>

using velcro::test::Desk;

namespace {

const QString central = QStringLiteral("Brindavel Central Workshop");
const QString harbour = QStringLiteral("Brindavel Harbour Row");
const QString northfold = QStringLiteral("Brindavel Northfold Mall");
const QString millLane = QStringLiteral("Kestrovane Mill Lane");
const QString training = QStringLiteral("Talvorne Training Rooms");

class SysLogInTest : public testing::Test
{
protected:
    void SetUp() override { cData->ConnectDB_Common(); }

    bool logIn(const QString& database, const QString& user, const QString& password) {
        return sli_VerifyDatabase(database) &&
               sli_LogIn(user, password, gDBaseRecID.toInt(), QString(), QString());
    }

    Desk desk{Desk::Start::Configured};
};

} // namespace

TEST_F(SysLogInTest, aPassedLogInFillsTheSession) {
    ASSERT_TRUE(logIn(central, "COUNTER1", "COUNTER")) << gErrorMsg.toStdString();
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
    const struct
    {
        const char* what;
        QString is, expected;
    } values[] = {
        {"result", gLoginResult, "0"},
        {"company", gCO, "01"},
        {"branch", gBranch, "100"},
        {"combo company", gCmbCO, "01"},
        {"branch name", gBRName, "Brindavel Central Workshop"},
        {"the branch speaks for the company", gCOName, "Brindavel Central Workshop"},
        {"and so does its bank, over the default bank", gCOBranchCode, "770015"},
        {"user", gUserCode, "COUNTER1"},
        {"user name", gUserName, "Mirela Dostavan"},
        {"user's till", gDefTillNo, "01"},
        {"printer of a user without one", gDefaultPrinter, "Generic / Text Only"},
        {"currency", gCCY, "ZAR"},
        {"currency, by its master row", gCCYDesc, "South African Rand"},
        {"foreign currency", gCCYCOde2, "EUR"},
        {"sub-accounts", gGLSubAcc, "Y"},
        {"session key", gSessionKEY, "01-100-COUNTER1"},
        {"branch colour", gBRStatusBarColor, "Teal"},
    };
    for (const auto& [what, is, expected] : values) {
        EXPECT_EQ(is.toStdString(), expected.toStdString()) << what;
    }
    EXPECT_EQ(gGLAccLen, 6);
    EXPECT_EQ(gCostDecimal, 3);
    EXPECT_EQ(gCCYNumCode, 710);
    EXPECT_GT(gAP, 0);
    EXPECT_LE(gAPFrom, sfg_Date(0));
    EXPECT_GE(gAPTo, sfg_Date(0));
    EXPECT_TRUE(gVisProgs.contains("Point of Sale"));
    EXPECT_FALSE(gDBSPID.isEmpty());
}

TEST_F(SysLogInTest, theTillRemembersTheDatabase) {
    gSessionKEY = QStringLiteral("01-100");
    ASSERT_TRUE(logIn(harbour, "COUNTER2", "COUNTER2")) << gErrorMsg.toStdString();
    gSessionKEY = QStringLiteral("01-100");
    EXPECT_EQ(sfg_ReadSession_INIFile("DBDisplayName"), harbour);
    EXPECT_FALSE(logIn(central, "COUNTER2", "COUNTER2"));
    EXPECT_EQ(sfg_ReadSession_INIFile("DBDisplayName"), harbour) << "a refused one is not";
}

TEST_F(SysLogInTest, sharedBranchesAndTillsAreThoseOfTheBranch) {
    ASSERT_TRUE(logIn(harbour, "COUNTER3", "COUNTER3")) << gErrorMsg.toStdString();
    EXPECT_EQ(gBranch, "101");
    EXPECT_EQ(gStkBranch, "100");
    EXPECT_EQ(gDebBranch, "100");
    EXPECT_EQ(gDebCO, "01");
    EXPECT_EQ(gCOFTillNo, "90");
    EXPECT_EQ(gCOName, "Brindavel Electronics (Pty) Ltd") << "this branch speaks for itself alone";
    EXPECT_EQ(gCOBankName, "Ostermere Trust");
    ASSERT_TRUE(logIn(northfold, "COUNTER3", "COUNTER3")) << gErrorMsg.toStdString();
    EXPECT_EQ(gStkBranch, "102");
    ASSERT_TRUE(logIn(millLane, "BOTHCO", "BOTHCO")) << gErrorMsg.toStdString();
    EXPECT_EQ(gStkBranch, "201") << "no row: the branch itself";
    EXPECT_EQ(gDebCO, "02");
}

TEST_F(SysLogInTest, refusalsTellTheirReason) {
    const struct
    {
        QString database, user, password, reason, box;
    } refusals[] = {
        {central, "NOBODY", "X", "The User Code is INVALID", ""},
        {central, "COUNTER1", "WRONG", "Password INVALID", "box|Password is INVALID"},
        {central, "COUNTER1", "counter", "Password INVALID", "box|Password is INVALID"},
        {central, "INACTIVE", "INACTIVE", "", "box|The User as marked as INACTIVE"},
        {central, "INACTIVE", "WRONG", "Password INVALID", "box|Password is INVALID"},
        {millLane, "TECH1", "WRONG", "User Group : [02] TECH for User : TECH1 WAS NOT FOUND", ""},
        {harbour, "TECH1", "TECH1",
         "This User is NOT Allowed Access to :-\rCompany : 01 - Branch : 101", ""},
        {central, "NORIGHT", "NORIGHT", "Access DENIED to this Module", ""},
        {training, "BOTHCO", "BOTHCO", "Accounting Period NOT Defined for Date : " + sfg_Date(0),
         ""},
        {central, "' OR 1=1 --", "X", "The User Code is INVALID", ""},
        {central, "COUNTER1", "' OR '1'='1", "Password INVALID", "box|Password is INVALID"},
    };
    for (const auto& [database, user, password, reason, box] : refusals) {
        desk.shown.clear();
        EXPECT_FALSE(logIn(database, user, password)) << user.toStdString();
        EXPECT_EQ(gErrorMsg.toStdString(), reason.toStdString()) << user.toStdString();
        EXPECT_EQ(gLoginResult, "1");
        EXPECT_EQ(desk.shown.join('\n').toStdString(), box.toStdString()) << user.toStdString();
    }
    EXPECT_FALSE(sli_VerifyDatabase("No such shop"));
    EXPECT_FALSE(sli_VerifyDatabase("' OR 1=1 --"));
    EXPECT_FALSE(sli_LogIn("COUNTER1", "COUNTER", 4711, {}, {}));
    EXPECT_TRUE(gErrorMsg.startsWith("Database Settings NOT FOUND for : "));
    ASSERT_TRUE(logIn(central, "COUNTER1", "COUNTER")) << "after all of these the right one passes";
}

TEST_F(SysLogInTest, theStoredPasswordIsNotTrimmedTheTypedOneIs) {
    ASSERT_TRUE(logIn(central, "COUNTER1", "  COUNTER "));
    Desk::onSuite("UPDATE SYSUser SET UserPswd = 'COUNTER ' WHERE UserCode = 'COUNTER1'");
    EXPECT_FALSE(logIn(central, "COUNTER1", "COUNTER "));
}

TEST_F(SysLogInTest, givenCompanyAndBranchReplaceTheDatabaseRows) {
    ASSERT_TRUE(sli_VerifyDatabase(central));
    ASSERT_TRUE(sli_LogIn("COUNTER1", "COUNTER", gDBaseRecID.toInt(), "01", "101"))
        << gErrorMsg.toStdString();
    EXPECT_EQ(gBranch, "101");
    ASSERT_TRUE(sli_LogIn("COUNTER1", "COUNTER", gDBaseRecID.toInt(), "01", " "));
    EXPECT_EQ(gBranch, "100") << "only both together count";
}

TEST_F(SysLogInTest, aClosedPeriodIsOpenedByTheFirstLogIn) {
    const auto flags = QStringLiteral("SELECT APOpen + APActive FROM SYSAP WHERE CO = '02' "
                                      "AND FromDate <= '%1' AND ToDate >= '%1'")
                           .arg(sfg_Date(0));
    ASSERT_TRUE(logIn(millLane, "OTHERCO", "OTHERCO")) << gErrorMsg.toStdString();
    EXPECT_EQ(Desk::suite(flags), "YY");
    Desk::onSuite("UPDATE SYSAP SET APActive = 'N' WHERE CO = '02'");
    EXPECT_FALSE(logIn(millLane, "OTHERCO", "OTHERCO"));
    EXPECT_EQ(gErrorMsg, "Accounting Period for : " + sfg_Date(0) + " is NOT ACTIVE");
    Desk::onSuite("UPDATE SYSAP SET APOpen = 'N' WHERE CO = '02'");
    Desk::onSuite("DELETE FROM SYSAP WHERE CO = '02' AND ToDate < '" + sfg_Date(0) + "'");
    EXPECT_FALSE(logIn(millLane, "OTHERCO", "OTHERCO"));
    EXPECT_EQ(gErrorMsg, "Accounting Period for : " + sfg_Date(0) + " is NOT OPEN");
    EXPECT_EQ(desk.shown.last(), "box|Accounting Periods NOT Defined for : 0 and After");
}

TEST_F(SysLogInTest, parametersResolveByTheirLevel) {
    ASSERT_TRUE(logIn(central, "COUNTER1", "COUNTER")) << gErrorMsg.toStdString();
    const struct
    {
        const char* group;
        int number;
        const char* value;
        const char* why;
    } parameters[] = {
        {"CO", 3, "A", "the company's value"},
        {"co", 3, "A", "case of the group does not count"},
        {"CO", 33, "1", "the default"},
        {"BRANCH", 6, "1", "another branch's value does not count"},
        {"BRANCH", 149, "Y", "the branch's value"},
        {"BRANCH", 301, "Thank you", "a value without a definition"},
        {"GLG", 29, "6", "a module set by company"},
        {"STK", 12, "5", "a module set by branch"},
        {"TIL", 62, "N", "another branch's value does not count"},
        {"USER", 2, "100", "the user group's value"},
        {"USER", 1, "N", "another group's value does not count"},
        {"CO", 4711, "", "not there"},
    };
    for (const auto& [group, number, value, why] : parameters) {
        EXPECT_EQ(sfvel_GetParam(group, number).toStdString(), value)
            << group << ' ' << number << ": " << why;
    }
    EXPECT_EQ(gParam_CO[3], "A");
    EXPECT_EQ(gParam_TIL[62], "N");
    EXPECT_EQ(gVatRates.size(), 5U);
    Desk::onSuite("DELETE FROM SysTax");
    EXPECT_FALSE(par_LoadParameters("01", "101"));
    EXPECT_EQ(gErrorMsg, "NO VAT Rates Found.");
    EXPECT_EQ(sfvel_GetParam("BRANCH", 6), "2") << "the parameters are loaded all the same";
}

TEST_F(SysLogInTest, rightsResolveFromGroupToUser) {
    ASSERT_TRUE(logIn(central, "COUNTER1", "COUNTER")) << gErrorMsg.toStdString();
    EXPECT_EQ(sfvel_GetAccess("CRO", 2), "S");
    EXPECT_EQ(sfvel_GetAccess("CRO", 9), "Y") << "raised for this user";
    EXPECT_EQ(sfvel_GetAccess("CRO", 10), "N") << "lowered for this user";
    EXPECT_EQ(sfvel_GetAccess("STK", 1), "N") << "not granted is denied";
    EXPECT_EQ(sfvel_GetAccess("cro", 0), "") << "case of the module counts";
    EXPECT_TRUE(sfvel_CheckUserAccess("CRO", 1, "N"));
    EXPECT_FALSE(sfvel_CheckUserAccess("CRO", 8, "N"));
    EXPECT_FALSE(sfvel_CheckUserAccess("CRO", 11, "N"));
    const auto allowed = [](int level) {
        for (const auto& rule : gRepAccessRules) {
            if (rule->AccessLevel == level) {
                return rule->Allowed;
            }
        }
        return false;
    };
    EXPECT_TRUE(allowed(1)) << "the group's";
    EXPECT_TRUE(allowed(2)) << "the user's own";
    EXPECT_FALSE(allowed(9));
    ASSERT_TRUE(logIn(central, "MANAGER", "MANAGER"));
    EXPECT_FALSE(allowed(3)) << "taken away from this user";
}

TEST_F(SysLogInTest, aSettingsTableThatCannotBeReadStaysSilent) {
    Desk::onSuite("DROP TABLE SYSGrpParam");
    Desk::onSuite("DROP TABLE SysRepAccessLevel");
    ASSERT_TRUE(logIn(central, "COUNTER1", "COUNTER")) << gErrorMsg.toStdString();
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
    EXPECT_FALSE(par_LoadParameters("01", "100"));
    EXPECT_TRUE(gErrorMsg.startsWith("[SysLoadParams.par_LoadAllParam_Overrides] SQL Error loading "
                                     "parameter overrides. \"Invalid object name"))
        << gErrorMsg.toStdString();
    EXPECT_FALSE(acc_LoadAccess("01", "100", "COUNTER1"));
    EXPECT_TRUE(
        gErrorMsg.startsWith("[SysLoadAccess.acc_Load_RepAccess] SQL Error on SysRepAccessLevel: "))
        << gErrorMsg.toStdString();
}

TEST_F(SysLogInTest, faultsShowTheirNumberAndGoOnAsTheyMust) {
    Desk::onSuite("DROP TABLE SysUserComp");
    EXPECT_THROW(logIn(central, "COUNTER1", "COUNTER"), std::exception);
    ASSERT_FALSE(desk.shown.isEmpty());
    EXPECT_TRUE(desk.shown.last().startsWith(
        "999999|SQL Error reading Table: SysUserComp\rInvalid object name"))
        << desk.shown.last().toStdString();
    Desk::onSuite("DROP TABLE POSCOFTillMst");
    EXPECT_FALSE(logIn(central, "COUNTER1", "COUNTER"));
    EXPECT_TRUE(desk.shown.last().startsWith("999999|SQL Error on Table: POSCOFTillMst :-\r"));
    Desk::onSuite("DROP TABLE SysUserGroup");
    EXPECT_FALSE(logIn(central, "COUNTER1", "COUNTER"));
    EXPECT_TRUE(desk.shown.last().startsWith("999999|SQL Error reading Table: SysUserGroup\r"));
    // A user who cannot be read does not stop the log-in; what comes next does.
    Desk::onSuite("DROP TABLE SysUser");
    desk.shown.clear();
    EXPECT_THROW(logIn(central, "COUNTER1", "COUNTER"), std::exception);
    ASSERT_EQ(desk.shown.size(), 2);
    EXPECT_TRUE(desk.shown[0].startsWith("999999|SQL Error reading Table: SysUser\r"));
    EXPECT_TRUE(desk.shown[1].startsWith("999999|SQL Error reading Table: SysUserComp\r"));
}

TEST_F(SysLogInTest, whoCannotBeReadIsNotTheUserBefore) {
    ASSERT_TRUE(logIn(central, "COUNTER1", "COUNTER")) << gErrorMsg.toStdString();
    Desk::onSuite("DROP TABLE SysUser");
    EXPECT_FALSE(logIn(central, "MANAGER", "ANYTHING"));
    EXPECT_EQ(gUserCode, "");
    EXPECT_TRUE(gErrorMsg.startsWith("This User is NOT Allowed Access")) << gErrorMsg.toStdString();
}

TEST_F(SysLogInTest, aParameterOfNoTypeIsAFaultThatGoesOn) {
    ASSERT_TRUE(logIn(central, "COUNTER1", "COUNTER")) << gErrorMsg.toStdString();
    Desk::onCommon("INSERT INTO vcSysParmControl ([Suite], [ParmType], [ModCode], [ParmNo], "
                   "[ParmName], [DefaultValue]) VALUES ('VELMARA', '', 'CO', 999, 'X', 'Y')");
    EXPECT_THROW(par_LoadParameters("01", "100"), std::out_of_range);
}

#include "application/LockTimer.h"

#include "data/Session.h"
#include "support/Desk.h"

#include <gtest/gtest.h>

using velcro::test::Desk;

namespace {

class LockTimerTest : public testing::Test
{
protected:
    void SetUp() override {
        Desk::onSuite("DELETE FROM SYSLockAppTimers");
        Desk::onSuite("DELETE FROM SYSGrpLockAppTimers");
        gUserGroup = QStringLiteral("CNTR");
    }
    static void allow(const QString& program, int minutes) {
        Desk::onSuite("INSERT INTO SYSLockAppTimers ([CO], [Branch], [PgmName], [LockTime]) "
                      "VALUES ('01', '100', '" +
                      program + "', " + QString::number(minutes) + ")");
    }
    static void allowGroup(const QString& group, const QString& program, int minutes) {
        Desk::onSuite("INSERT INTO SYSGrpLockAppTimers ([CO], [Branch], [UserGroup], [PgmName], "
                      "[LockTime]) VALUES ('01', '100', '" +
                      group + "', '" + program + "', " + QString::number(minutes) + ")");
    }
    Desk desk;
};

} // namespace

TEST_F(LockTimerTest, theGroupsRuleStandsOverTheProgramsAndNeverAlone) {
    EXPECT_EQ(sfvel_Get_LockAppTimer("velCRO"), 0) << "no rule";
    allowGroup("CNTR", "velCRO", 5);
    EXPECT_EQ(sfvel_Get_LockAppTimer("velCRO"), 0) << "a group rule alone";
    allow("velCRO", 15);
    EXPECT_EQ(sfvel_Get_LockAppTimer("velCRO"), 5);
    const std::pair<const char*, int> groups[] = {{"EXEMPT", 999}, {"MORE", 1500}, {"LONG", 998}};
    for (const auto& [group, minutes] : groups) {
        allowGroup(group, "velCRO", minutes);
        gUserGroup = QLatin1String(group);
        EXPECT_EQ(sfvel_Get_LockAppTimer("velCRO"), minutes >= 999 ? 0 : minutes) << group;
    }
    gUserGroup = QStringLiteral("NONE");
    EXPECT_EQ(sfvel_Get_LockAppTimer("velCRO"), 15);
    allow("velLONG", 999);
    EXPECT_EQ(sfvel_Get_LockAppTimer("velLONG"), 999) << "exemption is the group's alone";
}

TEST_F(LockTimerTest, onlyALowerCaseExtensionIsLeftAway) {
    allow("velCRO", 15);
    EXPECT_EQ(sfvel_Get_LockAppTimer("velCRO.exe"), 15);
    EXPECT_EQ(sfvel_Get_LockAppTimer("velCRO.EXE"), 0);
    gBranch = QStringLiteral("101");
    EXPECT_EQ(sfvel_Get_LockAppTimer("velCRO"), 0) << "another branch's rule";
}

TEST_F(LockTimerTest, aTableThatCannotBeReadIsShownAndThrownOn) {
    allow("velCRO", 15);
    Desk::onSuite("DROP TABLE SYSGrpLockAppTimers");
    EXPECT_THROW(sfvel_Get_LockAppTimer("velCRO"), std::exception);
    ASSERT_EQ(desk.shown.size(), 1);
    EXPECT_TRUE(desk.shown[0].startsWith("SFVEL-13|SQL Error on Table: SYSGrpLockAppTimers :-\r"));
    Desk::onSuite("DROP TABLE SYSLockAppTimers");
    Desk::onSuite("CREATE TABLE SYSLockAppTimers ([CO] nvarchar(10), [Branch] nvarchar(10), "
                  "[PgmName] nvarchar(50), [LockTime] nvarchar(10))");
    Desk::onSuite("INSERT INTO SYSLockAppTimers VALUES ('01', '100', 'velCRO', 'soon')");
    EXPECT_THROW(sfvel_Get_LockAppTimer("velCRO"), std::exception) << "a time that is no number";
    EXPECT_TRUE(desk.shown.last().startsWith("SFVEL-12|SQL Error on Table: SYSLockAppTimers :-\r"));
}

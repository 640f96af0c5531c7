#include "data/DataModules.h"
#include "data/Session.h"
#include "security/AccessCheck.h"
#include "security/CMN901.h"
#include "support/Desk.h"
#include "support/ScreenChecks.h"
#include "support/ScriptedUser.h"
#include "ui/KeyButton.h"

#include <gtest/gtest.h>

using velcro::test::Desk;

namespace {

const QString single = QStringLiteral("Supervisor Over-Ride Code Required");
const QString both = QStringLiteral("Double Supervisor Over-Ride Required");

class SupervisorTest : public testing::Test
{
protected:
    void authorise(const QString& code, const QString& password) {
        user.typeInto("edSuperCode", code);
        user.typeInto("edSuperPswd", password);
        user.press(Qt::Key_F10);
    }

    Desk desk{Desk::Start::SignedIn};
    ScriptedUser user;
};

} // namespace

TEST_F(SupervisorTest, oneSupervisorLendsARight) {
    user.expectForm(single, [&] {
        EXPECT_TRUE(namelessControls(user.form()).isEmpty());
        EXPECT_TRUE(clippedControls(user.form()).isEmpty());
        const struct
        {
            const char *code, *password, *refusal;
        } refusals[] = {
            {"NOBODY", "X", "The Supervisor Code entered is INVALID"},
            {"' OR 1=1--", "X", "The Supervisor Code entered is INVALID"},
            {"SUPER1", "WRONG", "The password entered is INVALID"},
            {"COUNTER1", "COUNTER", "The code entered is NOT a Supervisor"},
        };
        for (const auto& [code, password, refusal] : refusals) {
            authorise(code, password);
            EXPECT_EQ(user.message(), refusal);
        }
        authorise("SUPER2", "SUPER2");
        EXPECT_EQ(desk.shown.last(),
                  "100414|The Supervisor User Code DOES NOT have sufficient rights to grant access "
                  "for this Security Request");
        EXPECT_EQ(user.sees("lblRequest"), "Delete repair orders (CRO 2)");
        keepPicture(user.form(), "supervisor");
        const QString code(40, 'X');
        authorise(code, code);
        EXPECT_EQ(user.sees("edSuperCode"), code) << "these fields have no limit";
        authorise("super1", "super1 ");
    });
    EXPECT_TRUE(sfvel_CheckUserAccess("CRO", 2, "N")) << "S: one supervisor";
}

TEST_F(SupervisorTest, inactiveSupervisorsMayLendToo) {
    Desk::onSuite("UPDATE SYSUser SET Status = 'I' WHERE UserCode = 'MANAGER'");
    user.expectForm(single, [&] { authorise("MANAGER", "MANAGER"); });
    EXPECT_TRUE(sfvel_SupervisorCheck("CRO", 4));
}

TEST_F(SupervisorTest, aCancelledOrRefusedRequestIsNoRight) {
    user.expectForm(single, [&] { user.press(Qt::Key_Escape); });
    EXPECT_FALSE(sfvel_CheckUserAccess("CRO", 3, "N"));
    user.expectForm(single, [&] {
        authorise("SUPER2", "SUPER2");
        user.click("btnCancel");
    });
    EXPECT_FALSE(sfvel_CheckUserAccess("CRO", 4, "N"));
    user.expectForm("Security Access", [&] { user.press(Qt::Key_Return); });
    EXPECT_FALSE(sfvel_CheckUserAccess("CRO", 8, "Y")) << "denied, and said so";
}

TEST_F(SupervisorTest, twoSupervisorsLendARightTogether) {
    user.expectForm(both, [&] {
        EXPECT_TRUE(namelessControls(user.form()).isEmpty());
        EXPECT_TRUE(clippedControls(user.form()).isEmpty());
        EXPECT_EQ(user.find<velcro::ui::KeyButton>("btnOK").keyCap(), "") << "no key presses it";
        EXPECT_EQ(user.sees("lblRequest"), "Give a discount on quotations (CRO 5)");
        const auto proceed = [&](const char* code1, const char* pswd1, const char* code2,
                                 const char* pswd2) {
            user.typeInto("edSuper1", code1);
            user.typeInto("edPswd1", pswd1);
            user.typeInto("edSuper2", code2);
            user.typeInto("edPswd2", pswd2);
            user.click("btnOK");
            return user.message();
        };
        EXPECT_EQ(proceed("NOBODY", "X", "", ""), "Supervisor 1 Code entered is Invalid");
        EXPECT_EQ(proceed("SUPER2", "SUPER2 ", "", ""), "Password for Supervisor 1 is INVALID");
        EXPECT_EQ(proceed("SUPER1", "SUPER1", "", ""),
                  "Supervisor 1 is NOT ALLOWED to Grant Access here");
        EXPECT_EQ(proceed("SUPER2", "SUPER2", "super2", "SUPER2"),
                  "Both Supervisor Codes cannot be the same");
        EXPECT_EQ(user.focus(), "edSuper2");
        EXPECT_EQ(proceed("SUPER2", "SUPER2", "SUPER1", "SUPER1"),
                  "Supervisor 2 is NOT ALLOWED to Grant Access Here");
        keepPicture(user.form(), "two-supervisors");
        proceed("SUPER2", "SUPER2", "SUPER3", "SUPER3");
    });
    EXPECT_TRUE(sfvel_CheckUserAccess("CRO", 5, "N"));
    EXPECT_EQ(gSParam[1], "SUPER2");
    EXPECT_EQ(gSParam[2], "SUPER3");
}

TEST_F(SupervisorTest, entriesAreCheckedFieldByFieldOnEnter) {
    user.expectForm(both, [&] {
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.focus(), "edSuper1") << "blank stays";
        user.type("SUPER2");
        user.press(Qt::Key_Return);
        user.type("WRONG");
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.message(), "Password for Supervisor 1 is INVALID");
        EXPECT_EQ(user.focus(), "edPswd1");
        user.type("SUPER2"); // in the place of what was refused
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.focus(), "edSuper2");
        user.press(Qt::Key_Escape);
    });
    EXPECT_FALSE(sfvel_DoubleSuperCheck("CRO", 5));
}

TEST_F(SupervisorTest, onlyCancelTakesBackAProceed) {
    user.expectForm(both, [&] {
        user.click("btnOK");
        EXPECT_FALSE(user.message().isEmpty());
        user.form().close();
    });
    EXPECT_TRUE(sfvel_DoubleSuperCheck("CRO", 5)) << "closed by its frame after a proceed";
    user.expectForm(both, [&] {
        user.click("btnOK");
        user.click("btnCancel");
    });
    EXPECT_FALSE(sfvel_DoubleSuperCheck("CRO", 5));
}

TEST_F(SupervisorTest, theRightToTheModuleIsNeverLentByTwo) {
    EXPECT_FALSE(sfvel_DoubleSuperCheck("CRO", 0)) << "the form closes before anybody meets it";
    EXPECT_EQ(desk.shown.last(), "100412|No Access ID was passed for Verification");
}

TEST_F(SupervisorTest, faultsOfTheReadsShowTheirNumbers) {
    Desk::onSuite("DROP TABLE SYSUserAccess");
    user.expectForm(single, [&] {
        authorise("SUPER1", "SUPER1");
        EXPECT_TRUE(desk.shown[0].startsWith("100102|SQL Error on Table: SYSGrpAccess\r"));
        EXPECT_TRUE(desk.shown[1].startsWith("100414|"));
        user.click("btnCancel");
    });
    EXPECT_FALSE(sfvel_SupervisorCheck("CRO", 2));
    Desk::onSuite("DROP TABLE SysUser");
    desk.shown.clear();
    user.expectForm(both, [&] {
        user.typeInto("edSuper1", "SUPER2");
        user.click("btnOK");
        EXPECT_TRUE(desk.shown[0].startsWith("100411|SQL Error on Table: SYSUSER\r"));
        user.click("btnCancel");
    });
    EXPECT_FALSE(sfvel_DoubleSuperCheck("CRO", 5));
}

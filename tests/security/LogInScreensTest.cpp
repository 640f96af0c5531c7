#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/Session.h"
#include "security/CMN999.h"
#include "security/SysLogInForms.h"
#include "support/Desk.h"
#include "support/ScreenChecks.h"
#include "support/ScriptedUser.h"
#include "support/TypedAhead.h"
#include "ui/Handler.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>

#include <gtest/gtest.h>

using velcro::test::Desk;

namespace {

class LogInScreensTest : public testing::Test
{
protected:
    void SetUp() override {
        cData->ConnectDB_Common();
        gEXETitle = QStringLiteral("Velmara Retail Software: Customer Repair Orders");
    }

    /// What the screen says after OK was pressed with these entries.
    QString refusal(TfrmCMN999&, const QString& code, const QString& password) {
        user.typeInto("edUserCode", code);
        user.typeInto("edUserPswd", password);
        user.click("btnOK");
        return user.message();
    }

    Desk desk{Desk::Start::Configured};
    ScriptedUser user;
};

} // namespace

TEST_F(LogInScreensTest, signsInByKeyboardAlone) {
    TfrmCMN999 form;
    user.workIn(form, [&] {
        EXPECT_TRUE(namelessControls(form).isEmpty())
            << namelessControls(form).join('\n').toStdString();
        EXPECT_TRUE(clippedControls(form).isEmpty())
            << clippedControls(form).join('\n').toStdString();
        EXPECT_EQ(user.focus(), "edUserCode");
        user.type("counter1");
        user.press(Qt::Key_Return);
        user.press(Qt::Key_Return);
        EXPECT_TRUE(form.isVisible()) << "Enter with a blank password does nothing";
        EXPECT_EQ(user.message(), "");
        user.type("counter");
        keepPicture(form, "log-in");
        user.press(Qt::Key_Return);
    });
    EXPECT_EQ(form.xReturn, "OK");
    EXPECT_EQ(gUserCode, "COUNTER1");
    EXPECT_EQ(gBranch, "100");
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
}

TEST_F(LogInScreensTest, refusesInTheOrderOfTheFields) {
    TfrmCMN999 form;
    user.workIn(form, [&] {
        EXPECT_EQ(refusal(form, " ", "X"), "User Code Cannot be Blank");
        EXPECT_EQ(user.focus(), "edUserCode");
        EXPECT_EQ(refusal(form, "COUNTER1", " "), "Please enter your Password");
        EXPECT_EQ(user.focus(), "edUserPswd");
        EXPECT_EQ(refusal(form, "KORVAL", "KORVAL"), "The KORVAL user code is RESERVED");
        EXPECT_EQ(refusal(form, "KORVALA", "KORVAL"), "The KORVAL user code is RESERVED");
        EXPECT_EQ(refusal(form, "NOBODY", "X"), "The User Code is INVALID");
        EXPECT_EQ(refusal(form, "COUNTER1", "WRONG"), "Password INVALID");
        EXPECT_EQ(refusal(form, "INACTIVE", "INACTIVE"), "");
        EXPECT_EQ(desk.shown.last(), "box|The User as marked as INACTIVE");
        EXPECT_EQ(refusal(form, "NORIGHT", "NORIGHT"), "Access DENIED to this Module");
        user.find<QComboBox>("cmbDatabase").setCurrentIndex(4);
        EXPECT_EQ(refusal(form, "BOTHCO", "BOTHCO"),
                  "Accounting Period NOT Defined for Date : " + sfg_Date(0));
        user.press(Qt::Key_Escape);
        EXPECT_TRUE(form.isVisible()) << "only OK and Cancel end the log-in";
        user.click("btnCancel");
    });
    EXPECT_EQ(form.xReturn, "CANCEL");
}

TEST_F(LogInScreensTest, whatIsTypedAfterARefusalTakesTheRefusedTextsPlace) {
    TfrmCMN999 form;
    user.workIn(form, [&] {
        user.typeInto("edUserCode", "KORVAL");
        user.typeInto("edUserPswd", "X");
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.message(), "The KORVAL user code is RESERVED");
        user.type("COUNTER1");
        EXPECT_EQ(user.sees("edUserCode"), "COUNTER1");
        user.click("btnOK");
        EXPECT_EQ(user.message(), "Password INVALID");
        user.type("COUNTER");
        user.press(Qt::Key_Return);
    });
    EXPECT_EQ(form.xReturn, "OK");
}

TEST_F(LogInScreensTest, theDefaultPasswordMustBeChanged) {
    TfrmCMN999 form;
    user.expectForm("Change System Password", [&] {
        EXPECT_TRUE(namelessControls(user.form()).isEmpty());
        EXPECT_EQ(user.sees("edUser"), "NEWUSER - Wendel Harkaby");
        const struct
        {
            const char *first, *second, *refusal;
        } entries[] = {
            {"", "", "Passwords cannot be Blank"},
            {"FRESH1", " ", "Passwords cannot be Blank"},
            {"FRESH1", "FRESH2", "The Two Passwords DONT Match"},
            {"XQZ741", "XQZ741", "Password cannot be the Default Password"},
        };
        for (const auto& [first, second, refusal] : entries) {
            user.typeInto("edPswd1", first);
            user.typeInto("edPswd2", second);
            user.click("btnOK");
            EXPECT_EQ(user.message(), refusal);
            EXPECT_EQ(user.focus(), "edPswd1");
        }
        keepPicture(user.form(), "change-password");
        user.typeInto("edPswd1", "fresh1");
        user.typeInto("edPswd2", "fresh1");
        user.press(Qt::Key_Return);
    });
    user.expectForm("System Message", [&] { user.press(Qt::Key_Return); });
    user.workIn(form, [&] { refusal(form, "NEWUSER", "XQZ741"); });
    EXPECT_EQ(form.xReturn, "OK");
    EXPECT_EQ(Desk::suite("SELECT UserPswd FROM SYSUser WHERE UserCode = 'NEWUSER'"), "FRESH1");
    EXPECT_EQ(Desk::suite("SELECT PswdDate FROM SYSUser WHERE UserCode = 'NEWUSER'"), sfg_Date(0));
}

TEST_F(LogInScreensTest, anExpiredPasswordMustBeChangedAndARefusalLeavesTheScreen) {
    TfrmCMN999 form;
    user.expectForm("Change System Password", [&] { user.click("btnCancel"); });
    user.expectForm("Change System Password", [&] { user.press(Qt::Key_Escape); });
    user.workIn(form, [&] {
        refusal(form, "EXPIRED", "EXPIRED");
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(user.focus(), "edUserCode");
        user.click("btnOK");
        EXPECT_TRUE(form.isVisible()) << "demanded again";
        Desk::onSuite("UPDATE SYSUser SET PswdDate = '" + sfg_Date(-30) +
                      "' WHERE UserCode = 'EXPIRED'");
        user.click("btnOK");
    });
    EXPECT_EQ(form.xReturn, "OK") << "still good on the expiry date itself";
}

TEST_F(LogInScreensTest, aSecondEnterDoesNotRunTheLogInWithinTheLogIn) {
    TfrmCMN999 form;
    user.expectForm("Change System Password", [&] {
        velcro::test::takeQueue();
        EXPECT_EQ(user.focus(), "edPswd2") << "the second Enter came here";
        user.click("btnCancel");
    });
    user.workIn(form, [&] {
        user.typeInto("edUserCode", "EXPIRED");
        user.typeInto("edUserPswd", "EXPIRED");
        velcro::test::queueText("\r\r");
        velcro::test::takeQueue();
        user.click("btnCancel");
    });
    EXPECT_EQ(form.xReturn, "CANCEL");
}

TEST_F(LogInScreensTest, aDefaultPasswordThatHasExpiredIsChangedTwice) {
    Desk::onSuite("UPDATE SYSUser SET UserPswd = 'XQZ741' WHERE UserCode = 'EXPIRED'");
    const auto change = [this](const char* password) {
        user.expectForm("Change System Password", [this, password] {
            user.typeInto("edPswd1", password);
            user.typeInto("edPswd2", password);
            user.press(Qt::Key_Return);
        });
        user.expectForm("System Message", [this] { user.press(Qt::Key_Return); });
    };
    change("FIRST1");
    change("SECOND2");
    TfrmCMN999 form;
    user.workIn(form, [&] { refusal(form, "EXPIRED", "XQZ741"); });
    EXPECT_EQ(form.xReturn, "OK");
    EXPECT_EQ(Desk::suite("SELECT UserPswd FROM SYSUser WHERE UserCode = 'EXPIRED'"), "SECOND2");
}

TEST_F(LogInScreensTest, passwordsCanBeReadAndHiddenAgain) {
    TfrmCMN999 form;
    user.expectForm("Change System Password", [&] {
        user.typeInto("edPswd1", "AB");
        user.typeInto("edPswd2", "CD");
        const auto shown = [this] {
            return user.find<QLineEdit>("edPswd1").displayText() +
                   user.find<QLineEdit>("edPswd2").displayText();
        };
        EXPECT_EQ(shown(), "####");
        user.click("btnShowPswd");
        EXPECT_EQ(shown(), "ABCD");
        user.find<QLineEdit>("edPswd1").setFocus();
        user.find<QLineEdit>("edPswd2").setFocus();
        user.click("btnShowPswd");
        EXPECT_EQ(shown(), "####");
        user.click("btnCancel");
    });
    user.workIn(form, [&] {
        refusal(form, "NEWUSER", "XQZ741");
        user.click("btnCancel");
    });
}

TEST_F(LogInScreensTest, aBlankPasswordDateUnderExpiryIsAFaultAndTheScreenStays) {
    QStringList faults;
    velcro::ui::setErrorDisplay([&](const QString& text) { faults.append(text); });
    TfrmCMN999 form;
    user.workIn(form, [&] {
        refusal(form, "NODATE", "NODATE");
        EXPECT_EQ(faults, QStringList("The day on which your password was set cannot be read. Ask "
                                      "the system administrator."));
        EXPECT_TRUE(form.isVisible());
        refusal(form, "COUNTER1", "COUNTER");
    });
    velcro::ui::setErrorDisplay({});
    EXPECT_EQ(form.xReturn, "OK") << "another user can sign in after it";
    EXPECT_EQ(gUserCode, "COUNTER1");
}

TEST_F(LogInScreensTest, aPasswordThatCouldNotBeWrittenIsNotLeftBehind) {
    TfrmCMN999 form;
    user.expectForm("Change System Password", [&] {
        Desk::onSuite("ALTER TABLE SYSUser DROP COLUMN [PswdDate]");
        user.typeInto("edPswd1", "S'CRET9");
        user.typeInto("edPswd2", "S'CRET9");
        user.press(Qt::Key_Return);
        EXPECT_TRUE(user.form().isVisible()) << "a failed change leaves the form open";
        user.click("btnCancel");
    });
    user.workIn(form, [&] {
        refusal(form, "NEWUSER", "XQZ741");
        user.click("btnCancel");
    });
    QFile file(desk.workingFolder() + "SQL/SQLError-Velmara.TXT");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(text.contains("UPDATE SYSUSER SET")) << text.toStdString();
    EXPECT_FALSE(text.contains("CRET9")) << text.toStdString();
    EXPECT_FALSE(desk.shown.join(' ').contains("CRET9"));
}

TEST_F(LogInScreensTest, theDatabaseIsPickedByTypingAndRemembered) {
    TfrmCMN999 form;
    user.expectForm("Select Log-in Database ", [&] {
        EXPECT_TRUE(namelessControls(user.form()).isEmpty());
        EXPECT_EQ(user.column("Company").size(), 5);
        EXPECT_FALSE(user.find<QLineEdit>("edFind").isVisible());
        user.press(Qt::Key_Down);
        EXPECT_TRUE(user.find<QLineEdit>("edFind").isVisible()) << "any key shows the find panel";
        user.press(Qt::Key_Escape);
        user.type("harb");
        EXPECT_EQ(user.column("Company"), QStringList("Brindavel Harbour Row"));
        user.press(Qt::Key_Escape);
        EXPECT_EQ(user.column("Company").size(), 5) << "Escape closes the find panel first";
        user.type("mall");
        user.press(Qt::Key_Return);
    });
    user.workIn(form, [&] {
        EXPECT_EQ(user.sees("cmbDatabase"), "Brindavel Central Workshop");
        user.press(Qt::Key_F1);
        EXPECT_EQ(user.sees("cmbDatabase"), "Brindavel Northfold Mall");
        EXPECT_EQ(user.focus(), "edUserCode");
        refusal(form, "COUNTER3", "COUNTER3");
    });
    ASSERT_EQ(form.xReturn, "OK");
    EXPECT_EQ(gBranch, "102");
    gSessionKEY = QStringLiteral("01-100");
    TfrmCMN999 again;
    user.workIn(again, [&] {
        EXPECT_EQ(user.sees("cmbDatabase"), "Brindavel Northfold Mall");
        user.click("btnCancel");
    });
}

TEST_F(LogInScreensTest, anEmptyListOfDatabasesLeavesTheFormUp) {
    Statement statement(cData->VelmaraCommon);
    statement.SQL.Add("DELETE FROM vcSettings");
    statement.ExecSQL();
    TfrmCMN999 form;
    user.workIn(form, [&] {
        EXPECT_EQ(desk.shown.last(), "900002|There are NO Company/Branches Loaded on the System");
        EXPECT_EQ(refusal(form, "COUNTER1", "COUNTER"), "Select the Log-In Company");
        user.click("btnCancel");
    });
}

TEST_F(LogInScreensTest, theFingerprintSettingsPickTheScreen) {
    gBDActive = QStringLiteral("N");
    user.expectForm(gEXETitle, [&] { user.click("btnCancel"); });
    EXPECT_FALSE(slif_Show_LogInForm());
    gBDActive = QStringLiteral("Y");
    gBDDeviceCode = QStringLiteral("03"); // no family
    user.expectForm(gEXETitle, [&] { user.click("btnCancel"); });
    EXPECT_FALSE(slif_Show_LogInForm()) << "the standard screen opens at once";
}

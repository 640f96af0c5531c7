#include "application/CMN012.h"
#include "data/DataModules.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "screens/ImageLists.h"
#include "screens/SysFuncGlobal.h"
#include "screens/Terminate.h"
#include "support/Desk.h"
#include "support/ScreenChecks.h"
#include "support/ScriptedUser.h"
#include "ui/Handler.h"
#include "ui/StatusBar.h"

#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using velcro::test::Desk;

namespace {

class DialogsTest : public testing::Test
{
protected:
    void SetUp() override {
        fillImageLists(*sData);
        connectPrompts();
    }
    ~DialogsTest() override {
        velcro::ui::setErrorDisplay({});
        setMainFormClose({});
    }

    Desk desk;
    ScriptedUser user;
};

void expectReadable(QDialog& form) {
    EXPECT_TRUE(namelessControls(form).isEmpty())
        << namelessControls(form).join('\n').toStdString();
    EXPECT_TRUE(clippedControls(form).isEmpty()) << clippedControls(form).join('\n').toStdString();
}

} // namespace

TEST_F(DialogsTest, anErrorTellsWhereAndWhatAndClearsTheSlots) {
    gSParam[1] = "left";
    gIParam[12] = 7;
    gDParam[1] = 1.5;
    gBParam[6] = true;
    gErrorLogMsg = QStringLiteral("Log file SQLError.TXT");
    user.expectForm("System Error", [&] {
        EXPECT_EQ(user.sees("lblErrorNo"), "100-001");
        EXPECT_EQ(user.sees("lblPrgName"), "CRO100");
        EXPECT_EQ(user.sees("lblRoutine"), "BuildGrid");
        EXPECT_EQ(user.sees("edMessage"), "\nNo rows");
        EXPECT_EQ(user.sees("lblLogMsg"), "Log file SQLError.TXT");
        EXPECT_EQ(user.find<velcro::ui::StatusBar>("StatusBar1").panelText(1),
                  "Version : " + gVersion);
        EXPECT_FALSE(user.find<QWidget>("pnlComments").isVisible());
        EXPECT_EQ(user.form().height(), 320);
        expectReadable(user.form());
        user.press(Qt::Key_Return);
    });
    sfg_ErrorDlg("100-001", "No rows", "CRO100", "BuildGrid");
    EXPECT_EQ(gSParam[1], "");
    EXPECT_EQ(gIParam[12], 0);
    EXPECT_EQ(gDParam[1], 0.0);
    EXPECT_FALSE(gBParam[6]);
    EXPECT_EQ(gErrorLogMsg, "") << "shown once";
}

TEST_F(DialogsTest, numbersWithAnAmpersandAreLookedUp) {
    const struct
    {
        const char *number, *message, *comment;
    } cases[] = {
        {"&100002", "The record has been removed by another user.", "Refresh the list"},
        {"&100412", "No access number was passed for verification.", ""},
        {"&555", "as told", ""},
        {"100002", "as told", ""},
    };
    for (const auto& [number, message, comment] : cases) {
        user.expectForm("System Error", [&] {
            EXPECT_EQ(user.sees("lblErrorNo"), number);
            EXPECT_EQ(user.sees("edMessage").trimmed(), message);
            const bool hasComment = *comment != '\0';
            EXPECT_EQ(user.find<QWidget>("pnlComments").isVisible(), hasComment) << number;
            EXPECT_TRUE(user.sees("memComment").contains(comment));
            EXPECT_EQ(user.form().height() > 320, hasComment);
            expectReadable(user.form());
            user.click("btnClose");
        });
        sfg_ErrorDlg(number, "as told", "CRO100", "BuildGrid");
        EXPECT_EQ(gErrorMsg + gErrorComment, "");
    }
    EXPECT_THROW(sfg_ErrorDlg("&none", "as told", "CRO100", "BuildGrid"), ConversionError);
}

TEST_F(DialogsTest, anErrorLetsTheUserEndTheProgram) {
    bool closed = false;
    setMainFormClose([&closed] { closed = true; });
    user.expectForm("System Error", [&] { user.click("btnAppTerminate"); });
    sfg_ErrorDlg("1", "text", "unit", "routine");
    EXPECT_TRUE(closed);
}

TEST_F(DialogsTest, messagesWaitForEnterOrForTheirTime) {
    using Show = void (*)(const QString&, int);
    const struct
    {
        Show show;
        const char *title, *text;
    } kinds[] = {{sfg_InfoDlg, "System  Information Message", "\n\nSaved"},
                 {sfg_MessageDlg, "System Message", "\nSaved"},
                 {sfg_WarningDlg, "System Warning", "\nSaved"}};
    for (const auto& [show, title, text] : kinds) {
        user.expectForm(title, [&] {
            EXPECT_EQ(user.sees("edMessage"), text);
            expectReadable(user.form());
            user.press(Qt::Key_Enter);
        });
        show("Saved", 0);
        user.expectForm(title, [&] { user.click("btnClose"); });
        show("Saved", 0);
        user.expectForm(
            title, [&] { EXPECT_TRUE(QTest::qWaitFor([&] { return !user.form().isVisible(); })); });
        show("Saved", 1);
    }
}

TEST_F(DialogsTest, aQuestionHasNoDefault) {
    const struct
    {
        std::function<void()> answer;
        bool result;
    } answers[] = {
        {[&] { user.press(Qt::Key_Y); }, true}, {[&] { user.press(Qt::Key_N); }, false},
        {[&] { user.click("btnYes"); }, true},  {[&] { user.click("btnNo"); }, false},
        {[&] { user.form().close(); }, false},
    };
    for (const auto& [answer, result] : answers) {
        user.expectForm("System Prompt", [&, reply = answer] {
            EXPECT_EQ(user.sees("memTitle"), "Delete");
            EXPECT_EQ(user.sees("btnYes") + user.sees("btnNo"), " Yes No");
            expectReadable(user.form());
            user.press(Qt::Key_Return);
            user.press(Qt::Key_Space);
            EXPECT_TRUE(user.form().isVisible());
            reply();
        });
        EXPECT_EQ(sfg_QuestionDlg("Delete", "Sure?"), result);
    }
}

TEST_F(DialogsTest, aRefusedRightNamesItself) {
    user.expectForm("Security Access", [&] {
        EXPECT_EQ(user.sees("lblErrorNo") + user.sees("lblPrgName") + user.sees("lblRoutine"),
                  "CRO [12]UnitRoutine");
        EXPECT_EQ(user.sees("lblAdvice"), "Contact the System Administrator for Access Rights");
        expectReadable(user.form());
        user.press(Qt::Key_Return);
    });
    sfg_AccessDlg("CRO [12]", "Unit", "Routine", 0);
}

TEST_F(DialogsTest, theCountDownEndsTheProgram) {
    bool closed = false;
    setMainFormClose([&closed] { closed = true; });
    TfrmCMN012 form;
    user.workIn(form, [&] {
        EXPECT_EQ(user.find<QProgressBar>("gauge").value(), 10);
        const auto* timer = form.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
        ASSERT_NE(timer, nullptr);
        EXPECT_TRUE(timer->isActive()) << "it counts by itself";
        EXPECT_EQ(timer->interval(), 1000);
        for (int left = 9; left >= 1; --left) {
            form.tick();
            EXPECT_EQ(user.find<QProgressBar>("gauge").value(), left);
            EXPECT_FALSE(closed);
        }
        form.tick();
        EXPECT_TRUE(closed);
        EXPECT_FALSE(form.isVisible());
    });
    closed = false;
    user.expectForm("Application Shutdown", [&] { user.click("btnReturn"); });
    sfg_Application_ShutDown();
    EXPECT_FALSE(closed);
}

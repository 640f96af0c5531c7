#include "application/MAIN000.h"
#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/DayEnd.h"
#include "data/Session.h"
#include "data/SysDataModel.h"
#include "screens/ImageLists.h"
#include "support/Desk.h"
#include "support/ScriptedUser.h"
#include "support/TypedAhead.h"
#include "ui/Handler.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using velcro::test::Desk;
using velcro::ui::CaptionPanel;

namespace {

constexpr QRgb blue = 0xff3a5ea4;
constexpr QRgb green = 0xff3dbc66;
constexpr QRgb red = 0xffff0000;
constexpr QRgb grey = 0xff808080;

std::unique_ptr<QDialog> screenCalled(const QString& title, QWidget* parent) {
    auto screen = std::make_unique<QDialog>(parent);
    screen->setWindowTitle(title);
    return screen;
}

void setParameter(const QString& group, int number, const QString& value) {
    auto parameter = std::make_unique<TParameter>();
    parameter->ParamCode = group;
    parameter->ParamNo = number;
    parameter->ParamValue = value;
    gParameters.push_back(std::move(parameter));
}

class MainMenuTest : public testing::Test
{
protected:
    void SetUp() override {
        fillImageLists(*sData);
        gEXEName = QStringLiteral("velCRO");
        gDBDBase = QStringLiteral(" VELSUITE ");
        gBRName = QStringLiteral("Central");
        gParameters.clear();
        velcro::ui::setErrorDisplay([this](const QString& text) { errors << text; });
        gMenuScreens.repairOrders = [](QWidget* parent) { return screenCalled("orders", parent); };
        gMenuScreens.systemCodes = [](QWidget* parent) { return screenCalled("codes", parent); };
        gMenuScreens.technicians = [](QWidget* parent) { return screenCalled("people", parent); };
        gMenuScreens.processCodes = [](QWidget* parent) { return screenCalled("steps", parent); };
    }
    ~MainMenuTest() override {
        velcro::ui::setErrorDisplay({});
        gParameters.clear();
        gMenuScreens = {};
        gBRCategory.clear();
        gBRStatusBarColor.clear();
        // A program that was ended opens no form any more; the next test's program is another one.
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QCoreApplication::exec();
    }

    void show() {
        QSignalSpy live(&form, &TfrmMAIN000::menuIsLive);
        form.show();
        ASSERT_TRUE(live.count() > 0 || live.wait());
        form.activateWindow();
        QApplication::processEvents();
    }
    void press(Qt::Key key) {
        QTest::keyClick(&form, key);
        QApplication::processEvents();
    }
    QWidget& part(const char* name) { return *form.findChild<QWidget*>(name); }
    void click(const char* name) { QTest::mouseClick(&part(name), Qt::LeftButton); }
    /// Colours of the whole menu and its three groups.
    std::vector<QRgb> colours() {
        std::vector<QRgb> seen;
        for (const char* name :
             {"pnlMainMenu", "pnlMNUOrders", "pnlMNUReports", "pnlMNUAdministration"}) {
            seen.push_back(static_cast<CaptionPanel&>(part(name)).color().rgb());
        }
        return seen;
    }
    QString state() {
        return QStringLiteral("%1%2%3").arg(
            part("btnMNURepairsOrders").isEnabled() ? "main " : "",
            part("pnlReports").isVisible() ? "reports " : "",
            part("pnlADMConfiguration").isVisible() ? "configuration " : "");
    }

    Desk desk;
    ScriptedUser user;
    QStringList errors;
    bool startResult = true;
    TfrmMAIN000 form{[this] { return startResult; }};
};

} // namespace

TEST_F(MainMenuTest, keysAndClicksLeadWhereTheMenuSays) {
    show();
    EXPECT_EQ(state(), "main ");
    EXPECT_EQ(colours(), (std::vector<QRgb>{blue, blue, green, red}));
    for (const Qt::Key idle : {Qt::Key_F3, Qt::Key_F4}) {
        press(idle);
    }
    click("btnMNUQuotations");
    click("btnMNUBookingDiary");
    EXPECT_EQ(state(), "main ") << "kept for later screens";
    bool opened = false;
    user.expectForm("orders", [&] {
        opened = true;
        EXPECT_TRUE(part("pnlMainMenu").isVisible());
        user.press(Qt::Key_Escape);
    });
    press(Qt::Key_F2);
    EXPECT_TRUE(opened);

    press(Qt::Key_F7);
    EXPECT_EQ(state(), "reports ");
    EXPECT_EQ(colours(), (std::vector<QRgb>{grey, grey, grey, grey}));
    EXPECT_EQ(part("pnlReports").pos(), QPoint(198, 230));
    for (const Qt::Key idle : {Qt::Key_F2, Qt::Key_F3, Qt::Key_F4, Qt::Key_F8}) {
        press(idle);
        EXPECT_EQ(state(), "reports ");
    }
    press(Qt::Key_Escape);
    EXPECT_EQ(state(), "main ") << "no question on the way back";
    EXPECT_EQ(colours(), (std::vector<QRgb>{blue, blue, green, red}));
}

TEST_F(MainMenuTest, aSubMenuIsWorkedAndLeftByTabAndSpace) {
    show();
    const auto walkTo = [this](const char* name) {
        for (int i = 0; i < 20 && form.focusWidget() != &part(name); ++i) {
            auto* at = form.focusWidget() != nullptr ? form.focusWidget() : &form;
            QTest::keyClick(at, Qt::Key_Tab);
            QApplication::processEvents();
            EXPECT_TRUE(form.focusWidget() == nullptr || form.focusWidget()->isEnabled());
        }
        ASSERT_EQ(form.focusWidget(), &part(name));
        QTest::keyClick(form.focusWidget(), Qt::Key_Space);
        QApplication::processEvents();
    };
    for (const auto& [button, menu, exit] :
         {std::tuple("btnMNUReports", "reports ", "btnREPExit"),
          std::tuple("btnMNUConfiguration", "configuration ", "btnCFGExit")}) {
        walkTo(button);
        EXPECT_EQ(state(), menu);
        walkTo(exit);
        EXPECT_EQ(state(), "main ");
        user.expectForm("System Prompt", [&] { user.press(Qt::Key_N); });
        press(Qt::Key_Escape);
    }
}

TEST_F(MainMenuTest, twoMenuKeysWithoutAPauseOpenOneMenu) {
    show();
    velcro::test::queueKey(Qt::Key_F7);
    velcro::test::queueKey(Qt::Key_F8);
    velcro::test::takeQueue();
    EXPECT_EQ(state(), "reports ");
    velcro::test::queueKey(Qt::Key_Escape);
    velcro::test::queueKey(Qt::Key_F8);
    velcro::test::takeQueue();
    EXPECT_EQ(state(), "configuration ");
}

TEST_F(MainMenuTest, codeTablesOpenByClickOnlyAndCoverTheMenu) {
    show();
    press(Qt::Key_F8);
    EXPECT_EQ(state(), "configuration ");
    EXPECT_EQ(part("pnlADMConfiguration").pos(), QPoint(198, 321));
    for (const Qt::Key idle : {Qt::Key_F2, Qt::Key_F3, Qt::Key_F4}) {
        press(idle);
    }
    const std::pair<const char*, const char*> tables[] = {
        {"btnCFGSystemCodes", "codes"},
        {"btnCFGTechnicians", "people"},
        {"btnCFGProcessCodes", "steps"},
    };
    for (const auto& [button, title] : tables) {
        user.expectForm(title, [&] {
            EXPECT_FALSE(part("pnlMainMenu").isVisible());
            EXPECT_FALSE(part("pnlADMConfiguration").isVisible());
            user.press(Qt::Key_Escape);
        });
        click(button);
        EXPECT_TRUE(part("pnlMainMenu").isVisible()) << title;
        EXPECT_EQ(state(), "configuration ") << title;
    }
    gMenuScreens.systemCodes = [](QWidget*) -> std::unique_ptr<QDialog> {
        throw std::runtime_error("cannot read");
    };
    click("btnCFGSystemCodes");
    EXPECT_EQ(errors, QStringList("cannot read"));
    EXPECT_EQ(state(), "configuration ") << "a screen that fails leaves the menu usable";
    press(Qt::Key_Escape);
    EXPECT_EQ(state(), "main ");
}

TEST_F(MainMenuTest, factsOfTheSession) {
    gBRCategory = QStringLiteral("B");
    show();
    auto& bar = *form.StatusBar1;
    EXPECT_TRUE(bar.panelText(0).startsWith(" Connected : " + sfg_Date(0) + " - "));
    EXPECT_EQ(bar.panelText(1), "User : COUNTER1");
    EXPECT_EQ(bar.panelText(2), "Version  :   " + gVersion);
    EXPECT_EQ(bar.panelText(3), "Period : " + QString::number(gAP));
    EXPECT_EQ(bar.panelText(4), "Database : VELSUITE");
    EXPECT_EQ(bar.panelText(5), "Velmara Retail Software");
    for (const char* category : {"H", "T"}) {
        gBRCategory = QLatin1String(category);
        form.Initialize_MainForm();
        EXPECT_EQ(bar.panelText(5), "Press  [Alt-F12]  to Switch between Company and/or Branch ");
    }
    form.setWindowState(Qt::WindowNoState);
    form.resize(1024, 768);
    EXPECT_LE(bar.textWidth(), bar.width()) << "all six facts can be read";
}

TEST_F(MainMenuTest, theLogoOfTheCompanyAndWhatMovesWithTheWindow) {
    show();
    EXPECT_TRUE(part("imgCompany").isVisible());
    const QPoint menu = part("pnlMainMenu").pos();
    for (const QSize size : {QSize(1280, 1000), QSize(1001, 900)}) {
        form.setWindowState(Qt::WindowNoState);
        form.resize(size);
        form.grab();
        EXPECT_EQ(part("imgVelmara").pos(), QPoint(form.width() / 2 - 250, 110));
        EXPECT_EQ(part("imgCompany").pos(),
                  QPoint(20, form.height() - part("imgCompany").height() - 120));
        EXPECT_EQ(part("pnlMainMenu").pos(), menu);
    }
    Desk::onSuite("UPDATE SYSRepImages SET ImageData = 0x00010203 WHERE ImageCode = 'IMGLOGO'");
    form.Initialize_MainForm();
    EXPECT_FALSE(part("imgCompany").isVisible()) << "no picture";
    EXPECT_EQ(state(), "main ");
    Desk::onSuite("DELETE FROM SYSRepImages WHERE ImageCode = 'IMGLOGO'");
    form.Initialize_MainForm();
    EXPECT_FALSE(part("imgCompany").isVisible());
    EXPECT_TRUE(errors.isEmpty() && desk.shown.isEmpty()) << "a missing logo is no fault";
}

TEST_F(MainMenuTest, theBandOfTheBranchAndColoursThatAreNone) {
    setParameter("SYS", 161, "N");
    show();
    EXPECT_FALSE(part("imgMain").isVisible());
    EXPECT_FALSE(part("pnlBranchColor").isVisible()) << "not asked for";
    setParameter("CO", 85, "Y");
    const std::pair<const char*, QRgb> colours[] = {
        {"clTeal", 0xff008080},
        {"Red", 0xffff0000},
        {"$00FF8000", 0xff0080ff},
        {"255", 0xffff0000},
        {"0xFF", 0xffff0000},
        {"clBtnFace", QGuiApplication::palette().color(QPalette::Button).rgb()},
        {"-16777201", QGuiApplication::palette().color(QPalette::Button).rgb()},
        {"$FF000005", QGuiApplication::palette().color(QPalette::Base).rgb()},
        {"clCream", 0xfffffbf0},
        {"clMoneyGreen", 0xffc0dcc0},
        {"clmedgray", 0xffa0a0a4},
        {"clSkyBlue", 0xffa6caf0},
        {"clLtGray", 0xffc0c0c0},
        {"clDkGray", 0xff808080},
    };
    for (const auto& [text, colour] : colours) {
        gBRStatusBarColor = QLatin1String(text);
        form.Initialize_MainForm();
        EXPECT_TRUE(part("pnlBranchColor").isVisible());
        EXPECT_EQ(part("pnlBranchColor").palette().color(QPalette::Window).rgb(), colour) << text;
        EXPECT_EQ(static_cast<QLabel&>(part("lblBranchColor")).text(), "Central");
    }
    EXPECT_TRUE(errors.isEmpty());
    for (const char* none : {"", "clNoSuchColour", "$GG"}) {
        errors.clear();
        gBRStatusBarColor = QLatin1String(none);
        form.Initialize_MainForm();
        EXPECT_EQ(errors.size(), 1) << none;
        EXPECT_EQ(state(), "main ") << "the menu goes live all the same";
    }
}

TEST_F(MainMenuTest, leavingIsAskedAndClosesTheDatabases) {
    show();
    user.expectForm("System Prompt", [&] {
        EXPECT_EQ(user.sees("memTitle"), "Confirm Exit");
        EXPECT_EQ(user.sees("memMessage").trimmed(),
                  "Are you sure you want to exit the Customer Repair Orders module?");
        user.press(Qt::Key_Return);
        EXPECT_TRUE(user.form().isVisible()) << "Enter answers nothing";
        user.press(Qt::Key_N);
    });
    press(Qt::Key_Escape);
    EXPECT_TRUE(form.isVisible());
    user.expectForm("System Prompt", [&] { user.click("btnYes"); });
    Statement* const shared[] = {&gData->vQuery1, &gData->vQuery15, &gData->vLoadQuery1};
    for (Statement* query : shared) {
        query->Open({"SELECT 1 AS One"});
    }
    click("btnMNUExit");
    EXPECT_FALSE(form.isVisible());
    for (const Statement* query : shared) {
        EXPECT_FALSE(query->Active()) << "the shared queries are closed";
    }
    EXPECT_FALSE(cData->VelmaraCommon.Connected());
    EXPECT_EQ(form.exitStatus(), 0);
}

TEST_F(MainMenuTest, aStartThatFailsEndsTheProgram) {
    startResult = false;
    form.show();
    QTest::qWait(50);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.exitStatus(), 1);
    EXPECT_FALSE(part("btnMNURepairsOrders").isEnabled());
}

TEST_F(MainMenuTest, theMessageBarTellsOfTheDayEndThatThisSeatAskedFor) {
    gDBMessage = QStringLiteral("Backup tonight");
    show();
    auto& bar = *form.MessageStatusBar;
    EXPECT_EQ(bar.spokenText(3), "Backup tonight");
    EXPECT_NE(bar.panelStyle(1), velcro::ui::psOwnerDraw);
    EXPECT_EQ(gEODInitiated, "N");
    gDBMessage.clear();
    const QString row = "INSERT INTO SYSEODLog ([CO], [Branch], [RunDate], [Status], [DTOMacID]) "
                        "VALUES ('01', '100', '2001/01/0%1', '%2', '%3')";
    Desk::onSuite(row.arg("1", "9", gPCName));
    Desk::onSuite(row.arg("2", "X", gPCName));
    Desk::onSuite(row.arg("3", "1", "ANOTHER"));
    form.Check_EndOfDay_Progress();
    EXPECT_EQ(gEODInitiated, "N") << "ended, above 9, of another seat";
    Desk::onSuite(row.arg("4", "8", gPCName));
    form.Check_EndOfDay_Progress();
    EXPECT_EQ(gEODInitiated, "Y");
    EXPECT_EQ(bar.spokenText(1), "*Day-End Running");
    EXPECT_EQ(bar.panelStyle(1), velcro::ui::psOwnerDraw);
    Desk::onSuite("DROP TABLE SYSEODLog");
    form.Check_EndOfDay_Progress();
    ASSERT_EQ(desk.shown.size(), 1);
    EXPECT_TRUE(desk.shown[0].startsWith("SFVEL-11|SQL Error on Table: SysEODLog :-\r"));
    EXPECT_EQ(gEODInitiated, "N");
    EXPECT_THROW(sfvel_Check_EndOfDay_Run(), std::exception);
    EXPECT_TRUE(desk.shown.last().startsWith("SFVEL-10|"));
}

TEST_F(MainMenuTest, anIdleSeatCountsDownAndTheUserMayComeBack) {
    show();
    ASSERT_TRUE(form.ExeIdle->enabled());
    EXPECT_EQ(form.ExeIdle->IdleSeconds, 3600) << "the sample allows an hour";
    qint64 now = 0;
    form.ExeIdle->setClock([&now] { return now; });
    now = 3'599'999;
    form.ExeIdle->check();
    user.expectForm("Application Shutdown", [&] {
        now += 10'000'000;
        form.ExeIdle->check(); // does not notice idleness twice
        user.press(Qt::Key_Escape);
    });
    now = 3'600'000;
    form.ExeIdle->check();
    EXPECT_TRUE(form.isVisible());
    form.ExeIdle->check();
    now += 3'000'000;
    press(Qt::Key_F3);
    now += 3'000'000;
    form.ExeIdle->check(); // a key counts as use
    EXPECT_TRUE(form.isVisible());
    bool again = false;
    user.expectForm("Application Shutdown", [&] {
        again = true;
        user.press(Qt::Key_Escape);
    });
    now += 600'000;
    form.ExeIdle->check();
    EXPECT_TRUE(again) << "whoever came back is watched again";
}

// What every detail screen does, shown on one that has a control of each kind on two pages.
#include "screens/DetailScreen.h"

#include "data/SysDataModel.h"
#include "support/Desk.h"
#include "support/DetailColumns.h"
#include "support/ScreenChecks.h"
#include "ui/AmountEdit.h"
#include "ui/FormBuilder.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using velcro::test::Desk;

namespace {

const QString title = u"Trial Of A Detail"_s;
const QString question = u"System Prompt"_s;

DetailFacts trialFacts() {
    using namespace field;
    return {
        .unit = u"TRIAL"_s,
        .caption = title,
        .saveCaption = u"Save Trial"_s,
        .deleteCaption = u"Delete Record"_s,
        .table = "Trial",
        .errorNo = u"TRIAL-1"_s,
        .fields = {text("edHead", u"Order"_s, {.readOnly = true}), page("pgMain", u"Main"_s),
                   combo("cmbSort", u"Sort"_s, {u"A - APPLES"_s, u"B - BREAD - WHITE"_s}),
                   text("edCode", u"Code"_s,
                        {.limit = 10, .upperCase = true, .key = true, .browse = true}),
                   text("edName", u"Name"_s, {.beside = true, .limit = 50}),
                   text("edStock", u"Stock"_s, {.limit = 20, .browse = true}),
                   codes("cmbTech", u"Technician"_s, u"CROTechMst"_s, u"*BLANK*"_s),
                   page("pgMore", u"More"_s), note(u"What stands here explains the page."_s),
                   date("edSince", u"Since"_s, {.today = true}), amount("edPrice", u"Price"_s),
                   toggle("tsUsed", u"Use"_s, u"In Use"_s, u"Not In Use"_s, {.column = "InUse"}),
                   memo("memNotes", u"Notes"_s)},
        .checks = {{"edCode", isFilled, u"Code, please."_s},
                   {"edPrice", isNotZero, u"Price, please."_s, "edPrice"},
                   {"edName", isNotBlank, u"Name, please."_s, "edCode"}},
        .unique = {"CO Code", u"Code is taken."_s, "cmbSort"},
        .inserts = "CO Sort Code Name Stock Tech Since Price InUse Notes Origin",
        .updates = "Name Sort Stock Tech Since Price InUse Notes",
        .values = {{"Origin", always(u"typed"_s)}},
        .stamped = true,
        .keyCapsBySeat = true,
        .firstInUpdate = "edName",
    };
}

class Trial : public DetailScreen
{
public:
    Trial()
        : DetailScreen(trialFacts(), nullptr) {
        lookUp("edStock", {.find = [this] { return find(); },
                           .browse =
                               [this](const QString& start) {
                                   browsed << start;
                                   control("edStock")->setText(picked);
                                   return !picked.isEmpty();
                               },
                           .onEnter = false,
                           .onLeaving = true,
                           .unknown = u"No such stock."_s});
    }

    QStringList browsed;
    QString picked;

private:
    LookUp::Answer find() {
        const auto text = control("edStock")->text();
        return text == "GONE"_L1         ? LookUp::Refused
               : text.startsWith(u"S"_s) ? LookUp::Found
                                         : LookUp::Unknown;
    }
};

class DetailScreenTest : public testing::Test
{
protected:
    DetailScreenTest() {
        Desk::onSuite("CREATE TABLE Trial ([RecID] int IDENTITY(1,1), [CO] nvarchar(10),"
                      " [Sort] nvarchar(10), [Code] nvarchar(10), [Name] nvarchar(50),"
                      " [Stock] nvarchar(20), [Tech] nvarchar(10), [Since] nvarchar(10),"
                      " [Price] float, [InUse] nvarchar(1), [Notes] nvarchar(100),"
                      " [Origin] nvarchar(10), [DTODate] nvarchar(10), [DTOTime] nvarchar(8),"
                      " [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20))");
        Desk::onSuite("INSERT INTO Trial ([CO], [Sort], [Code], [Name], [Price], [InUse])"
                      " VALUES ('01', 'B', 'OLD', 'Old one', 2.5, 'y')");
    }
    void show(int xFunction, const ScriptedUser::Step& steps) {
        Trial screen;
        screen.resize(1024, 768);
        screen.xFunction = xFunction;
        screen.xRecID = xFunction == 1 ? 0 : 1;
        trial = &screen;
        user.workIn(screen, steps);
    }
    static QString rows() { return Desk::suite("SELECT COUNT(*) FROM Trial"); }
    QString page() { return user.find<QTabWidget>("MainPager").currentWidget()->objectName(); }

    Desk desk;
    ScriptedUser user;
    Trial* trial = nullptr;
};

} // namespace

TEST_F(DetailScreenTest, everyFieldComesIntoItsColumnAndBack) {
    expectEveryColumnIsKept(user, {.screen = [] { return std::make_unique<Trial>(); },
                                   .typed = {{"edStock", {"S1", "S2"}},
                                             {"edSince", {"2026/01/31", "2026/02/01"}},
                                             {"edPrice", {"1.005", "-12345.678"}}},
                                   .others = {{"Origin", "typed"}}});
    EXPECT_EQ(Desk::suite("SELECT [Price] FROM Trial WHERE [RecID] = 2"), "-12345.68");
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
}

TEST_F(DetailScreenTest, theKeyIsLockedOnceTheRowIsThere) {
    show(1, [&] {
        EXPECT_EQ(user.focus(), "cmbSort");
        EXPECT_FALSE(user.find<QLineEdit>("edCode").isReadOnly());
        EXPECT_TRUE(user.find<QToolButton>("btnCode").isVisible());
        EXPECT_EQ(namelessControls(user.form()).join("\n").toStdString(), "");
        EXPECT_EQ(clippedControls(user.form()).join("\n").toStdString(), "");
        keepPicture(user.form(), "trial");
        user.press(Qt::Key_Escape);
    });
    show(2, [&] {
        EXPECT_EQ(user.focus(), "edName");
        EXPECT_TRUE(user.find<QLineEdit>("edCode").isReadOnly());
        EXPECT_FALSE(user.find<QToolButton>("btnCode").isVisible());
        EXPECT_EQ(user.find<QLineEdit>("edCode").grab().toImage().pixelColor(8, 8),
                  QColor(0xff, 0xfa, 0xe6));
        EXPECT_EQ(user.sees("tsUsed"), "In Use");
        EXPECT_EQ(user.sees("edPrice"), "2.50");
        user.press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(user.focus(), "cmbSort") << "Tab passes the key by";
        user.press(Qt::Key_Escape);
    });
}

TEST_F(DetailScreenTest, aRefusedControlComesForwardAndIsMarkedUntilItIsEdited) {
    show(1, [&] {
        EXPECT_EQ(user.find<QLineEdit>("edCode").accessibleDescription(), "Must be filled");
        user.find<QTabWidget>("MainPager").setCurrentIndex(1);
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), "Code, please.");
        EXPECT_EQ(page(), "pgMain");
        EXPECT_EQ(user.focus(), "edCode");
        EXPECT_TRUE(user.find<QLineEdit>("edCode").property("offending").toBool());
        user.type("new");
        EXPECT_FALSE(user.find<QLineEdit>("edCode").property("offending").toBool());
        EXPECT_EQ(user.message(), "");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), "Price, please.");
        EXPECT_EQ(page(), "pgMore");
        user.type("5");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), "Name, please.");
        EXPECT_EQ(user.focus(), "edCode");
        user.typeInto("edName", "New one");
        user.typeInto("edCode", "old");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), "Code is taken.");
        EXPECT_EQ(user.focus(), "cmbSort");
        user.typeInto("edCode", "new");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(rows(), "2");
}

TEST_F(DetailScreenTest, escapeClosesWhatIsOnTopAndAsksOnlyWhenSomethingWasTyped) {
    show(1, [&] {
        trial->picked = "S1";
        user.click("btnStock");
        user.expectForm(question, [&] { user.press(Qt::Key_Y); });
        user.press(Qt::Key_Escape);
    });
    show(2, [&] {
        auto& combo = user.find<QComboBox>("cmbSort");
        combo.showPopup();
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
        QTest::keyClick(user.form().windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(user.form().isVisible()) << "the list closes, not the screen";
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        user.typeInto("edName", "Typed");
        user.expectForm(question, [&] { user.press(Qt::Key_N); });
        user.press(Qt::Key_Escape);
        EXPECT_EQ(user.sees("edName"), "Typed");
        user.expectForm(question, [&] { user.press(Qt::Key_Y); });
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(Desk::suite("SELECT [Name] FROM Trial"), "Old one");
    for (const int mode : {1, 2, 3}) {
        show(mode, [&] { user.press(Qt::Key_Escape); });
    }
}

TEST_F(DetailScreenTest, enterPressesTheButtonItStandsOnButDeletesNothing) {
    show(1, [&] {
        user.find<QWidget>("btnCancel").setFocus();
        user.press(Qt::Key_Return);
        EXPECT_FALSE(user.form().isVisible());
    });
    show(3, [&] {
        EXPECT_EQ(user.sees("btnSave"), "Delete Record");
        EXPECT_EQ(user.focus(), "btnSave");
        user.press(Qt::Key_Return);
        EXPECT_TRUE(user.form().isVisible());
        user.find<QWidget>("btnCancel").setFocus();
        user.press(Qt::Key_Enter);
        EXPECT_FALSE(user.form().isVisible());
    });
    EXPECT_EQ(rows(), "1");
    Desk::onSuite("UPDATE Trial SET [Name] = 'still checked' ");
    show(3, [&] { user.press(Qt::Key_F10); });
    EXPECT_EQ(rows(), "0");
}

TEST_F(DetailScreenTest, aSeatWorkedByTouchAloneShowsNoKeysOnButtons) {
    for (const char* value : {"Y", "N"}) {
        gParameters.clear();
        gParameters.push_back(std::make_unique<TParameter>(TParameter{"TIL", 62, {}, value}));
        show(1, [&] {
            EXPECT_EQ(user.find<velcro::ui::KeyButton>("btnSave").keyCap(),
                      *value == 'Y' ? "" : "F10");
            user.press(Qt::Key_Escape);
        });
    }
    gParameters.clear();
}

TEST_F(DetailScreenTest, aLookUpIsAnsweredBeforeTheFocusLeaves) {
    show(1, [&] {
        const auto leave = [&](const char* text, Qt::Key key) {
            user.typeInto("edStock", text);
            trial->browsed.clear();
            user.press(key);
            return user.focus();
        };
        EXPECT_EQ(leave("S7", Qt::Key_Tab), "cmbTech");
        EXPECT_EQ(leave("S7", Qt::Key_Return), "cmbTech");
        EXPECT_EQ(leave("", Qt::Key_Tab), "cmbTech") << "an empty one is left in peace";
        EXPECT_EQ(trial->browsed, QStringList());
        EXPECT_EQ(leave("GONE", Qt::Key_Tab), "edStock");
        EXPECT_EQ(trial->browsed, QStringList()) << "known, and refused";
        trial->picked = "";
        EXPECT_EQ(leave("x1", Qt::Key_Return), "edStock");
        EXPECT_EQ(trial->browsed, QStringList("x1"));
        EXPECT_EQ(user.message(), "No such stock.");
        trial->picked = "S9";
        EXPECT_EQ(leave("x1", Qt::Key_Tab), "cmbTech");
        EXPECT_EQ(user.sees("edStock"), "S9");
        EXPECT_EQ(leave(" ? ", Qt::Key_Tab), "cmbTech");
        EXPECT_EQ(trial->browsed, QStringList(""));
        trial->picked = "";
        user.typeInto("edStock", "x2");
        user.click("edName"); // the mouse leaves it, too
        EXPECT_EQ(user.focus(), "edStock");
        EXPECT_EQ(user.message(), "No such stock.");
        user.expectForm(question, [&] { user.press(Qt::Key_Y); });
        user.press(Qt::Key_Escape);
    });
}

// The selections of customers and serial numbers, driven by a user over the sample databases.
#include "data/Session.h"
#include "data/SysDataModel.h"
#include "lookups/CRO900.h"
#include "lookups/CRO910.h"
#include "repairs/SysCRO.h"
#include "screens/ScreenServices.h"
#include "support/Desk.h"
#include "support/ScreenChecks.h"
#include "support/ScriptedUser.h"

#include <QAbstractButton>
#include <gtest/gtest.h>

using velcro::test::Desk;

namespace {

const QString customers = QStringLiteral("Debtors: Customer Selection");

class SelectionTest : public testing::Test
{
protected:
    ~SelectionTest() override { gParameters.clear(); }

    void search(const QString& text) {
        user.click("btnLookup");
        user.typeInto("edSearchText", text);
        user.click("btnSearch");
    }
    QStringList faults() { return namelessControls(user.form()) + clippedControls(user.form()); }

    Desk desk;
    ScriptedUser user;
};

} // namespace

TEST_F(SelectionTest, theListOpensCappedWhateverTheStartingSearch) {
    user.expectForm(customers, [this] {
        const auto names = user.column("Debtors Name");
        EXPECT_EQ(names.size(), 2000);
        EXPECT_THROW(user.column("ID Number"), std::runtime_error) << "hidden";
        EXPECT_FALSE(user.find<QWidget>("btnRestoreGrid").isVisible());
        EXPECT_EQ(user.focus(), "grdList");
        EXPECT_EQ(faults(), QStringList());
        keepPicture(user.form(), "CRO900");
        for (const auto key : {Qt::Key_F2, Qt::Key_F3, Qt::Key_F5, Qt::Key_F4}) {
            user.press(key);
        }
        EXPECT_EQ(user.column("Debtors Name"), names);
        user.press(Qt::Key_Down);
        user.press(Qt::Key_Down);
        user.press(Qt::Key_PageDown);
        EXPECT_EQ(user.current("Debtors Name"), names[1]) << "one record back";
        user.press(Qt::Key_PageUp);
        EXPECT_EQ(user.current("Debtors Name"), names[0]);
        user.press(Qt::Key_Escape);
    });
    gSParam[1] = gSParam[2] = "old";
    EXPECT_EQ(cro_BrowseDEBMaster("C00002"), "");
    EXPECT_EQ(gSParam[1], "");
    EXPECT_EQ(gSParam[2], "");
    EXPECT_EQ(desk.shown, QStringList());
}

TEST_F(SelectionTest, aSearchLiftsTheCapAndRestoreBringsItBack) {
    user.expectForm(customers, [this] {
        search("O'Br");
        ASSERT_EQ(desk.shown.size(), 1);
        EXPECT_TRUE(desk.shown[0].startsWith("900-001|SQL Error on Table: DEBMaster :-\r"))
            << desk.shown[0].toStdString();
        EXPECT_EQ(user.column("Account"), QStringList()) << "the grid stays empty";
        user.press(Qt::Key_F12);
        EXPECT_EQ(user.column("Account").size(), 2000);
        search("C0");
        EXPECT_GT(user.column("Account").size(), 2000);
        EXPECT_TRUE(user.find<QWidget>("btnRestoreGrid").isVisible());
        EXPECT_EQ(faults(), QStringList());
        user.press(Qt::Key_R, Qt::ControlModifier);
        EXPECT_EQ(user.column("Account").size(), 2000);
        EXPECT_FALSE(user.find<QWidget>("btnRestoreGrid").isVisible());
        search("Brackenfell");
        EXPECT_TRUE(user.column("Account").contains("C00002"));
        user.click("btnLookup");
        user.press(Qt::Key_Escape);
        EXPECT_TRUE(user.form().isVisible()) << "the first Esc hides the search alone";
        while (user.current("Account") != "C00002") {
            user.click("btnNext");
        }
        user.press(Qt::Key_Return);
    });
    EXPECT_EQ(cro_BrowseDEBMaster("?"), "C00002");
    EXPECT_EQ(gSParam[1], "O'Brackenfell Guest House & Wedding Venue");
    EXPECT_EQ(gSParam[2], "100");
}

TEST_F(SelectionTest, aScannerSearchesWithoutLosingALetter) {
    user.expectForm(customers, [this] {
        const auto whole = user.column("Account");
        user.press(Qt::Key_S, Qt::AltModifier);
        user.type("C00002");
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.column("Account"), QStringList("C00002"));
        EXPECT_EQ(user.focus(), "grdList");
        user.press(Qt::Key_S, Qt::AltModifier);
        user.type("c00001"); // in place of what was there
        user.press(Qt::Key_Tab);
        QCoreApplication::processEvents();
        EXPECT_EQ(user.column("Account"), QStringList("C00001")) << "leaving the text searches";
        user.press(Qt::Key_S, Qt::AltModifier);
        user.type("  ");
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.column("Account"), QStringList("C00001")) << "blank: nothing happens";
        user.press(Qt::Key_F12);
        EXPECT_EQ(user.column("Account"), whole);
        user.press(Qt::Key_Escape);
        if (user.form().isVisible()) {
            user.press(Qt::Key_Escape);
        }
    });
    EXPECT_EQ(cro_BrowseDEBMaster({}), "");

    TfrmCRO910 serials;
    user.workIn(serials, [this] {
        search("no such serial");
        EXPECT_EQ(user.column("Serial No."), QStringList());
        user.press(Qt::Key_S, Qt::AltModifier);
        user.type("1");
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.column("Serial No."), QStringList()) << "Enter at the end does nothing";
        user.click("btnSearch");
        EXPECT_FALSE(user.column("Serial No.").isEmpty());
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(desk.shown, QStringList());
}

TEST_F(SelectionTest, leavingTheTextSearchesHoweverItIsLeftButByEsc) {
    const struct
    {
        const char* how;
        std::function<void()> leave;
        bool searches;
    } ways[] = {
        {"Tab", [this] { user.press(Qt::Key_Tab); }, true},
        {"Shift+Tab", [this] { user.press(Qt::Key_Tab, Qt::ShiftModifier); }, true},
        {"a tap on the grid", [this] { user.click("grdList"); }, true},
        {"a button beside the list", [this] { user.click("btnLast"); }, true},
        {"the program", [this] { user.find<QWidget>("grdList").setFocus(); }, true},
        {"Esc", [this] { user.press(Qt::Key_Escape); }, false},
        {"the panel's close", [this] { user.click("btnSearchClose"); }, false},
        {"Restore Grid", [this] { user.press(Qt::Key_F12); }, false},
    };
    user.expectForm(customers, [&] {
        for (const auto& [how, leave, searches] : ways) {
            user.press(Qt::Key_S, Qt::AltModifier);
            user.type("C00002");
            leave();
            QCoreApplication::processEvents();
            EXPECT_EQ(user.column("Account").size(), searches ? 1 : 2000) << how;
            EXPECT_FALSE(user.find<QWidget>("pnlSearch").isVisible()) << how;
            user.press(Qt::Key_F12);
        }
        user.press(Qt::Key_Escape);
    });
    cro_BrowseDEBMaster({});
    EXPECT_EQ(desk.shown, QStringList());
}

TEST_F(SelectionTest, aSearchReadsNoPasswordsAndDropsNoTable) {
    const QString texts[] = {
        "' UNION SELECT [UserCode], [UserPswd], '', '', '', '', '', '' FROM SYSUser --",
        "x'; DROP TABLE DEBMaster --",
    };
    user.expectForm(customers, [&] {
        for (const auto& text : texts) {
            search(text);
            EXPECT_EQ(user.column("Account"), QStringList()) << text.toStdString();
            user.press(Qt::Key_F12);
            EXPECT_EQ(user.column("Account").size(), 2000) << text.toStdString();
        }
        user.press(Qt::Key_Escape);
    });
    cro_BrowseDEBMaster({});
    ASSERT_EQ(desk.shown.size(), 2);
    EXPECT_EQ(desk.shown[1], "900-001|SQL Error on Table: DEBMaster :-\rUnclosed quotation mark "
                             "after the character string '" +
                                 texts[1] + "'.");
}

TEST_F(SelectionTest, keyCapsFollowTheSeatsParameter) {
    for (const char* value : {"N", "Y"}) {
        gParameters.clear();
        gParameters.push_back(std::make_unique<TParameter>(TParameter{"TIL", 62, {}, value}));
        TfrmCRO900 screen;
        user.workIn(screen, [&] {
            for (const char* name : {"btnSelect", "btnSearch", "btnRestoreGrid", "btnCancel"}) {
                EXPECT_EQ(user.find<QAbstractButton>(name).icon().isNull(), value[0] == 'Y')
                    << name;
            }
            user.press(Qt::Key_Escape);
        });
    }
}

TEST_F(SelectionTest, aSerialIsPickedWithItsStatusInWords) {
    const QString number = Desk::suite("SELECT TOP(1) [SerialNo] FROM STKSerialMst WHERE [CO] = "
                                       "'01' AND [Branch] = '100' ORDER BY [SerialNo] DESC");
    Desk::onSuite("UPDATE STKSerialMst SET [Status] = 'D' WHERE [CO] = '01' AND [Branch] = '100' "
                  "AND [SerialNo] = '" +
                  number + "'");
    TfrmCRO910 screen;
    screen.resize(1024, 768);
    user.workIn(screen, [&] {
        EXPECT_LE(user.column("Serial No.").size(), 1000);
        EXPECT_EQ(user.current("Serial No."), number);
        EXPECT_EQ(user.current("Status"), "Deleted");
        EXPECT_EQ(faults(), QStringList());
        keepPicture(screen, "CRO910");
        search(number);
        EXPECT_EQ(user.column("Serial No.").value(0), number);
        user.press(Qt::Key_Return);
    });
    EXPECT_EQ(screen.xSerialNo, number);
    EXPECT_EQ(screen.xStatus, "D") << "as stored";
    EXPECT_GT(screen.xRecID, 0);
    EXPECT_FALSE(screen.xStockCode.isEmpty());
}

TEST_F(SelectionTest, serialsAreThoseOfTheBranchTheirStatusInWordsAndAQuoteAFailedRead) {
    const char* const statuses[][2] = {
        {"0", "Open"},     {"2", "Marked Return"}, {"5", "Captured on IBT"},
        {"9", "Invoiced"}, {"D", "Deleted"},       {"7", "7"},
    };
    Desk::onSuite("DELETE FROM STKSerialMst");
    const auto add = [](const QString& serial, const QString& status, const QString& branchIs) {
        Desk::onSuite("INSERT INTO STKSerialMst ([CO], [Branch], [StockCode], [LinkCode], "
                      "[SerialNo], [Status]) SELECT TOP(1) [CO], [Branch], [StockCode], "
                      "[LinkCode], '" +
                      serial + "', '" + status +
                      "' FROM STKMaster WHERE [CO] = '01' AND [Branch] " + branchIs);
    };
    for (int i = 0; i < 6; ++i) {
        add("S" + QString::number(i), statuses[i][0], "= '100'");
    }
    add("S9", "0", "<> '100'");
    ASSERT_EQ(Desk::suite("SELECT COUNT(*) FROM STKSerialMst"), "7");
    TfrmCRO910 screen;
    user.workIn(screen, [&] {
        EXPECT_EQ(user.column("Serial No."), QStringList({"S5", "S4", "S3", "S2", "S1", "S0"}));
        for (int i = 0; i < 6; ++i) {
            EXPECT_EQ(user.column("Status").value(5 - i), statuses[i][1]) << statuses[i][0];
        }
        search("S'");
        ASSERT_EQ(desk.shown.size(), 1);
        EXPECT_TRUE(desk.shown[0].startsWith("920-001|SQL Error on Table: STKSerialMst :-\r"))
            << desk.shown[0].toStdString();
        EXPECT_EQ(user.column("Serial No."), QStringList()) << "the grid stays empty";
        user.press(Qt::Key_F12);
        EXPECT_EQ(user.column("Serial No.").size(), 6);
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(screen.xRecID, 0);
}

TEST_F(SelectionTest, withoutSerialsSelectingClosesWithNothing) {
    Desk::onSuite("DELETE FROM STKSerialMst");
    TfrmCRO910 screen;
    user.workIn(screen, [&] {
        user.press(Qt::Key_Return);
        EXPECT_TRUE(screen.isVisible()) << "Enter selects a record alone";
        user.click("btnSelect");
    });
    EXPECT_EQ(screen.xRecID, 0);
    EXPECT_EQ(screen.xSerialNo, "");
    EXPECT_EQ(desk.shown, QStringList());
}

TEST_F(SelectionTest, aListClosesItsQueryAndOpensItsTechnicalReference) {
    struct Opened : TfrmCRO900
    {
        Opened()
            : TfrmCRO900(nullptr) {}
        using ListScreen::query;
    };
    QString asked;
    gScreenServices.techHelp = [&asked](const QString& form) { asked = form; };
    Opened list;
    user.workIn(list, [&] {
        EXPECT_TRUE(list.query().Active());
        user.click("btnTechHelp");
        user.press(Qt::Key_Escape);
    });
    gScreenServices.techHelp = {};
    EXPECT_FALSE(list.query().Active());
    EXPECT_EQ(asked, "CRO900");
}

// A user's own grid: chosen and ordered in the dialog, kept in the suite database, found again.
#include "screens/GridLayouts.h"

#include "data/Session.h"
#include "platform/seat/Shell.h"
#include "repairs/CRO100.h"
#include "support/Desk.h"
#include "support/ScriptedUser.h"
#include "ui/GridLayout.h"

#include <QAction>
#include <QFileInfo>
#include <gtest/gtest.h>

using velcro::test::Desk;
using velcro::ui::RowGrid;

namespace {

const QString dialog = QStringLiteral("Grid Customisation Settings");

class GridLayoutsTest : public testing::Test
{
protected:
    void inRegister(const std::function<void(TfrmCRO100&)>& steps) {
        TfrmCRO100 form(nullptr);
        user.workIn(form, [&] {
            steps(form);
            user.press(Qt::Key_Escape);
        });
    }
    void customise(const std::function<void(RowGrid&)>& steps) {
        user.expectForm(dialog, [&] { steps(user.find<RowGrid>("clGridColumns")); });
        user.find<QAction>("acGridCustom").trigger();
    }
    static QStringList shown(TfrmCRO100& form) {
        QStringList all;
        for (const auto& column : velcro::ui::gridColumnOrder(form.grid())) {
            if (column.shown) {
                all += form.grid().rowModel().columns()[column.index].heading();
            }
        }
        return all;
    }
    static QString stored() {
        return Desk::suite("SELECT COUNT(*) FROM SysSaveGrids WHERE [ScreenID] = 'CRO100'");
    }

    Desk desk;
    ScriptedUser user;
};

} // namespace

TEST_F(GridLayoutsTest, whatWasChosenAndKeptIsFoundAgainByItsUserAlone) {
    QStringList before, chosen;
    inRegister([&](TfrmCRO100& form) {
        before = shown(form);
        customise([&](RowGrid& list) {
            user.press(Qt::Key_Up, Qt::ControlModifier); // at the top: nothing happens
            user.press(Qt::Key_Space);                   // the first one goes
            list.next();
            list.next();
            user.click("btnMoveUp");
            user.click("btnMoveUp");
            user.click("btnMoveUp");
            user.press(Qt::Key_F10);
        });
        chosen = shown(form);
    });
    EXPECT_EQ(chosen, QStringList({before[2], before[1]}) + before.mid(3));
    inRegister([&](TfrmCRO100& form) {
        EXPECT_EQ(shown(form), chosen);
        EXPECT_TRUE(form.grid().currentResultRow()) << "and it can be worked in";
    });
    for (auto* who : {&gUserCode, &gCO}) {
        const QString mine = std::exchange(*who, QStringLiteral("OTHER"));
        inRegister([&](TfrmCRO100& form) { EXPECT_EQ(shown(form), before); });
        *who = mine;
    }
    inRegister([&](TfrmCRO100& form) {
        customise([&](RowGrid&) {
            user.click("btnDeselectAll");
            user.click("btnExit");
        });
        EXPECT_EQ(shown(form), chosen) << "leaving takes nothing over";
        customise([&](RowGrid&) { user.click("btnSave"); });
        EXPECT_EQ(stored(), "1");
        customise([&](RowGrid&) { user.click("btnRestore"); });
        EXPECT_EQ(stored(), "0");
        EXPECT_EQ(shown(form), chosen) << "until the screen opens again";
    });
    inRegister([&](TfrmCRO100& form) { EXPECT_EQ(shown(form), before); });
}

TEST_F(GridLayoutsTest, aLayoutThatIsRubbishOrCannotBeReadKeepsNoScreenFromOpening) {
    Desk::onSuite("INSERT INTO SYSSaveGrids ([CO], [UserCode], [ScreenID], [GridSettings]) "
                  "VALUES ('01', 'COUNTER1', 'CRO100', 'x[Grid] = \"')");
    inRegister([&](TfrmCRO100& form) { EXPECT_TRUE(form.grid().currentResultRow()); });
    Desk::onSuite("DROP TABLE SYSSaveGrids");
    inRegister([&](TfrmCRO100& form) {
        EXPECT_TRUE(form.grid().currentResultRow());
        EXPECT_THROW(sfvel_SaveGrids("CRO100", "x"), std::runtime_error);
    });
}

TEST_F(GridLayoutsTest, costsAreForThoseWhoMaySeeThem) {
    const struct
    {
        const char* field;
        bool always;
    } columns[] = {
        {"OrderNo", true}, {"LastCost", false}, {"ProfitPerc", false}, {"gpAmount", false}};
    for (const auto& [field, always] : columns) {
        gAllowViewCost = QStringLiteral("Y");
        EXPECT_TRUE(mayShowColumn({field})) << field;
        gAllowViewCost = QStringLiteral("N");
        EXPECT_EQ(mayShowColumn({field}), always) << field;
    }
    velcro::ui::RowGrid grid;
    grid.setColumns({{"OrderNo"}, {"LastCost"}});
    sfvel_SaveGrids("CRO555",
                    "[Grid]\nVersion=1\nColumn.LastCost=shown,90\nColumn.OrderNo=shown,80\n");
    sfvel_LoadSavedGrid(grid, "CRO555");
    EXPECT_TRUE(grid.isColumnHidden(1));
    EXPECT_FALSE(grid.isColumnHidden(0));
    user.expectForm(dialog, [&] {
        EXPECT_EQ(user.column("Column"), QStringList("OrderNo"));
        user.press(Qt::Key_Escape);
    });
    sfvel_GridCustom(grid, "CRO555");
}

TEST_F(GridLayoutsTest, theRegisterGoesIntoAWorkbookThatTheDesktopOpens) {
    QString opened;
    velcro::seat::setDesktopOpener([&](const QString& file) {
        opened = QDir::fromNativeSeparators(file);
        return true;
    });
    inRegister([&](TfrmCRO100&) { user.find<QAction>("acGridExcel").trigger(); });
    velcro::seat::setDesktopOpener({});
    const QString folder = QDir::fromNativeSeparators(desk.workingFolder());
    EXPECT_TRUE(opened.startsWith(folder + "TempCRO100-")) << opened.toStdString();
    EXPECT_TRUE(opened.endsWith(".xlsx"));
    EXPECT_GT(QFileInfo(opened).size(), 0);
}

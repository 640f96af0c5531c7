// The selections of a product and of its linked items, driven by a user over a small stock.
#include "lookups/StockDesk.h"

#include "lookups/CRO920.h"
#include "lookups/CRO921.h"
#include "lookups/VEL012.h"
#include "screens/GridLayouts.h"
#include "support/ScreenChecks.h"
#include "ui/GridLayout.h"
#include "ui/RowGrid.h"

#include <QLineEdit>

using velcro::test::Desk;

namespace {

const QString linkedTitle = QStringLiteral("Stock Master: Linked Item Selection ");

class ProductSelectionTest : public StockDesk
{
protected:
    ProductSelectionTest() { setParameter("CO", 33, "2"); }

    static void price(const QString& code, const QString& priceCode, const QString& excl,
                      const QString& incl) {
        insert("STKPrice", {{"StockCode", code},
                            {"LinkCode", code},
                            {"PriceCode", priceCode},
                            {"Excl", excl},
                            {"Incl", incl}});
    }
    static void balance(const QString& code, const QString& warehouse, const QString& onhand) {
        insert("STKBalance", {{"StockCode", code}, {"WH", warehouse}, {"Onhand", onhand}});
    }
    void stock() {
        product("A1", {{"Description1", "Alpha drill"},
                       {"Description2", "Blue"},
                       {"Barcode", "600100"},
                       {"SuppCode", "AX-1"},
                       {"DeptCode", "TOOLS"},
                       {"Units", "3"},
                       {"SqmBox", "1.25"},
                       {"CostDecimal", "3"},
                       {"QtyDecimal", "1"},
                       {"SellDecimal", "4"},
                       {"ListCostExcl", "1.01"},
                       {"ListCostIncl", "1.02"},
                       {"BuyCostExcl", "1.03"},
                       {"BuyCostIncl", "1.04"},
                       {"LastCostExcl", "1.05"},
                       {"LastCostIncl", "1.06"},
                       {"AvgCostExcl", "1.07"},
                       {"AvgCostIncl", "1.08"}});
        product("B1", {{"Description1", "Beta saw"}, {"Supplier", "S102"}, {"StockType", "K"}});
        product("C1", {{"Description1", "Gamma 50% O'Neil"}, {"StockType", "M"}, {"Status", "N"}});
        product("P1", {{"Description1", "Delta box"}, {"StockType", "P"}});
        product("P1", {{"LinkCode", "P1-6"},
                       {"Description1", "Delta box x6"},
                       {"StockType", "C"},
                       {"Units", "6"}});
        product("P1", {{"LinkCode", "P1-12"},
                       {"Description1", "Delta box x12"},
                       {"StockType", "C"},
                       {"Units", "12"}});
        product("X1", {{"Description1", "Old drill"}, {"Status", "X"}});
        product("F1", {{"Description1", "Far drill"}, {"Branch", "102"}});
        price("A1", "1", "99", "99");
        price("A1", "2", "10.5", "12.075");
        price("P1-12", "2", "7", "8");
        balance("A1", "MAIN", "4");
        balance("A1", "SPARE", "2.5");
        balance("B1", "MAIN", "0");
    }
    /// Shows the selection after it was told what it needs.
    void show(const std::function<void(TfrmCRO920&)>& prepare, const ScriptedUser::Step& steps) {
        TfrmCRO920 screen;
        screen.resize(1024, 768);
        prepare(screen);
        user.workIn(screen, steps);
    }
    void search(const QString& text) {
        user.press(Qt::Key_S, Qt::AltModifier);
        user.type(text);
        user.press(Qt::Key_Return);
    }
    void expectPlainScreen(const QString& picture) {
        EXPECT_EQ(namelessControls(user.form()).join("\n").toStdString(), "");
        EXPECT_EQ(clippedControls(user.form()).join("\n").toStdString(), "");
        keepPicture(user.form(), picture);
    }
    void leave() { user.press(Qt::Key_Escape); }
    QStringList faults() const { return desk.shown + raised; }
};

const auto asItIs = [](TfrmCRO920&) {};

} // namespace

TEST_F(ProductSelectionTest, theListHasPricesOfItsCodeAndARowForEachBalance) {
    stock();
    show(asItIs, [&] {
        EXPECT_EQ(user.column("Description #1"),
                  QStringList({"Alpha drill", "Alpha drill", "Beta saw", "Delta box x12",
                               "Delta box x6", "Gamma 50% O'Neil"}));
        EXPECT_EQ(user.column("Onhand"), QStringList({"6.5", "6.5", "0", "", "", ""}));
        EXPECT_EQ(user.column("Selling Ex."),
                  QStringList({"10.50", "10.50", "0.00", "0.00", "0.00", "0.00"}));
        EXPECT_EQ(user.column("Selling In."),
                  QStringList({"12.075", "12.075", "0.00", "0.00", "0.00", "0.00"}));
        EXPECT_EQ(user.column("Type"), QStringList({"Normal Item", "Normal Item", "Kit Item",
                                                    "Child Item", "Child Item", "Misc.Item"}));
        for (const char* hidden : {"L/Cost Excl.", "A/Cost Incl.", "RecID", "Description #2"}) {
            EXPECT_THROW(user.column(hidden), std::runtime_error) << hidden;
        }
        EXPECT_EQ(user.focus(), "grdList");
        expectPlainScreen("CRO920");
        leave();
    });
    EXPECT_EQ(desk.shown, QStringList());
}

TEST_F(ProductSelectionTest, theCallerNarrowsTheListAndShowsCosts) {
    stock();
    const struct
    {
        const char *start, *supplier, *type;
        QStringList expected;
    } cases[] = {
        {"?", "", "", {"A1", "A1", "B1", "P1", "P1", "C1"}},
        {" ? ", "", "K", {"B1"}},
        {"", "S102", "", {"B1"}},
        {"", "S102", "N", {}},
        {"", "", "P", {"P1"}},
        {" drill ", "", "", {"A1", "A1"}},
        {"AX-", "", "", {"A1", "A1"}},
        {"6001", "", "", {"A1", "A1"}},
        {"o'neil", "", "", {"C1"}},
        {"Blue", "", "", {}},
        {"'; DROP TABLE STKMaster --", "", "", {}},
    };
    for (const auto& [start, supplier, type, expected] : cases) {
        show(
            [&, start = start, supplier = supplier, type = type](TfrmCRO920& screen) {
                screen.xStartSearch = start;
                screen.xSupplier = supplier;
                screen.xStockTypeFilter = type;
            },
            [&, start = start, expected = expected] {
                EXPECT_EQ(user.column("Stock Code"), expected) << start;
                leave();
            });
    }
    show([](TfrmCRO920& screen) { screen.xShowCosts = "Y"; },
         [&] {
             EXPECT_EQ(user.column("L/Cost Excl.").value(0), "1.05");
             EXPECT_EQ(user.column("A/Cost Incl.").value(0), "1.08");
             expectPlainScreen("CRO920-costs");
             leave();
         });
    EXPECT_EQ(desk.shown, QStringList());
}

TEST_F(ProductSelectionTest, theUsersLayoutComesBackButForCostsThatTheCallerHides) {
    stock();
    gAllowViewCost = "Y";
    show([](TfrmCRO920& screen) { screen.xShowCosts = "Y"; },
         [&] {
             auto& grid = user.find<velcro::ui::RowGrid>("grdList");
             grid.setColumnHidden(grid.rowModel().columnOf("Barcode"), true);
             sfvel_SaveGrids("CRO920", velcro::ui::gridLayoutText(grid));
             leave();
         });
    for (const char* showCosts : {"Y", "N"}) {
        show([&](TfrmCRO920& screen) { screen.xShowCosts = showCosts; },
             [&] {
                 EXPECT_THROW(user.column("Barcode"), std::runtime_error);
                 if (showCosts[0] == 'Y') {
                     EXPECT_EQ(user.column("L/Cost Excl.").value(0), "1.05");
                 } else {
                     EXPECT_THROW(user.column("L/Cost Excl."), std::runtime_error);
                 }
                 leave();
             });
    }
    gAllowViewCost.clear();
    EXPECT_EQ(faults(), QStringList());
}

TEST_F(ProductSelectionTest, aSearchLeavesTheScopeButByItsFirstTerm) {
    stock();
    const struct
    {
        const char* text;
        QStringList expected;
    } cases[] = {
        {"drill", {"A1", "A1", "F1", "X1"}}, // whatever branch and status
        {"P1", {"P1", "P1", "P1"}},          // the parent by its link code
        {"blue", {"A1", "A1"}},
        {"600", {"A1", "A1"}},
        {"AX-1", {"A1", "A1"}},
        {"50%", {"C1"}},
        {"no such", {}},
    };
    show(asItIs, [&] {
        for (const auto& [text, expected] : cases) {
            search(text);
            EXPECT_EQ(user.column("Stock Code"), expected) << text;
        }
        search("O'N");
        EXPECT_EQ(desk.shown, QStringList("920-001|SQL Error Reading STKMASTER"));
        EXPECT_EQ(user.rowCount(), 0);
        user.press(Qt::Key_F12);
        EXPECT_EQ(user.rowCount(), 6);
        leave();
    });
    EXPECT_EQ(raised, QStringList());
}

TEST_F(ProductSelectionTest, aPickBringsEveryFieldAndLeavingNone) {
    stock();
    TfrmCRO920 screen;
    screen.xRecID = 7;
    screen.xExcl = 7;
    screen.xStockCode = "before";
    user.workIn(screen, [&] { leave(); });
    EXPECT_EQ(screen.xRecID, 0);
    EXPECT_EQ(screen.xExcl, 0);
    EXPECT_EQ(screen.xStockCode, "");
    user.workIn(screen, [&] { user.press(Qt::Key_Return); });
    EXPECT_EQ(screen.result(), QDialog::Accepted);
    EXPECT_EQ(QStringList({screen.xStockCode, screen.xLinkCode, screen.xStockType, screen.xVATCode,
                           screen.xDescription1, screen.xDescription2, screen.xBarcode}),
              QStringList({"A1", "A1", "N", "1", "Alpha drill", "Blue", "600100"}));
    EXPECT_EQ((std::vector<int>{screen.xRecID, screen.xUnits, screen.xCostDecimal,
                                screen.xQtyDecimal, screen.xSellDecimal}),
              (std::vector<int>{recID("A1"), 3, 3, 1, 4}));
    EXPECT_EQ(
        (std::vector<double>{screen.xSQMBox, screen.xExcl, screen.xIncl, screen.xListCostExcl,
                             screen.xListCostIncl, screen.xBuyCostExcl, screen.xBuyCostIncl,
                             screen.xLastCostExcl, screen.xLastCostIncl, screen.xAvgCostExcl,
                             screen.xAvgCostIncl}),
        (std::vector<double>{1.25, 10.5, 12.075, 1.01, 1.02, 1.03, 1.04, 1.05, 1.06, 1.07, 1.08}));
}

TEST_F(ProductSelectionTest, aParentGivesWayToItsLinkedItem) {
    stock();
    TfrmCRO920 screen;
    user.workIn(screen, [&] {
        search("Delta");
        while (user.current("Type") != "Parent Item") {
            user.press(Qt::Key_Down);
        }
        user.expectForm(linkedTitle, [&] { leave(); });
        user.press(Qt::Key_Return);
        EXPECT_TRUE(screen.isVisible()) << "no linked item was chosen";
        EXPECT_EQ(screen.xRecID, recID("P1")) << "and what was taken stays";
        user.expectForm(linkedTitle, [&] {
            EXPECT_EQ(user.sees("edStockCode"), "P1");
            EXPECT_EQ(user.sees("edDescription1"), "Delta box");
            EXPECT_EQ(user.column("LinkCode"), QStringList({"P1-12", "P1-6"}))
                << "the largest pack first, the parent never";
            EXPECT_EQ(dynamic_cast<TfrmCRO921&>(user.form()).StatusBar1().panelText(0), "CRO911");
            expectPlainScreen("CRO921");
            user.press(Qt::Key_Return);
        });
        user.press(Qt::Key_Return);
    });
    EXPECT_EQ(screen.xLinkCode, "P1-12");
    EXPECT_EQ(screen.xStockType, "C");
    EXPECT_EQ(screen.xUnits, 12);
    EXPECT_EQ(screen.xExcl, 0) << "its price stands under its own link code alone";
    EXPECT_EQ(desk.shown, QStringList());
}

TEST_F(ProductSelectionTest, aLinkedItemHasThePriceOfItsLinkCode) {
    stock();
    insert("STKPrice", {{"StockCode", "P1"},
                        {"LinkCode", "P1-6"},
                        {"PriceCode", "2"},
                        {"Excl", "7"},
                        {"Incl", "8.05"}});
    TfrmCRO920 screen;
    screen.xStockTypeFilter = "P";
    user.workIn(screen, [&] {
        user.expectForm(linkedTitle, [&] {
            user.press(Qt::Key_Down);
            user.press(Qt::Key_Return);
        });
        user.press(Qt::Key_Return);
    });
    EXPECT_EQ(screen.xLinkCode, "P1-6");
    EXPECT_EQ(screen.xExcl, 7);
    EXPECT_EQ(screen.xIncl, 8.05);
    // Its row goes between the choice and the read: the parent's values stay.
    user.workIn(screen, [&] {
        user.expectForm(linkedTitle, [&] {
            Desk::onSuite("DELETE FROM STKMaster WHERE [StockType] = 'C'");
            user.press(Qt::Key_Return);
        });
        user.press(Qt::Key_Return);
    });
    EXPECT_EQ(screen.xLinkCode, "P1");
    // And the table goes: the failure is told, and the pick counts.
    product("P1", {{"LinkCode", "P1-6"}, {"StockType", "C"}});
    user.workIn(screen, [&] {
        user.expectForm(linkedTitle, [&] {
            Desk::onSuite("DROP TABLE STKMaster");
            user.press(Qt::Key_Return);
        });
        user.press(Qt::Key_Return);
    });
    EXPECT_EQ(desk.shown, QStringList("920-002|SQL Error Reading : STKMaster"));
}

TEST_F(ProductSelectionTest, anEmptyListIsLeftWithNothing) {
    product("P1", {{"StockType", "P"}});
    TfrmCRO920 screen;
    user.workIn(screen, [&] {
        EXPECT_EQ(user.rowCount(), 0);
        expectPlainScreen("CRO920-empty");
        user.press(Qt::Key_Return);
        EXPECT_TRUE(screen.isVisible());
        user.click("btnSelect");
    });
    EXPECT_EQ(screen.xRecID, 0);
    TfrmCRO921 linked;
    linked.edStockCode->setText("P1");
    linked.xReturnRecID = 7;
    linked.xReturnUnits = 7;
    user.workIn(linked, [&] { user.click("btnSelect"); });
    EXPECT_EQ(linked.xReturnRecID, 0);
    EXPECT_EQ(linked.xReturnUnits, 1);
    TfrmVEL012 picked;
    picked.edStockCode->setText("P1");
    user.workIn(picked, [&] {
        EXPECT_EQ(user.sees("dxSelect"), "Select Item");
        EXPECT_EQ(user.sees("dxExit"), "Exit");
        expectPlainScreen("VEL012-empty");
        user.click("dxSelect");
        EXPECT_TRUE(picked.isVisible()) << "there is nothing to select";
        user.click("dxExit");
    });
    EXPECT_EQ(picked.xReturnRecID, 0);
    EXPECT_EQ(picked.xReturnUnits, 1);
    EXPECT_EQ(desk.shown, QStringList());
}

TEST_F(ProductSelectionTest, listsThatCannotBeReadSaySo) {
    Desk::onSuite("DROP TABLE STKMaster");
    TfrmCRO920 products;
    TfrmCRO921 linked;
    TfrmVEL012 picked;
    const struct
    {
        QDialog& screen;
        const char* told;
        int raised;
    } cases[] = {
        {products, "920-001|SQL Error Reading STKMASTER", 0},
        {linked, "921-001|SQL Error on Table: STKMaster :-\rInvalid object name 'STKMaster'.", 0},
        {picked, "999999|SQL Error on Table: STKMaster :-\rInvalid object name 'STKMaster'.", 1},
    };
    for (const auto& [screen, told, thrown] : cases) {
        desk.shown.clear();
        user.workIn(screen, [&] { leave(); });
        EXPECT_EQ(desk.shown, QStringList(told));
        EXPECT_EQ(raised.size(), thrown) << told;
    }
}

// The quotation of an item: its header, its lines priced from the stock, and their arithmetic.
#include "data/DataModules.h"
#include "lookups/StockDesk.h"
#include "repairs/CRO104.h"
#include "repairs/CRO104A.h"
#include "support/DroppingServer.h"
#include "support/ScreenChecks.h"
#include "ui/AmountEdit.h"

#include <QComboBox>
#include <QLineEdit>

using velcro::test::Desk;

namespace {

const QString listTitle = QStringLiteral("Workshop Centre: Quotation");
const QString lineTitle = QStringLiteral("Workshop Centre Quotation: Maintain Lines");
const QString productsTitle = QStringLiteral("Stock Master: Product Selection");

class QuotationTest : public StockDesk
{
protected:
    QuotationTest() {
        setParameter("CO", 33, "1");
        setParameter("BRANCH", 6, "2");
        Desk::onSuite("DELETE FROM CRORepItmQuoteHdr");
        Desk::onSuite("DELETE FROM CRORepItmQuoteDet");
    }

    static void header(const QString& item, const QString& number, const QString& technician) {
        insert("CRORepItmQuoteHdr", {{"CRONo", "100299"},
                                     {"ItemNo", item},
                                     {"TranDate", "2026/03/05"},
                                     {"TechCode", technician},
                                     {"Status", "0"},
                                     {"DepositRequired", "100.5"},
                                     {"DepositPaid", "0"},
                                     {"OrderNo", number},
                                     {"Notes", "FIRST"}});
    }
    static void line(const QString& item, const QString& stock, const Values& values = {}) {
        Values row = {{"CRONo", "100299"},
                      {"ItemNo", item},
                      {"StockCode", stock},
                      {"LinkCode", stock},
                      {"Description1", "Of " + stock}};
        row.insert(values);
        insert("CRORepItmQuoteDet", row);
    }
    static void price(const QString& stock, const QString& code, const QString& excl,
                      const QString& incl) {
        insert("STKPrice", {{"StockCode", stock},
                            {"LinkCode", stock},
                            {"PriceCode", code},
                            {"Excl", excl},
                            {"Incl", incl}});
    }
    /// A drill with a price of 10.00 and 11.50 and a last cost of 7.00.
    static void drill() {
        product("DRILL", {{"Barcode", "600100"},
                          {"Description2", "Blue"},
                          {"QtyDecimal", "2"},
                          {"SellDecimal", "2"},
                          {"CostDecimal", "2"},
                          {"LastCostExcl", "7"},
                          {"LastCostIncl", "8.05"},
                          {"ListCostExcl", "7.1"},
                          {"ListCostIncl", "8.1"},
                          {"BuyCostExcl", "7.2"},
                          {"BuyCostIncl", "8.2"},
                          {"AvgCostExcl", "7.3"},
                          {"AvgCostIncl", "8.3"}});
        price("DRILL", "1", "9", "10.35");
        price("DRILL", "2", "10", "11.5");
    }
    static QString lineColumns(const QString& columns, const QString& where) {
        return Desk::suite("SELECT " + columns + " FROM CRORepItmQuoteDet WHERE " + where);
    }
    static QString headerColumn(const QString& column) {
        return Desk::suite("SELECT [" + column + "] FROM CRORepItmQuoteHdr WHERE [OrderNo] = 'Q1'");
    }

    void showList(const ScriptedUser::Step& steps) {
        TfrmCRO104 screen;
        screen.resize(1024, 768);
        screen.edCRONo->setText("100299");
        screen.edItemNo->setNumber("2");
        user.workIn(screen, steps);
    }
    void show(int xFunction, const QString& stock, const ScriptedUser::Step& steps) {
        TfrmCRO104A screen;
        screen.resize(1024, 768);
        screen.xFunction = xFunction;
        screen.xRecID = xFunction == 1
                            ? 0
                            : lineColumns("[RecID]", "[StockCode] = " + QuotedStr(stock)).toInt();
        user.workIn(screen, steps);
    }
    void scan(const QString& code) {
        user.typeInto("edStockCode", code);
        user.press(Qt::Key_Return);
    }
    void leave() {
        user.expectForm("System Prompt", [this] { user.press(Qt::Key_Y); });
        user.press(Qt::Key_Escape);
    }
    QStringList sees(const QStringList& controls) {
        QStringList texts;
        for (const auto& control : controls) {
            texts << user.sees(control);
        }
        return texts;
    }
    void expectPlainScreen(const QString& picture) {
        EXPECT_EQ(namelessControls(user.form()).join("\n").toStdString(), "");
        EXPECT_EQ(clippedControls(user.form()).join("\n").toStdString(), "");
        keepPicture(user.form(), picture);
    }
    QStringList faults() const { return desk.shown + raised; }

    velcro::test::DroppingServer server; // stands before the suite is connected again
};

const QStringList totals = {"edLineTotalExcl", "edLineTotalIncl", "edLineVAT", "edProfit", "edGP"};

} // namespace

TEST_F(QuotationTest, theHeaderIsTheFirstOfTheOrderAndIsSavedWhicheverWayTheScreenCloses) {
    header("1", "Q1", "T02");
    header("2", "Q2", "T03");
    const std::function<void()> ways[] = {
        [&] { user.press(Qt::Key_Escape); },
        [&] { user.click("btnCancel"); },
        [&] { user.form().close(); },
    };
    int round = 0;
    for (const auto& close : ways) {
        const QString note = "note " + QString::number(++round);
        showList([&] {
            EXPECT_EQ(user.sees("edItemNo"), "1") << "and not the item's own";
            EXPECT_EQ(user.sees("edOrderNo"), "Q1");
            EXPECT_TRUE(user.sees("cmbTechCode").startsWith("T02 - "));
            EXPECT_EQ(user.sees("edDepositRequired"), round == 1 ? "100.50" : "7.13");
            EXPECT_EQ(user.focus(), "grdList");
            user.typeInto("edTranDate", "2026/4/1");
            user.press(Qt::Key_Return);
            user.find<QWidget>("cmbTechCode").setFocus();
            user.press(Qt::Key_Home);
            user.typeInto("edNotes", note);
            user.typeInto("edDepositRequired", "7.125");
            user.typeInto("edDepositPaid", "3");
            close();
        });
        EXPECT_EQ(headerColumn("Notes"), note.toUpper());
        EXPECT_EQ(headerColumn("TranDate"), "2026/04/01");
        EXPECT_EQ(headerColumn("DepositRequired"), "7.13");
        EXPECT_EQ(headerColumn("DepositPaid"), "3");
        EXPECT_EQ(headerColumn("TechCode"), "T02") << "whoever was chosen";
        EXPECT_EQ(headerColumn("Status"), "0");
    }
    Desk::onSuite("UPDATE CRORepItmQuoteHdr SET [Notes] = 'OF ANOTHER SEAT'");
    showList([&] {
        Desk::onSuite("UPDATE CRORepItmQuoteHdr SET [Notes] = 'LATER'");
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(headerColumn("Notes"), "OF ANOTHER SEAT") << "written without any change";
    showList([&] {
        user.typeInto("edTranDate", "soon");
        user.press(Qt::Key_Escape);
        EXPECT_TRUE(user.form().isVisible()) << "what was typed is not lost";
        EXPECT_EQ(user.message(), "Order Date is not a date. Type it as yyyy/mm/dd.");
        user.typeInto("edTranDate", "2026/04/02");
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(headerColumn("TranDate"), "2026/04/02");
    EXPECT_EQ(faults(), QStringList());
}

TEST_F(QuotationTest, theListHasTheLinesOfAllItemsOfTheOrder) {
    drill();
    header("1", "Q1", "");
    line("1", "DRILL", {{"Quantity", "3"}, {"PriceExcl", "10"}, {"LineTotalExcl", "30"}});
    line("2", "SAW");
    line("1", "OTHER", {{"CRONo", "100300"}});
    showList([&] {
        EXPECT_EQ(user.form().windowTitle(), listTitle);
        EXPECT_EQ(user.column("Description #1"), QStringList({"Of DRILL", "Of SAW"}));
        EXPECT_EQ(user.column("Price Ex."), QStringList({"10.00", "0.00"}));
        EXPECT_EQ(user.column("Item Code"), QStringList({"", ""}));
        expectPlainScreen("CRO104");
        user.press(Qt::Key_Down);
        user.expectForm(lineTitle, [&] {
            EXPECT_EQ(user.sees("edStockCode"), "SAW");
            user.typeInto("edQuantity", "2");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.current("Description #1"), "Of SAW") << "found again";
        EXPECT_EQ(user.current("Quantity"), "2");
        user.expectForm(lineTitle, [&] {
            scan("600100");
            user.typeInto("edQuantity", "1");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Insert);
        EXPECT_EQ(user.rowCount(), 2) << "a new line knows no order, and is not listed";
        user.expectForm(lineTitle, [&] {
            EXPECT_EQ(user.sees("btnSave"), "Delete Record");
            EXPECT_EQ(user.message(), "Press [F10] to Delete");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Delete);
        EXPECT_EQ(user.rowCount(), 1);
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(lineColumns("[CRONo] + '|' + [ItemNo]", "[CRONo] = ''"), "|0");
    EXPECT_EQ(faults(), QStringList());
}

TEST_F(QuotationTest, totalsComeFromWhatTheEditsShow) {
    drill();
    const struct
    {
        const char* why;
        QStringList typed; // quantity, price excl, price incl
        QStringList expected;
    } cases[] = {
        {"the plain case", {"3", "10", "11.5"}, {"30.00", "34.50", "4.50000", "9.00", "30.00"}},
        {"half a piece", {"0.5", "10", "11.5"}, {"5.00", "5.75", "0.75000", "1.50", "30.00"}},
        {"a half cent goes up",
         {"1", "1.005", "2.675"},
         {"1.01", "2.68", "1.67000", "-5.99", "-593.07"}},
        {"a return", {"-2", "10", "11.5"}, {"-20.00", "-23.00", "-3.00000", "-6.00", "30.00"}},
        {"below cost", {"1", "6", "6.9"}, {"6.00", "6.90", "0.90000", "-1.00", "-16.67"}},
        {"digits that no binary number has",
         {"3", "0.1", "0.7"},
         {"0.30", "2.10", "1.80000", "-20.70", "-6900.00"}},
        {"huge",
         {"999999", "999999", "999999"},
         {"999998000001.00", "999998000001.00", "0.00000", "999991000008.00", "100.00"}},
    };
    for (const auto& [why, typed, expected] : cases) {
        show(1, {}, [&, typed = typed, expected = expected, why = why] {
            scan("600100");
            const char* const edits[] = {"edPriceExcl", "edPriceIncl", "edQuantity"};
            for (int i = 0; i < 3; ++i) {
                user.typeInto(edits[i], typed[(i + 1) % 3]);
            }
            user.press(Qt::Key_Return);
            EXPECT_EQ(sees(totals), expected) << why;
            leave();
        });
    }
    show(1, {}, [&] {
        scan("600100");
        user.typeInto("edQuantity", "3");
        user.press(Qt::Key_Return);
        const auto before = sees(totals);
        user.typeInto("edQuantity", "0");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), "Cannot be capture zero (0) quantity item");
        EXPECT_EQ(user.focus(), "edQuantity");
        EXPECT_EQ(sees(totals), before);
        user.typeInto("edPriceExcl", "0");
        user.typeInto("edQuantity", "5");
        user.press(Qt::Key_Return);
        EXPECT_EQ(sees(totals), QStringList({"30.00", "57.50", "27.50000", "-5.00", "-16.67"}))
            << "a price of 0 keeps its total";
        user.typeInto("edLineTotalExcl", "50");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(lineColumns("[LineTotalExcl]", "1 = 1"), "50");
    EXPECT_EQ(lineColumns("[LineVAT]", "1 = 1"), "7.5");
    EXPECT_EQ(faults(), QStringList());
}

TEST_F(QuotationTest, costsAreChosenByTheCompanyAndDecimalsByTheProduct) {
    drill();
    Desk::onSuite("UPDATE STKMaster SET [QtyDecimal] = 0, [SellDecimal] = 4, [CostDecimal] = 3");
    const std::pair<const char*, QStringList> costs[] = {
        {"S", {"7.100", "8.100"}}, {"B", {"7.200", "8.200"}}, {"A", {"7.300", "8.300"}},
        {"L", {"7.000", "8.050"}}, {"", {"7.000", "8.050"}},  {"s", {"7.000", "8.050"}}};
    for (const auto& [kind, expected] : costs) {
        gParameters.clear();
        setParameter("CO", 3, kind);
        setParameter("BRANCH", 6, "2");
        show(1, {}, [&, expected = expected, kind = kind] {
            scan("DRILL");
            EXPECT_EQ(sees({"edCostExcl", "edCostIncl"}), expected) << kind;
            EXPECT_EQ(sees({"edQuantity", "edPriceExcl", "edPriceIncl"}),
                      QStringList({"0", "10.0000", "11.5000"}));
            leave();
        });
        // The same after a choice from the list, which brings a quantity of 1.
        user.expectForm(productsTitle, [&] { user.press(Qt::Key_Return); });
        show(1, {}, [&, expected = expected, kind = kind] {
            scan("?");
            EXPECT_EQ(sees({"edCostExcl", "edCostIncl"}), expected) << kind;
            EXPECT_EQ(user.sees("edQuantity"), "1");
            leave();
        });
    }
    EXPECT_EQ(faults(), QStringList());
}

TEST_F(QuotationTest, aProductIsScannedBrowsedOrRefused) {
    drill();
    product("IDLE", {{"Status", "n"}});
    product("FREE");
    show(1, {}, [&] {
        expectPlainScreen("CRO104A-new");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), "Enter a Valid Stock Code");
        EXPECT_EQ(user.focus(), "edStockCode");
        for (const char* blank : {"", "  "}) {
            scan(blank);
            EXPECT_EQ(user.message(), "Invalid Stock Code Entered");
            EXPECT_EQ(user.focus(), "edStockCode");
        }
        scan("idle");
        EXPECT_EQ(user.message(), "The Item Status is NOT ACTIVE : Status = n");
        EXPECT_EQ(user.sees("edStockCode"), "");
        EXPECT_EQ(user.focus(), "edStockCode");

        user.expectForm(productsTitle, [&] {
            EXPECT_EQ(user.rowCount(), 0) << "narrowed to what was typed";
            user.press(Qt::Key_Escape);
        });
        scan("O'nothing");
        EXPECT_EQ(user.focus(), "edStockCode");
        EXPECT_EQ(user.sees("edStockCode"), "");

        user.expectForm(productsTitle, [&] {
            EXPECT_EQ(user.column("Stock Code"), QStringList({"DRILL"}));
            user.press(Qt::Key_Return);
        });
        scan("rill");
        EXPECT_EQ(sees({"edStockCode", "edDescription1", "edDescription2", "edQuantity",
                        "edPriceExcl", "edPriceIncl"}),
                  QStringList({"DRILL", "Of DRILL", "Blue", "1.00", "10.00", "11.50"}))
            << "the price is the counter's, not the list's";
        EXPECT_TRUE(user.find<QLineEdit>("edStockCode").isReadOnly());
        EXPECT_EQ(user.focus(), "edQuantity");
        leave();
    });
    show(1, {}, [&] {
        user.expectForm(productsTitle, [&] {
            user.press(Qt::Key_Down);
            user.press(Qt::Key_Return);
        });
        user.click("btnStockCode");
        EXPECT_EQ(user.sees("edStockCode"), "FREE");
        user.press(Qt::Key_Tab);
        EXPECT_EQ(sees({"edDescription1", "edPriceExcl"}), QStringList({"Of FREE", "0"}))
            << "without a price and without a message";
        EXPECT_EQ(user.message(), "");
        leave();
    });
    EXPECT_EQ(faults(), QStringList());
}

TEST_F(QuotationTest, aLineIsWrittenWithEveryColumnChangedAndNotTwice) {
    drill();
    gVatRates.push_back(
        std::make_unique<TVatRate>(TVatRate{"1", "Standard", 15, "2000/01/01", ""}));
    const QString columns =
        "[Branch] + '|' + [CRONo] + '|' + [ItemNo] + '|' + [StockCode] + '|' + [LinkCode] + '|' + "
        "[Description1] + '|' + [VATCode] + '|' + [Notes]";
    const QString numbers =
        "CONCAT([Quantity], '|', [PriceExcl], '|', [PriceIncl], '|', [LineVAT], '|', "
        "[LineTotalExcl], '|', [LineTotalIncl], '|', [VATRate], '|', [CostExcl], '|', [CostIncl], "
        "'|', [TotalCostExcl], '|', [TotalCostIncl], '|', [Profit])";
    show(1, {}, [&] {
        scan("600100");
        user.typeInto("edQuantity", "3");
        user.typeInto("edNotes", "it's \"urgent\" %_[x]");
        expectPlainScreen("CRO104A-filled");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(lineColumns(columns, "1 = 1"), "100||0|DRILL|DRILL|Of DRILL|1|IT'S \"URGENT\" %_[X]");
    EXPECT_EQ(lineColumns(numbers, "1 = 1"), "3|10|11.5|4.5|30|34.5|15|7|8.05|21|24.15|9");
    show(1, {}, [&] {
        scan("DRILL");
        user.typeInto("edQuantity", "1");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), "Stock Item Already Exists. Update the Existing Values");
        leave();
    });
    show(2, "DRILL", [&] {
        EXPECT_TRUE(user.find<QLineEdit>("edStockCode").isReadOnly());
        EXPECT_EQ(user.focus(), "edQuantity");
        EXPECT_EQ(sees(totals), QStringList({"30.00", "34.50", "4.50000", "9.00", "30.00"}));
        user.typeInto("edQuantity", "4");
        user.typeInto("edPriceExcl", "20");
        user.typeInto("edPriceIncl", "23");
        user.typeInto("edNotes", "CHANGED");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(lineColumns(columns, "1 = 1"), "100||0|DRILL|DRILL|Of DRILL|1|CHANGED");
    EXPECT_EQ(lineColumns(numbers, "1 = 1"), "4|20|23|12|80|92|15|7|8.05|28|32.2|52");
    // Its product is gone: the cents stay.
    Desk::onSuite("DELETE FROM STKMaster");
    show(2, "DRILL", [&] {
        user.typeInto("edPriceExcl", "20.05");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(lineColumns("[PriceExcl]", "1 = 1"), "20.05");
    gVatRates.clear();
    EXPECT_EQ(faults(), QStringList());
}

TEST_F(QuotationTest, aProductThatGoesBetweenChoiceAndSaveIsStoredAndOneThatGoesBeforeIsRefused) {
    drill();
    show(1, {}, [&] {
        user.expectForm(productsTitle, [&] {
            Desk::onSuite("DELETE FROM STKMaster");
            user.press(Qt::Key_Return);
        });
        scan("?");
        EXPECT_EQ(user.message(), "Invalid Stock Code Entered");
        EXPECT_EQ(user.sees("edStockCode"), "");
        drill();
        scan("DRILL");
        Desk::onSuite("DELETE FROM STKMaster");
        user.typeInto("edQuantity", "1");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(lineColumns("[StockCode]", "1 = 1"), "DRILL");
    const QString before = lineColumns("COUNT(*)", "1 = 1");
    show(2, "DRILL", [&] {
        Desk::onSuite("DELETE FROM CRORepItmQuoteDet");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(lineColumns("COUNT(*)", "1 = 1"), "0")
        << "a line that another user removed stays away";
    EXPECT_EQ(faults(), QStringList());
}

TEST_F(QuotationTest, aListThatIsClosedWhileItsLineIsOpenKeepsHeaderAndLine) {
    drill();
    header("1", "Q1", "");
    line("1", "DRILL", {{"Quantity", "3"}, {"PriceExcl", "10"}});
    TfrmCRO104 screen;
    screen.edCRONo->setText("100299");
    user.workIn(screen, [&] {
        user.typeInto("edNotes", "later");
        user.find<QWidget>("grdList").setFocus();
        user.expectForm(lineTitle, [&] {
            screen.close();
            EXPECT_EQ(headerColumn("Notes"), "LATER");
            user.typeInto("edQuantity", "5");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Return);
        EXPECT_FALSE(screen.isVisible());
    });
    EXPECT_EQ(lineColumns("[LineTotalExcl]", "[StockCode] = 'DRILL'"), "50");
    EXPECT_EQ(faults(), QStringList());
}

// The session's own formats have a point, whatever the seat's language writes.
TEST_F(QuotationTest, aSeatWithADecimalCommaCalculatesAndSendsPoints) {
    const auto usual = qScopeGuard([before = QLocale()] { QLocale::setDefault(before); });
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    drill();
    header("1", "Q1", "");
    show(1, {}, [&] {
        scan("600100");
        user.typeInto("edPriceExcl", "1234.56");
        user.pasteInto("edPriceIncl", "1419,74");
        EXPECT_EQ(user.sees("edPriceIncl"), "") << "a comma is refused";
        user.typeInto("edPriceIncl", "1419.74");
        user.typeInto("edQuantity", "2.5");
        user.press(Qt::Key_Return);
        EXPECT_EQ(sees(totals),
                  QStringList({"3086.40", "3549.35", "462.95000", "3068.90", "99.43"}));
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(lineColumns("CONCAT([Quantity], '|', [PriceExcl], '|', [LineTotalExcl], '|', "
                          "[LineVAT])",
                          "1 = 1"),
              "2.5|1234.56|3086.4|462.95");
    showList([&] {
        user.typeInto("edDepositPaid", "0.5");
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(headerColumn("DepositPaid"), "0.5");
    EXPECT_EQ(faults(), QStringList());
}

TEST_F(QuotationTest, whatCannotBeReadIsTold) {
    drill();
    line("1", "DRILL");
    gStkBranch = "X1";
    show(2, "DRILL", [&] {
        EXPECT_EQ(desk.shown,
                  QStringList("104A-001|SQL Error on Table: CRORepItmQuoteDet :-\rInvalid column "
                              "name 'X1'."));
        user.press(Qt::Key_F10);
        user.press(Qt::Key_Escape);
    });
    gStkBranch = "100";
    desk.shown.clear();
    Desk::onSuite("DROP TABLE CRORepItmQuoteHdr");
    Desk::onSuite("DROP TABLE CRORepItmQuoteDet");
    showList([&] {
        EXPECT_EQ(desk.shown,
                  QStringList({"104-001|SQL Error on Table: CRORepItmQuoteHdr :-\rInvalid object "
                               "name 'CRORepItmQuoteHdr'.",
                               "104-002|SQL Error on Table: CRORepItmQuoteDet :-\rInvalid object "
                               "name 'CRORepItmQuoteDet'."}));
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(desk.shown.size(), 3) << "and the header could not be written";
    EXPECT_EQ(raised, QStringList());
}

// Calls of F10 in add mode: duplicate check, begin, insert, commit.
TEST_F(QuotationTest, aServerLostAtAnyStatementLeavesAWholeLineOrNone) {
    drill();
    gData->ConnectDB_VEL(gDBConnector, gCmnHost, "VELSUITE", {}, {}, "N");
    for (int call = 1; call <= 4; ++call) {
        Desk::onSuite("DELETE FROM CRORepItmQuoteDet");
        const auto told = faults().size();
        bool stayed = false;
        show(1, {}, [&] {
            scan("600100");
            user.typeInto("edQuantity", "2");
            server.dropAt(call);
            user.press(Qt::Key_F10);
            stayed = user.form().isVisible();
            if (stayed) {
                EXPECT_EQ(user.sees("edQuantity"), "2");
                user.press(Qt::Key_F10);
            }
        });
        EXPECT_TRUE(server.dropped()) << call;
        server.forget();
        EXPECT_EQ(faults().size(), told + 1) << call << ": told once";
        EXPECT_EQ(lineColumns("COUNT(*)", "1 = 1"), stayed ? "1" : "0") << call;
    }
    header("1", "Q1", "");
    const auto told = faults().size();
    showList([&] {
        server.dropAt(1);
        user.press(Qt::Key_Escape);
        EXPECT_FALSE(user.form().isVisible()) << "it closes all the same";
    });
    EXPECT_EQ(faults().size(), told + 1);
}

// Calls of Enter on a scanned barcode: the search, the product, its price.
TEST_F(QuotationTest, aServerLostWhileAProductIsLookedUpIsToldAndTheScanCanBeRepeated) {
    drill();
    gData->ConnectDB_VEL(gDBConnector, gCmnHost, "VELSUITE", {}, {}, "N");
    const char* const told[] = {"Error Reading STKMaster : \r\r", "104A-002|", "200011|"};
    for (int call = 1; call <= 3; ++call) {
        desk.shown.clear();
        show(1, {}, [&] {
            if (call == 1) { // counts as nothing found: the products are offered
                user.expectForm(productsTitle, [&] { user.press(Qt::Key_Escape); });
            }
            server.dropAt(call);
            scan("600100");
            EXPECT_TRUE(server.dropped()) << call;
            server.forget();
            EXPECT_EQ(desk.shown.size(), 1) << call;
            EXPECT_TRUE(desk.shown.value(0).startsWith(told[call - 1]))
                << desk.shown.join('\n').toStdString();
            if (call < 3) {
                EXPECT_EQ(user.focus(), "edStockCode");
                scan("600100");
            }
            EXPECT_EQ(user.sees("edDescription1"), "Of DRILL") << call;
            EXPECT_EQ(user.sees("edPriceExcl"), call < 3 ? "10.00" : "0.00") << call;
            leave();
        });
    }
    EXPECT_EQ(raised, QStringList());
}

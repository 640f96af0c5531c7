// How the reads of an estimate reach their rows: none walks the products of a company or a branch,
// but the list of products itself.
#include "data/DataModules.h"
#include "lookups/StockDesk.h"
#include "repairs/CRO104.h"
#include "support/StatementPlans.h"
#include "ui/AmountEdit.h"

#include <QLineEdit>
#include <QRegularExpression>

using velcro::test::Desk;

namespace {

const QString lineTitle = QStringLiteral("Workshop Centre Quotation: Maintain Lines");
const QString productsTitle = QStringLiteral("Stock Master: Product Selection");
const QString linkedTitle = QStringLiteral("STOCK MASTER : Select a LINKED Item");

class EstimateReadsTest : public StockDesk
{
protected:
    EstimateReadsTest() {
        Desk::onSuite("DELETE FROM CRORepItmQuoteDet");
        insert("CRORepItmQuoteDet", {{"CRONo", "100299"},
                                     {"ItemNo", "1"},
                                     {"StockCode", "A1"},
                                     {"LinkCode", "A1"},
                                     {"Description1", "Of A1"},
                                     {"Quantity", "1"}});
        product("A1", {{"Barcode", "600100"}});
        product("A2");
        product("P1", {{"StockType", "P"}, {"LinkCode", ""}});
        product("P1", {{"StockType", "C"}, {"LinkCode", "P1-6"}});
        gData->ConnectDB_VEL(gDBConnector, gCmnHost, "VELSUITE", {}, {}, "N");
    }
    void addLine(
        const QString& code, const ScriptedUser::Step& expectSelection = [] {}) {
        user.expectForm(lineTitle, [this, code, expectSelection] {
            expectSelection();
            user.typeInto("edStockCode", code);
            user.press(Qt::Key_Return);
            user.typeInto("edQuantity", "1");
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Insert);
    }
    void searchProducts() {
        user.press(Qt::Key_S, Qt::AltModifier);
        user.type("A2");
        user.press(Qt::Key_Return);
        user.press(Qt::Key_Return);
    }

    velcro::test::StatementPlans plans; // stands before the suite is connected again
};

bool has(const std::string& read, const char* pattern) {
    return QString::fromStdString(read).contains(QRegularExpression(QString::fromLatin1(pattern)));
}

bool isOfTheEstimate(const std::string& read) {
    return has(read, "\\b(STK|CRORep)");
}

// Ordered by the description it has to walk: it shows the first thousand of them.
bool isTheProductList(const std::string& read) {
    return has(read, "ORDER BY \"T0\"\\.\"Description1\"");
}

/// Meets every row, or all of a company or a branch.
bool isWide(const std::string& read) {
    return has(read, "^SCAN|\\(CO=\\?( AND Branch=\\?)?\\)");
}

} // namespace

TEST_F(EstimateReadsTest, noReadWalksTheProducts) {
    TfrmCRO104 screen;
    screen.edCRONo->setText("100299");
    plans.begin();
    user.workIn(screen, [&] {
        addLine("600100");
        addLine("unknown", [&] { user.expectForm(productsTitle, [&] { searchProducts(); }); });
        addLine("P1", [&] { user.expectForm(linkedTitle, [&] { user.press(Qt::Key_Return); }); });
        for (const auto key : {Qt::Key_Return, Qt::Key_Delete}) {
            user.expectForm(lineTitle, [&] { user.press(Qt::Key_F10); });
            user.press(key);
        }
        user.press(Qt::Key_Escape);
    });
    const auto reads = plans.reads();
    EXPECT_GE(std::ranges::count_if(reads, isOfTheEstimate), 20) << "the road was listened to";
    for (const auto& read : reads) {
        if (isOfTheEstimate(read) && !isTheProductList(read)) {
            EXPECT_FALSE(isWide(read)) << read;
        }
    }
    EXPECT_EQ(desk.shown + raised, QStringList());
}

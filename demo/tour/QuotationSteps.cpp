// The estimate of an item: lines by barcode, by choice and of a linked pack, a change, a removal, and
// the header that is saved when the screen closes.
#include "Steps.h"

#include "SuiteRows.h"

namespace {

const QString registerTitle = QStringLiteral("Workshop Centre: Repair Orders Management");
const QString itemsTitle = QStringLiteral("Workshop Centre: Repair Order Item Management");
const QString quotationTitle = QStringLiteral("Workshop Centre: Quotation");
const QString lineTitle = QStringLiteral("Workshop Centre Quotation: Maintain Lines");
const QString productsTitle = QStringLiteral("Stock Master: Product Selection");
const QString packsTitle = QStringLiteral("STOCK MASTER : Select a LINKED Item");

using Values = QMap<QString, QString>;

Values newestLine() {
    return suiteRow("SELECT TOP(1) * FROM CRORepItmQuoteDet ORDER BY [RecID] DESC");
}

/// The newest order with a line on its first item.
QString orderWithLines() {
    return suiteRow("SELECT TOP(1) [CRONo] FROM CRORepItmQuoteDet WHERE [CO] = '01' AND"
                    " [Branch] = '100' AND [ItemNo] = '1' AND [CRONo] < '100299'"
                    " ORDER BY [CRONo] DESC")["CRONo"];
}

/// Insert, what leads to the product, a quantity, F10.
void addLine(
    Tour& tour, const QString& name, const QString& code, const QString& quantity,
    const Tour::Step& expectSelection = [] {}) {
    tour.expect(lineTitle, QStringLiteral("line-new"), [&] {
        expectSelection();
        tour.type(code);
        tour.press(Qt::Key_Return);
        tour.type(quantity);
        tour.press(Qt::Key_Return);
        tour.picture(name);
        tour.press(Qt::Key_F10);
    });
    tour.press(Qt::Key_Insert);
}

void checkLine(Tour& tour, const QString& stock, const QString& link, double quantity) {
    const auto row = newestLine();
    const double price = row["PriceExcl"].toDouble();
    tour.check(row["StockCode"] == stock && row["LinkCode"] == link &&
                   row["Quantity"].toDouble() == quantity,
               QStringLiteral("the line has the product %1 and its quantity").arg(link));
    tour.check(price > 0 && qAbs(row["LineTotalExcl"].toDouble() - price * quantity) < 0.005,
               QStringLiteral("the line is priced from the stock"));
    tour.check(row["CRONo"].isEmpty() && row["ItemNo"] == "0",
               QStringLiteral("the line is stored without an order"));
}

void estimate(Tour& tour) {
    tour.say(QStringLiteral("Insert, a scanned barcode, a quantity, F10."));
    const auto scanned = suiteRow("SELECT TOP(1) * FROM STKAltBarcodes WHERE [CO] = '01' AND"
                                  " [Branch] = '100' AND [LinkCode] <> '' ORDER BY [RecID]");
    addLine(tour, QStringLiteral("line-by-barcode"), scanned["Barcode"], QStringLiteral("2"));
    checkLine(tour, scanned["StockCode"], scanned["LinkCode"], 2);

    tour.say(QStringLiteral("\"?\" opens the products."));
    QString chosen;
    const auto choose = [&] {
        tour.press(Qt::Key_S, Qt::AltModifier);
        tour.type(QStringLiteral("Drive Belt"));
        tour.press(Qt::Key_Return);
        tour.picture(QStringLiteral("products-found"));
        chosen = tour.current("Stock Code");
        tour.press(Qt::Key_Return);
    };
    addLine(tour, QStringLiteral("line-by-choice"), QStringLiteral("?"), QStringLiteral("3"),
            [&] { tour.expect(productsTitle, QStringLiteral("products"), choose); });
    checkLine(tour, chosen, chosen, 3);

    tour.say(QStringLiteral("Of a parent, one of its packs is picked."));
    const QString parent =
        suiteRow("SELECT TOP(1) [StockCode] FROM STKMaster WHERE [CO] = '01' AND"
                 " [Branch] = '100' AND [StockType] = 'P' ORDER BY [RecID]")["StockCode"];
    const auto pick = [&tour] {
        tour.press(Qt::Key_Down);
        tour.press(Qt::Key_Return);
    };
    addLine(tour, QStringLiteral("line-of-a-pack"), parent, QStringLiteral("1"),
            [&] { tour.expect(packsTitle, QStringLiteral("packs"), pick); });
    checkLine(tour, parent, parent + "-6", 1);
}

void changeAndRemove(Tour& tour) {
    tour.say(QStringLiteral("Enter changes a line of the order, Delete and F10 remove it."));
    const int before = tour.rowCount();
    const QString product = tour.current("Description #1");
    tour.expect(lineTitle, QStringLiteral("line-change"), [&] {
        tour.type(QStringLiteral("7"));
        tour.press(Qt::Key_F10);
    });
    tour.press(Qt::Key_Return);
    tour.check(tour.current("Description #1") == product && tour.current("Quantity") == "7",
               QStringLiteral("the line has its new quantity"));
    tour.picture(QStringLiteral("quotation-changed"));
    tour.expect(lineTitle, QStringLiteral("line-delete"), [&tour] { tour.press(Qt::Key_F10); });
    tour.press(Qt::Key_Delete);
    tour.check(tour.rowCount() == before - 1, QStringLiteral("the line is gone"));
}

void work(Tour& tour) {
    tour.check(tour.rowCount() > 0, QStringLiteral("the order has lines"));
    const QString number = tour.sees(QStringLiteral("edOrderNo"));
    estimate(tour);
    changeAndRemove(tour);
    tour.tabTo(QStringLiteral("edNotes"));
    tour.type(QStringLiteral("CALL BEFORE ORDERING"));
    tour.picture(QStringLiteral("quotation-noted"));
    tour.press(Qt::Key_Escape);
    tour.check(suiteRow("SELECT [Notes] FROM CRORepItmQuoteHdr WHERE [CO] = '01' AND [Branch] ="
                        " '100' AND [OrderNo] = '" +
                        number + "'")["Notes"] == "CALL BEFORE ORDERING",
               QStringLiteral("the header was saved as the screen closed"));
}

} // namespace

void addQuotation(Tour& tour) {
    tour.then(QStringLiteral("\"Item Estimate\" opens the quotation."), [&tour] {
        const QString order = orderWithLines();
        tour.expect(registerTitle, QStringLiteral("register-for-estimate"), [&tour, order] {
            while (tour.current("Order #No") != order) {
                tour.press(Qt::Key_Down);
            }
            tour.expect(itemsTitle, QStringLiteral("items-for-estimate"), [&tour] {
                tour.expect(quotationTitle, QStringLiteral("quotation"), [&tour] { work(tour); });
                tour.click(QStringLiteral("btnQuotation"));
                tour.press(Qt::Key_Escape);
            });
            tour.press(Qt::Key_Return);
            tour.press(Qt::Key_Escape);
        });
        tour.press(Qt::Key_F2);
    });
}

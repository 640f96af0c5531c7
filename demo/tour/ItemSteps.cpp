// The items of the order that was booked in: one by keyboard alone, its serial number scanned, one by
// mouse alone, a change of what is ticked, and an item that is deleted.
#include "Steps.h"

#include "SuiteRows.h"

#include "ui/ChecklistGrid.h"

#include <QTabBar>
#include <QTabWidget>
#include <QTest>

using velcro::ui::ChecklistGrid;

namespace {

const QString registerTitle = QStringLiteral("Workshop Centre: Repair Orders Management");
const QString itemTitle = QStringLiteral("Workshop Centre: Repair Order Item Management");
const QString serialsTitle = QStringLiteral("Serial Tracking: Serial Number Selection");
const QString order = QStringLiteral("100501");
const QString serial = QStringLiteral("SN100100002");

QString below(const char* table, const QString& itemNo) {
    return QStringLiteral(" FROM %1 WHERE [CO] = '01' AND [Branch] = '100' AND [CRONo] = '%2' AND"
                          " [ItemNo] = '%3'")
        .arg(QLatin1String(table), order, itemNo);
}

void checkRows(Tour& tour, const QString& itemNo, int intakes, int faults, int audits) {
    const struct
    {
        const char* table;
        int rows;
    } expected[] = {{"CRORepItmIntake", intakes},
                    {"CRORepItmFaults", faults},
                    {"CRORepItmAudit", audits},
                    {"CRORepItmQuoteHdr", 1}};
    for (const auto& [table, rows] : expected) {
        const int found = suiteNumber("SELECT COUNT(*)" + below(table, itemNo));
        tour.check(found == rows, QStringLiteral("item %1 has %2 rows in %3 and not %4")
                                      .arg(itemNo)
                                      .arg(rows)
                                      .arg(QLatin1String(table))
                                      .arg(found));
    }
}

QString tabTexts(Tour& tour) {
    const auto& tabs = *tour.find<QTabWidget>(QStringLiteral("MainPager")).tabBar();
    QStringList texts;
    for (int i = 0; i < tabs.count(); ++i) {
        texts << tabs.tabText(i);
    }
    return texts.join(QStringLiteral(", "));
}

/// Down to each of the codes in turn, and Space.
void tickByKeys(Tour& tour, const QString& heading, const QStringList& codes) {
    tour.press(Qt::Key_Home);
    for (const QString& code : codes) {
        for (int i = 0; i < tour.rowCount() && tour.current(heading) != code; ++i) {
            tour.press(Qt::Key_Down);
        }
        tour.press(Qt::Key_Space);
    }
}

void fillByKeys(Tour& tour) {
    tour.say(QStringLiteral("A scan is looked up by its Enter and leads on to the model."));
    tour.type(serial);
    tour.press(Qt::Key_Return);
    tour.check(tour.focus() == "edModelNo" && !tour.sees("edDescription1").isEmpty(),
               QStringLiteral("the scanned article is there and the model is next"));
    tour.type(QStringLiteral("OL-108"));
    tour.press(Qt::Key_Return);
    tour.press(Qt::Key_Space);
    tour.press(Qt::Key_Return);
    tour.type(QStringLiteral("Hums since the thunderstorm"));
    tour.picture(QStringLiteral("item-filled"));
    tour.say(QStringLiteral("Ctrl+Tab turns the page, Space ticks, typing on a note changes it."));
    tour.press(Qt::Key_Tab, Qt::ControlModifier);
    tickByKeys(tour, QStringLiteral("Intake Code"),
               {QStringLiteral("BOX"), QStringLiteral("DENT"), QStringLiteral("REMOTE")});
    for (int i = 0; i < 3; ++i) {
        tour.press(Qt::Key_Right);
    }
    tour.type(QStringLiteral("Lid of the batteries missing"));
    tour.press(Qt::Key_Return);
    tour.picture(QStringLiteral("item-intakes"));
    tour.press(Qt::Key_Tab, Qt::ControlModifier);
    tickByKeys(tour, QStringLiteral("Fault Code"),
               {QStringLiteral("NOISE"), QStringLiteral("SOUND")});
    tour.picture(QStringLiteral("item-faults"));
    tour.check(tabTexts(tour) == "Item Information, Intakes (3), Faults (2)",
               QStringLiteral("the tabs count the ticks"));
}

void bookByKeys(Tour& tour) {
    tour.say(QStringLiteral("Insert books an article in; F10 without a serial number is refused."));
    tour.expect(itemTitle, QStringLiteral("item-new"), [&tour] {
        tour.press(Qt::Key_F10);
        tour.check(tour.focus() == "edSerialNo", QStringLiteral("a serial number is asked for"));
        fillByKeys(tour);
        tour.press(Qt::Key_F10);
    });
    tour.press(Qt::Key_Insert);
    tour.check(tour.column("Serial Number") == QStringList(serial),
               QStringLiteral("the item stands in the list"));
    tour.picture(QStringLiteral("items-booked"));
    checkRows(tour, QStringLiteral("1"), 3, 2, 1);
    const auto row = suiteRow("SELECT *" + below("CRORepItems", QStringLiteral("1")));
    tour.check(row["ModelNo"] == "OL-108" && row["InWarranty"] == "Y" &&
                   row["Notes"] == "Hums since the thunderstorm",
               QStringLiteral("the item is in the database as it was typed"));
    tour.check(suiteRow("SELECT [Notes]" + below("CRORepItmIntake", QStringLiteral("1")) +
                        " AND [IntakeCode] = 'REMOTE'")["Notes"] == "Lid of the batteries missing",
               QStringLiteral("the note of the intake is in the database"));
}

void change(Tour& tour) {
    tour.say(QStringLiteral("Enter opens the item again; ticks are taken away and added."));
    tour.expect(itemTitle, QStringLiteral("item-change"), [&tour] {
        tour.press(Qt::Key_Tab, Qt::ControlModifier);
        tickByKeys(tour, QStringLiteral("Intake Code"),
                   {QStringLiteral("DENT"), QStringLiteral("MANUAL"), QStringLiteral("SCRATCH")});
        tour.press(Qt::Key_Tab, Qt::ControlModifier);
        tickByKeys(tour, QStringLiteral("Fault Code"), {QStringLiteral("NOISE")});
        tour.check(tabTexts(tour) == "Item Information, Intakes (4), Faults (1)",
                   QStringLiteral("the tabs count the ticks again"));
        tour.picture(QStringLiteral("item-changed"));
        tour.press(Qt::Key_F10);
    });
    tour.press(Qt::Key_Return);
    checkRows(tour, QStringLiteral("1"), 4, 1, 2);
}

void tap(QWidget& on, const QPoint& place) {
    QTest::mouseClick(&on, Qt::LeftButton, {}, place);
    QApplication::processEvents();
}

/// Turns to the page and taps into the ticks of its first rows.
void tickByMouse(Tour& tour, int page, const QString& list, int rows) {
    auto& tabs = *tour.find<QTabWidget>(QStringLiteral("MainPager")).tabBar();
    tap(tabs, tabs.tabRect(page).center());
    auto& grid = tour.find<ChecklistGrid>(list);
    for (int row = 0; row < rows; ++row) {
        tap(*grid.viewport(), grid.visualRect(grid.model()->index(row, 0)).center());
    }
}

void bookByMouse(Tour& tour) {
    tour.say(QStringLiteral("Another article by mouse alone, letters from the screen's keyboard."));
    tour.expect(itemTitle, QStringLiteral("item-by-mouse"), [&tour] {
        tour.expect(serialsTitle, QStringLiteral("serials"), [&tour] {
            tour.click(QStringLiteral("btnNext"));
            tour.click(QStringLiteral("btnSelect"));
        });
        tour.click(QStringLiteral("btnSerialNo"));
        tour.click(QStringLiteral("edModelNo"));
        tour.type(QStringLiteral("AS SEEN"));
        tickByMouse(tour, 1, QStringLiteral("grdIntakes"), 2);
        tickByMouse(tour, 2, QStringLiteral("grdFaults"), 1);
        tour.click(QStringLiteral("btnSave"));
    });
    tour.click(QStringLiteral("btnAdd"));
    tour.check(tour.rowCount() == 2, QStringLiteral("both items stand in the list"));
    tour.picture(QStringLiteral("items-two"));
    checkRows(tour, QStringLiteral("2"), 2, 1, 1);
}

void remove(Tour& tour) {
    tour.say(QStringLiteral("Delete and F10 take the second item away again."));
    tour.press(Qt::Key_End);
    tour.expect(itemTitle, QStringLiteral("item-delete"), [&tour] { tour.press(Qt::Key_F10); });
    tour.press(Qt::Key_Delete);
    tour.check(tour.column("Item #No") == QStringList(QStringLiteral("1")),
               QStringLiteral("the first item is left"));
    tour.check(
        suiteNumber("SELECT COUNT(*)" + below("CRORepItmQuoteHdr", QStringLiteral("2"))) == 0 &&
            suiteNumber("SELECT COUNT(*)" + below("CRORepItmAudit", QStringLiteral("2"))) == 2,
        QStringLiteral("nothing of the second item is left but its audit"));
}

} // namespace

void addItems(Tour& tour) {
    tour.then(QStringLiteral("The items of the order that was booked in."), [&tour] {
        tour.expect(registerTitle, QStringLiteral("register-without-items"), [&tour] {
            tour.check(tour.current("Order #No") == order,
                       QStringLiteral("the register begins with the new order"));
            tour.expect(itemTitle, QStringLiteral("items-none"), [&tour] {
                bookByKeys(tour);
                change(tour);
                bookByMouse(tour);
                remove(tour);
                tour.press(Qt::Key_Escape);
            });
            tour.press(Qt::Key_Return);
            tour.check(tour.current("Order #No") == order && tour.current("Received Items") == "1",
                       QStringLiteral("the register counts the order's item"));
            tour.picture(QStringLiteral("register-with-items"));
            tour.press(Qt::Key_Escape);
        });
        tour.press(Qt::Key_F2);
    });
}

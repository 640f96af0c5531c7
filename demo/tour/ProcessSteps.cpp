// The work on an item: its steps, one more, a change to one.
#include "Steps.h"

#include "SuiteRows.h"

#include "data/DateTimeText.h"

namespace {

const QString registerTitle = QStringLiteral("Workshop Centre: Repair Orders Management");
const QString itemsTitle = QStringLiteral("Workshop Centre: Repair Order Item Management");
const QString listTitle = QStringLiteral("Workshop Centre: Repair Order Item Processes");
const QString stepTitle = QStringLiteral("Workshop Centre: Item Processes");

// An order with items and with steps of the order as a whole.
const QString order = QStringLiteral("100299");

QMap<QString, QString> newest() {
    return suiteRow("SELECT TOP(1) * FROM CRORepItmProcess ORDER BY [RecID] DESC");
}

void addStep(Tour& tour) {
    tour.say(QStringLiteral("Insert adds a step; its letter picks an entry."));
    tour.expect(stepTitle, QStringLiteral("process-new"), [&tour] {
        tour.type(QStringLiteral("T"));
        tour.press(Qt::Key_Return);
        tour.type(QStringLiteral("D"));
        tour.press(Qt::Key_Return);
        tour.type(QStringLiteral("Fan seized; it's the bearing"));
        tour.picture(QStringLiteral("process-filled"));
        tour.press(Qt::Key_F10);
    });
    tour.press(Qt::Key_Insert);
    const auto row = newest();
    tour.check(row["TechCode"].startsWith('T') && row["ProcessCode"] == "DIAGNOSE" &&
                   row["Notes"] == "Fan seized; it's the bearing" &&
                   row["TranDate"] == sfg_Date(0) && row["CRONo"].isEmpty() &&
                   row["ItemNo"] == "0" && row["ProcessID"].toInt() > 0,
               QStringLiteral("the step is in the database, without an order"));
}

void changeStep(Tour& tour) {
    tour.say(QStringLiteral("Enter changes a step; the list shows it once it is read again."));
    tour.expect(stepTitle, QStringLiteral("process"), [&tour] {
        tour.tabTo("edNotes");
        tour.type(QStringLiteral("Seen by the customer"));
        tour.press(Qt::Key_F10);
    });
    tour.press(Qt::Key_Return);
    tour.check(tour.current("Notes") != "Seen by the customer", QStringLiteral("the list stays"));
    tour.press(Qt::Key_R, Qt::ControlModifier);
    tour.check(tour.current("Notes") == "Seen by the customer", QStringLiteral("and is read anew"));
    tour.picture(QStringLiteral("processes-of-item-changed"));
}

} // namespace

void addProcesses(Tour& tour) {
    tour.then(QStringLiteral("F5 on an item opens the work on it."), [&tour] {
        tour.expect(registerTitle, QStringLiteral("register-for-items"), [&tour] {
            while (tour.current("Order #No") != order) {
                tour.press(Qt::Key_Down);
            }
            tour.expect(itemsTitle, QStringLiteral("items"), [&tour] {
                tour.expect(listTitle, QStringLiteral("processes-of-item"), [&tour] {
                    addStep(tour);
                    changeStep(tour);
                    tour.press(Qt::Key_Escape);
                });
                tour.press(Qt::Key_F5);
                tour.press(Qt::Key_Escape);
            });
            tour.press(Qt::Key_Return);
            tour.press(Qt::Key_Escape);
        });
        tour.press(Qt::Key_F2);
    });
}

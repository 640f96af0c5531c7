// Booking in by keyboard alone: a new order, a change to it, a search for it, and another order
// that goes with everything below it.
#include "Steps.h"

#include "SuiteRows.h"

#include "data/DateTimeText.h"
#include "data/Session.h"

namespace {

const QString registerTitle = QStringLiteral("Workshop Centre: Repair Orders Management");
const QString headerTitle = QStringLiteral("Workshop Centre: Repair Order Management");
const QString customersTitle = QStringLiteral("Debtors: Customer Selection");

// The sample's first new number of branch 100, and its last order: it has rows in every table.
const QString newOrder = QStringLiteral("100501");
const QString oldOrder = QStringLiteral("100300");

using Values = QMap<QString, QString>;

/// A row of CRORepMst as the booking must leave it, but for its own key and the time of the change.
/// The customer is the one whose name holds an apostrophe.
Values bookedRow() {
    return {{"CO", "01"},
            {"Branch", "100"},
            {"CRONo", newOrder},
            {"TranDate", sfg_Date(0)},
            {"Account", "C00002"},
            {"Name", suiteRow("SELECT [Name] FROM DEBMaster WHERE [Account] = 'C00002' AND"
                              " [CO] = '01' AND [Branch] = '100'")["Name"]},
            {"Address1", "14 Quarry Lane"},
            {"Address2", "Flat 3"},
            {"Address3", "Northfold"},
            {"Address4", "Brindavel"},
            {"PostCode", "7001"},
            {"Telephone1", "0215551234"},
            {"Telephone2", "(021)555-9876"},
            {"Cellphone", "082-555-0199"},
            {"Contact", "Ask for Wanda"},
            {"EMail", "counter@brindavel.example"},
            {"Reference", "KETTLE-7"},
            {"ReceiveDate", sfg_Date(-1)},
            {"ReceiveMthd", "PICKUP"},
            {"ReceiveItems", "0"},
            {"Status", "0"},
            {"DTODate", sfg_Date(0)},
            {"DTOUser", "COUNTER1"},
            {"DTOMacID", gPCName}};
}

// Control and column, in the order in which Tab comes by.
const char* const billingEntries[][2] = {
    {"edAddress1", "Address1"},   {"edAddress2", "Address2"},     {"edAddress3", "Address3"},
    {"edAddress4", "Address4"},   {"edPostCode", "PostCode"},     {"edContact", "Contact"},
    {"edCellphone", "Cellphone"}, {"edTelephone1", "Telephone1"}, {"edTelephone2", "Telephone2"},
    {"edEMail", "EMail"},
};

/// Alt+S, the text, Enter.
void searchFor(Tour& tour, const QString& text) {
    tour.press(Qt::Key_S, Qt::AltModifier);
    tour.type(text);
    tour.press(Qt::Key_Return);
}

void checkRow(Tour& tour, const QString& order, const Values& expected) {
    const Values row = suiteRow(QStringLiteral("SELECT * FROM CRORepMst WHERE [CO] = '01' AND"
                                               " [Branch] = '100' AND [CRONo] = '%1'")
                                    .arg(order));
    tour.check(row.value("RecID").toInt() > 0, QStringLiteral("the order is in the database"));
    tour.check(row.value("DTOTime").size() == 8 && row.value("DTOTime") <= sfg_Time(),
               QStringLiteral("the order has the time of its last change"));
    tour.check(row.size() == expected.size() + 2, QStringLiteral("every column is looked at"));
    for (auto column = expected.begin(); column != expected.end(); ++column) {
        tour.check(row.value(column.key()) == column.value(),
                   QStringLiteral("%1 of order %2 is \"%3\" and not \"%4\"")
                       .arg(column.key(), order, column.value(), row.value(column.key())));
    }
}

void pickCustomer(Tour& tour) {
    tour.expect(customersTitle, QStringLiteral("customers"), [&tour] {
        const int all = tour.rowCount();
        searchFor(tour, QStringLiteral("C0000"));
        tour.check(tour.rowCount() > 1 && tour.rowCount() < all,
                   QStringLiteral("the search narrows the customers"));
        tour.press(Qt::Key_Home);
        for (int i = 0; i < 10 && tour.current("Account") != "C00002"; ++i) {
            tour.press(Qt::Key_Down);
        }
        tour.picture(QStringLiteral("customers-found"));
        tour.press(Qt::Key_Return);
    });
    tour.type(QStringLiteral("?"));
    tour.press(Qt::Key_Return);
}

void fillOrder(Tour& tour, const Values& row) {
    tour.say(QStringLiteral("Enter leads on from edit to edit."));
    tour.press(Qt::Key_Return); // the order date stays today
    tour.type(row["ReceiveDate"]);
    tour.press(Qt::Key_Return);
    tour.type(QStringLiteral("P")); // to PICKUP in the list
    tour.press(Qt::Key_Return);
    tour.type(row["Reference"]);
    tour.press(Qt::Key_Return);
    tour.say(QStringLiteral("\"?\" in the account opens the customers, Alt+S searches them."));
    pickCustomer(tour);
    for (const auto& [control, column] : billingEntries) {
        tour.tabTo(control);
        tour.type(row[column]);
    }
}

void bookIn(Tour& tour) {
    const int before = tour.rowCount();
    Values row = bookedRow();
    tour.say(QStringLiteral("Insert books in an order; F10 without a customer is refused."));
    tour.expect(headerTitle, QStringLiteral("booking-new"), [&] {
        tour.press(Qt::Key_F10);
        tour.picture(QStringLiteral("booking-refused"));
        tour.tabTo("edTranDate");
        fillOrder(tour, row);
        tour.picture(QStringLiteral("booking-filled"));
        tour.say(QStringLiteral("F10 saves."));
        tour.press(Qt::Key_F10);
    });
    tour.press(Qt::Key_Insert);
    tour.check(tour.rowCount() == before + 1 && tour.current("Order #No") == newOrder,
               QStringLiteral("the new order stands first in the register"));
    tour.picture(QStringLiteral("register-booked"));
    checkRow(tour, newOrder, row);
}

void change(Tour& tour) {
    Values row = bookedRow();
    row["Cellphone"] = "0835550142";
    row["Reference"] = "KETTLE-8";
    tour.say(QStringLiteral("Ctrl+Enter changes it."));
    tour.expect(headerTitle, QStringLiteral("booking-change"), [&] {
        for (const auto& [control, column] :
             {std::pair("edCellphone", "Cellphone"), std::pair("edReference", "Reference")}) {
            tour.tabTo(control);
            tour.type(row[column]);
        }
        tour.picture(QStringLiteral("booking-changed"));
        tour.press(Qt::Key_F10);
    });
    tour.press(Qt::Key_Return, Qt::ControlModifier);
    tour.check(tour.current("Reference") == row["Reference"],
               QStringLiteral("the register shows the change on the order it stands on"));
    checkRow(tour, newOrder, row);
}

void findAgain(Tour& tour) {
    const int all = tour.rowCount();
    tour.say(QStringLiteral("Alt+S finds it by its reference, Ctrl+R shows all orders again."));
    searchFor(tour, QStringLiteral("KETTLE"));
    tour.check(tour.rowCount() == 1 && tour.current("Order #No") == newOrder,
               QStringLiteral("the search finds the new order alone"));
    tour.picture(QStringLiteral("register-order-found"));
    tour.press(Qt::Key_R, Qt::ControlModifier);
    tour.check(tour.rowCount() == all, QStringLiteral("all orders are there again"));
}

/// Rows of the order in its own table and in all tables below it.
int rowsOf(const QString& order) {
    int rows = 0;
    for (const char* table :
         {"CRORepMst", "CRORepItems", "CRORepItmFaults", "CRORepItmImages", "CRORepItmIntake",
          "CRORepItmProcess", "CRORepItmQuoteDet", "CRORepItmQuoteHdr", "CRORepItmAudit"}) {
        rows += suiteNumber(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE [CO] = '01' AND"
                                           " [Branch] = '100' AND [CRONo] = '%2'")
                                .arg(QLatin1String(table), order));
    }
    return rows;
}

void remove(Tour& tour) {
    const int before = tour.rowCount();
    const int others = rowsOf(newOrder);
    tour.check(rowsOf(oldOrder) > 1, QStringLiteral("the old order has rows below it"));
    tour.say(QStringLiteral("Delete and F10 take another order with everything below it."));
    searchFor(tour, oldOrder);
    tour.expect(headerTitle, QStringLiteral("booking-delete"), [&tour] {
        tour.check(!tour.find<QWidget>("pnlMain").isEnabled(),
                   QStringLiteral("an order that is to be deleted cannot be changed"));
        tour.press(Qt::Key_F10);
    });
    tour.press(Qt::Key_Delete);
    tour.check(rowsOf(oldOrder) == 0, QStringLiteral("nothing of the order is left"));
    tour.check(rowsOf(newOrder) == others, QStringLiteral("the other order is as it was"));
    tour.check(tour.rowCount() == before - 1, QStringLiteral("the register has one order less"));
    tour.picture(QStringLiteral("register-deleted"));
}

} // namespace

void addBooking(Tour& tour) {
    tour.then(QStringLiteral("Booking in, by keyboard alone."), [&tour] {
        tour.expect(registerTitle, QStringLiteral("register-before"), [&tour] {
            bookIn(tour);
            change(tour);
            findAgain(tour);
            remove(tour);
            tour.press(Qt::Key_Escape);
        });
        tour.press(Qt::Key_F2);
    });
}

// Booking in by keyboard alone: a new order, a change to it, a search for it, and another order
// that goes with everything below it.
#include "Steps.h"

#include "SuiteRows.h"

#include "data/DateTimeText.h"
#include "data/Session.h"
#include "ui/RowGrid.h"

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

int rowCount(Tour& tour, QDialog& list) {
    return tour.find<velcro::ui::RowGrid>(list, QString()).rowModel().rowCount();
}

QString current(Tour& tour, QDialog& list, const QString& field) {
    auto& grid = tour.find<velcro::ui::RowGrid>(list, QString());
    const auto& columns = grid.rowModel().columns();
    for (int i = 0; i < int(columns.size()); ++i) {
        if (columns[std::size_t(i)].field == field) {
            return grid.rowModel().text(grid.currentIndex().row(), i);
        }
    }
    return {};
}

/// Alt+S, the text, Enter.
void searchFor(Tour& tour, QDialog& list, const QString& text) {
    tour.press(list, Qt::Key_S, Qt::AltModifier);
    tour.type(list, text);
    tour.press(list, Qt::Key_Return);
}

/// Tab by Tab to the control, as somebody without a mouse gets there.
void tabTo(Tour& tour, QDialog& form, const QString& control) {
    for (int i = 0; i < 40 && form.focusWidget()->objectName() != control; ++i) {
        tour.press(form, Qt::Key_Tab);
    }
    tour.check(form.focusWidget()->objectName() == control,
               QStringLiteral("the tab key leads to ") + control);
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

void pickCustomer(Tour& tour, QDialog& form) {
    tour.expect(customersTitle, QStringLiteral("customers"), [&tour](QDialog& customers) {
        const int all = rowCount(tour, customers);
        searchFor(tour, customers, QStringLiteral("C0000"));
        tour.check(rowCount(tour, customers) > 1 && rowCount(tour, customers) < all,
                   QStringLiteral("the search narrows the customers"));
        tour.press(customers, Qt::Key_Home);
        for (int i = 0; i < 10 && current(tour, customers, "Account") != "C00002"; ++i) {
            tour.press(customers, Qt::Key_Down);
        }
        tour.picture(customers, QStringLiteral("customers-found"));
        tour.press(customers, Qt::Key_Return);
    });
    tour.type(form, QStringLiteral("?"));
    tour.press(form, Qt::Key_Return);
}

void fillOrder(Tour& tour, QDialog& form, const Values& row) {
    tour.say(QStringLiteral("Shift+Tab leads back to the reference, Enter on from edit to edit."));
    tour.press(form, Qt::Key_Backtab, Qt::ShiftModifier);
    tour.type(form, row["Reference"]);
    tour.press(form, Qt::Key_Return);
    tour.press(form, Qt::Key_Return); // the order date stays today
    tour.type(form, row["ReceiveDate"]);
    tour.press(form, Qt::Key_Return);
    tour.type(form, QStringLiteral("P")); // to PICKUP in the list
    tour.press(form, Qt::Key_Return);
    tour.say(QStringLiteral("\"?\" in the account opens the customers, Alt+S searches them."));
    pickCustomer(tour, form);
    for (const auto& [control, column] : billingEntries) {
        tabTo(tour, form, control);
        tour.type(form, row[column]);
    }
}

void bookIn(Tour& tour, QDialog& list) {
    const int before = rowCount(tour, list);
    Values row = bookedRow();
    tour.say(QStringLiteral("Insert books in an order; F10 without a customer is refused."));
    tour.expect(headerTitle, QStringLiteral("booking-new"), [&](QDialog& form) {
        tour.press(form, Qt::Key_F10);
        tour.picture(form, QStringLiteral("booking-refused"));
        tabTo(tour, form, "edTranDate");
        fillOrder(tour, form, row);
        tour.picture(form, QStringLiteral("booking-filled"));
        tour.say(QStringLiteral("F10 saves."));
        tour.press(form, Qt::Key_F10);
    });
    tour.press(list, Qt::Key_Insert);
    tour.check(rowCount(tour, list) == before + 1 && current(tour, list, "CRONo") == newOrder,
               QStringLiteral("the new order stands first in the register"));
    tour.picture(list, QStringLiteral("register-booked"));
    checkRow(tour, newOrder, row);
}

void change(Tour& tour, QDialog& list) {
    Values row = bookedRow();
    row["Cellphone"] = "0835550142";
    row["Reference"] = "KETTLE-8";
    tour.say(QStringLiteral("Ctrl+Enter changes it."));
    tour.expect(headerTitle, QStringLiteral("booking-change"), [&](QDialog& form) {
        for (const auto& [control, column] :
             {std::pair("edCellphone", "Cellphone"), std::pair("edReference", "Reference")}) {
            tabTo(tour, form, control);
            tour.type(form, row[column]);
        }
        tour.picture(form, QStringLiteral("booking-changed"));
        tour.press(form, Qt::Key_F10);
    });
    tour.press(list, Qt::Key_Return, Qt::ControlModifier);
    tour.check(current(tour, list, "Reference") == row["Reference"],
               QStringLiteral("the register shows the change on the order it stands on"));
    checkRow(tour, newOrder, row);
}

void findAgain(Tour& tour, QDialog& list) {
    const int all = rowCount(tour, list);
    tour.say(QStringLiteral("Alt+S finds it by its reference, Ctrl+R shows all orders again."));
    searchFor(tour, list, QStringLiteral("KETTLE"));
    tour.check(rowCount(tour, list) == 1 && current(tour, list, "CRONo") == newOrder,
               QStringLiteral("the search finds the new order alone"));
    tour.picture(list, QStringLiteral("register-order-found"));
    tour.press(list, Qt::Key_R, Qt::ControlModifier);
    tour.check(rowCount(tour, list) == all, QStringLiteral("all orders are there again"));
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

void remove(Tour& tour, QDialog& list) {
    const int before = rowCount(tour, list);
    const int others = rowsOf(newOrder);
    tour.check(rowsOf(oldOrder) > 1, QStringLiteral("the old order has rows below it"));
    tour.say(QStringLiteral("Delete and F10 take another order with everything below it."));
    searchFor(tour, list, oldOrder);
    tour.expect(headerTitle, QStringLiteral("booking-delete"), [&tour](QDialog& form) {
        tour.check(!tour.find<QWidget>(form, "pnlMain").isEnabled(),
                   QStringLiteral("an order that is to be deleted cannot be changed"));
        tour.press(form, Qt::Key_F10);
    });
    tour.press(list, Qt::Key_Delete);
    tour.check(rowsOf(oldOrder) == 0, QStringLiteral("nothing of the order is left"));
    tour.check(rowsOf(newOrder) == others, QStringLiteral("the other order is as it was"));
    tour.check(rowCount(tour, list) == before - 1,
               QStringLiteral("the register has one order less"));
    tour.picture(list, QStringLiteral("register-deleted"));
}

} // namespace

void addBooking(Tour& tour, TfrmMAIN000& menu) {
    tour.then(QStringLiteral("Booking in, by keyboard alone."), [&tour, &menu] {
        tour.expect(registerTitle, QStringLiteral("register-before"), [&tour](QDialog& list) {
            bookIn(tour, list);
            change(tour, list);
            findAgain(tour, list);
            remove(tour, list);
            tour.press(list, Qt::Key_Escape);
        });
        tour.press(menu, Qt::Key_F2);
    });
}

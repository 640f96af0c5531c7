// The items of an order: F10 on an item with five intakes and five faults to the closed screen, an
// item opened over two checklists of 500 codes, and the list of an order with 1,000 items.
//   ItemBench [items to save]
#include "RawTable.h"
#include "Stopwatch.h"

#include "data/DataModules.h"
#include "data/Session.h"
#include "repairs/CRO101.h"
#include "repairs/CRO101A.h"
#include "support/Desk.h"
#include "support/TempFolder.h"
#include "ui/ChecklistGrid.h"
#include "ui/Modal.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <cstdlib>
#include <stdexcept>
#include <utility>

using bench::RawDatabase;
using bench::Rounds;
using velcro::test::Desk;

namespace {

constexpr int codes = 500; // of each kind
constexpr int ticks = 5;   // of each kind
constexpr int items = 1000;
constexpr int openings = 200;
constexpr int reads = 25;

/// The order that is saved into, and the one with a thousand items.
const RepairOrderKey small{0, QStringLiteral("900001"), QStringLiteral("C00001"),
                           QStringLiteral("Small")};
const RepairOrderKey large{0, QStringLiteral("900002"), QStringLiteral("C00001"),
                           QStringLiteral("Large")};

void insertRows(const QString& into, int count, const std::function<QString(int)>& values) {
    QStringList rows;
    for (int row = 1; row <= count; ++row) {
        rows << "(" + values(row) + ")";
    }
    Desk::onSuite("INSERT INTO " + into + " VALUES " + rows.join(", "));
}

QString serial(int number) {
    return QStringLiteral("SN") + QString::number(100'100'000 + number);
}

void addRows() {
    for (const auto* type : {"F", "I"}) {
        insertRows("CROCodeMaster ([CO], [CodeType], [Code], [Description], [Notes])",
                   codes - Desk::suite(QString("SELECT COUNT(*) FROM CROCodeMaster WHERE [CO] ="
                                               " '01' AND [CodeType] = '") +
                                       type + "'")
                               .toInt(),
                   [type](int row) {
                       return QStringLiteral("'01', '%1', 'X%2', 'Bench code number %2', 'Note'")
                           .arg(type)
                           .arg(row, 4, 10, QLatin1Char('0'));
                   });
    }
    for (const auto& order : {small, large}) {
        Desk::onSuite("INSERT INTO CRORepMst ([CO], [Branch], [CRONo], [Account], [Name]) VALUES"
                      " ('01', '100', '" +
                      order.xCRONo + "', 'C00001', 'Bench')");
    }
    insertRows("CRORepItems ([CO], [Branch], [CRONo], [ItemNo], [ModelNo], [SerialNo],"
               " [InWarranty], [Notes])",
               items, [](int row) {
                   return QStringLiteral("'01', '100', '900002', '%1', 'MODEL-%1', '%2', 'N', "
                                         "'Bench'")
                       .arg(row)
                       .arg(serial(row));
               });
}

/// Runs a screen modally; the steps begin when it is painted.
void work(QDialog& screen, const std::function<void(QDialog&)>& steps) {
    velcro::ui::setModalWatcher([&](QDialog& form) {
        form.activateWindow(); // or its edits have no focus to type into
        QApplication::processEvents();
        steps(form);
    });
    velcro::ui::runModal(screen);
}

void tickFirst(QDialog& form, const char* list) {
    auto& model = form.findChild<velcro::ui::ChecklistGrid*>(QString::fromLatin1(list))->rowModel();
    for (int row = 0; row < ticks; ++row) {
        model.setTicked(row, 0, true);
    }
}

/// From the key to the end of the modal form, its last repaint included.
void saveItem(Rounds& rounds, int number) {
    TfrmCRO101A screen;
    screen.showOrder(small);
    bench::Clock::time_point pressed;
    std::clock_t processor = 0;
    work(screen, [&](QDialog& form) {
        auto* edSerialNo = form.findChild<QLineEdit*>(QStringLiteral("edSerialNo"));
        QTest::keyClicks(edSerialNo, serial(1 + number % items));
        QTest::keyClick(edSerialNo, Qt::Key_Return);
        QTest::keyClicks(form.focusWidget(), QStringLiteral("MODEL"));
        tickFirst(form, "grdIntakes");
        tickFirst(form, "grdFaults");
        QApplication::processEvents();
        processor = std::clock();
        pressed = bench::Clock::now();
        QTest::keyClick(form.focusWidget(), Qt::Key_F10);
        if (form.isVisible()) {
            throw std::runtime_error("F10 did not close the screen");
        }
    });
    rounds.add(bench::Clock::now() - pressed, std::clock() - processor);
}

/// The item number, the check for a double, the number of the quotation, the item with all its rows,
/// and the count of the order's items, as two durable transactions.
class RawItem
{
public:
    RawItem(RawDatabase& database, const std::string& from)
        : database_(database) {
        for (const char* table : {"CRORepMst", "CRORepItems", "CRORepItmIntake", "CRORepItmFaults",
                                  "CRORepItmAudit", "CRORepItmQuoteHdr"}) {
            database.copyTable(from, table);
            database.execute(std::string("CREATE INDEX by") + table + " ON " + table +
                             " (CO, Branch, CRONo); CREATE UNIQUE INDEX id" + table + " ON " +
                             table + " (RecID)");
        }
        database.execute("CREATE TABLE series (key TEXT PRIMARY KEY, number INTEGER);"
                         "INSERT INTO series VALUES ('01-100-CRO-CROQOT', 501000)");
        const std::string order = " WHERE CO = '01' AND Branch = '100' AND CRONo = '900001'";
        add("SELECT max(CAST(ItemNo AS INT)) FROM CRORepItems" + order);
        add("SELECT RecID FROM CRORepItems" + order + " AND SerialNo = '0'");
        add("UPDATE series SET number = number + 1 WHERE key = '01-100-CRO-CROQOT' RETURNING"
            " number");
        add("SELECT strftime('%Y/%m/%d', 'now')");
        insert("CRORepItems (RecID, CO, Branch, CRONo, ItemNo, ModelNo, SerialNo, InWarranty,"
               " Notes)",
               "'1', 'MODEL', 'SN100100001', 'N', ''");
        for (int i = 0; i < ticks; ++i) {
            insert("CRORepItmIntake (RecID, CO, Branch, CRONo, ItemNo, IntakeCode, Notes)",
                   "'1', 'BOX', 'Note'");
            insert("CRORepItmFaults (RecID, CO, Branch, CRONo, ItemNo, FaultCode, Notes)",
                   "'1', 'NOISE', 'Note'");
        }
        insert("CRORepItmAudit (RecID, CO, Branch, CRONo, ItemNo, TranDate, TranTime, ProcessCode,"
               " TechCode, Notes)",
               "'1', '2026/01/31', '12:00:00', '', '', 'Order Item Added'");
        insert("CRORepItmQuoteHdr (RecID, CO, Branch, CRONo, ItemNo, TranDate, TechCode, Status,"
               " DepositRequired, DepositPaid, OrderNo, Notes)",
               "'1', '2026/01/31', '', '0', 0, 0, '501001', ''");
        count_ = database.prepare("SELECT count(RecID) FROM CRORepItems" + order);
        update_ = database.prepare("UPDATE CRORepMst SET ReceiveItems = 1" + order);
    }

    void save() {
        database_.execute("BEGIN IMMEDIATE");
        for (const auto& statement : statements_) {
            bench::stepOver(statement.get());
        }
        database_.execute("COMMIT; BEGIN IMMEDIATE");
        bench::stepOver(count_.get());
        bench::stepOver(update_.get());
        database_.execute("COMMIT");
    }

private:
    void add(const std::string& sql) { statements_.push_back(database_.prepare(sql)); }
    void insert(const std::string& into, const std::string& values) {
        const std::string table = into.substr(0, into.find(' '));
        add("INSERT INTO " + into + " VALUES ((SELECT max(RecID) + 1 FROM " + table +
            "), '01', '100', '900001', " + values + ")");
    }

    RawDatabase& database_;
    std::vector<bench::RawStatement> statements_;
    bench::RawStatement count_, update_;
};

void measureSaves(RawDatabase& raw, const std::string& suite, int saves) {
    RawItem reference(raw, suite);
    Rounds ours, theirs;
    for (int i = 0; i < saves; ++i) { // by turns, so that both meet the same machine
        saveItem(ours, i);
        theirs.run([&] { reference.save(); });
    }
    bench::print("F10 on an item with 5 + 5 ticks, durable", ours, theirs, 2);
}

/// Enter in the list to the painted item.
void measureOpening() {
    Rounds opened;
    TfrmCRO101 list(small);
    bench::Clock::time_point pressed;
    bool inList = false;
    velcro::ui::setModalWatcher([&](QDialog& form) {
        QApplication::processEvents();
        if (std::exchange(inList, true)) {
            opened.add(bench::Clock::now() - pressed);
        } else {
            for (int i = 0; i < openings; ++i) {
                pressed = bench::Clock::now();
                QTest::keyClick(form.focusWidget(), Qt::Key_Return);
            }
        }
        form.reject();
    });
    velcro::ui::runModal(list);
    bench::print("Enter to the painted item, 2 x 500 codes", opened);
    std::printf("99 of 100 within %.2f ms (aim 50)\n", opened.percentile(0.99));
}

void measureList(RawDatabase& raw, const std::string& suite) {
    for (const char* table : {"STKSerialMst", "STKMaster"}) {
        raw.copyTable(suite, table);
    }
    raw.execute("DELETE FROM CRORepItems WHERE CRONo = '900001';"
                "CREATE INDEX bySerial ON STKSerialMst (CO, Branch, SerialNo COLLATE NOCASE);"
                "CREATE INDEX byStock ON STKMaster (CO, Branch, StockCode COLLATE NOCASE,"
                " LinkCode COLLATE NOCASE)");
    const auto rows = raw.prepare(
        "SELECT T0.*, T2.Description1 FROM CRORepItems T0 JOIN STKSerialMst T1 ON T1.CO = T0.CO"
        " AND T1.Branch = '100' AND T1.SerialNo = T0.SerialNo COLLATE NOCASE JOIN STKMaster T2 ON"
        " T2.CO = T1.CO AND T2.Branch = T1.Branch AND T2.StockCode = T1.StockCode COLLATE NOCASE"
        " AND T2.LinkCode = T1.LinkCode COLLATE NOCASE WHERE T0.CO = '01' AND T0.Branch = '100'"
        " AND T0.CRONo = '900002'");
    Rounds read, stepped;
    TfrmCRO101 list(large);
    work(list, [&](QDialog& form) {
        for (int i = 0; i < reads; ++i) {
            read.run([&] { list.BuildGrid(); });
            int found = 0;
            stepped.run([&] { found = bench::stepOver(rows.get()); });
            if (found != items || list.grid().rowModel().rowCount() != items) {
                throw std::runtime_error("the list and its reference find different items");
            }
        }
        form.reject();
    });
    bench::print("list of 1,000 items, read", read, stepped, 1.25);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    const Desk desk;
    addRows();
    const std::string suite = (desk.databases() + "/VELSUITE.sqlite").toStdString();
    const velcro::test::TempFolder folder;
    RawDatabase raw(folder.file("raw.sqlite"));
    bench::printHead();
    measureSaves(raw, suite, argc > 1 ? std::atoi(argv[1]) : 100);
    measureOpening();
    measureList(raw, suite);
    for (const QString& problem : desk.shown) {
        std::fprintf(stderr, "%s\n", qPrintable(problem));
    }
    return desk.shown.isEmpty() ? 0 : 1;
}

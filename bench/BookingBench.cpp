// Booking in: F10 to the closed header, the customer selection over 45,000 debtors, and a search in
// it. Each against raw SQLite doing what the statements ask.
//   BookingBench [orders to save]
#include "RawTable.h"
#include "Shop.h"
#include "Stopwatch.h"

#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/SearchTerms.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "data/SysLoadData.h"
#include "lookups/CRO900.h"
#include "repairs/CRO100A.h"
#include "support/Desk.h"
#include "support/TempFolder.h"
#include "ui/Modal.h"
#include "ui/RowGrid.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <cstdlib>
#include <stdexcept>

using bench::RawDatabase;
using bench::Rounds;
using velcro::test::Desk;

namespace {

constexpr int debtors = 45'000;
constexpr int reads = 25;
const std::string searched = "an Pell";

void typeInto(QDialog& form, const char* control, const char* text) {
    auto* edit = form.findChild<QLineEdit*>(QString::fromLatin1(control));
    if (edit == nullptr) {
        throw std::runtime_error(std::string("no control ") + control);
    }
    edit->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(edit, QString::fromLatin1(text));
}

/// From the key to the end of the modal form, its last repaint included.
void saveOrder(Rounds& rounds) {
    TfrmCRO100A screen;
    bench::Clock::time_point pressed;
    std::clock_t processor = 0;
    velcro::ui::setModalWatcher([&](QDialog& form) {
        form.activateWindow(); // or its edits have no focus to type into
        QApplication::processEvents();
        typeInto(form, "edAccount", "C00001");
        typeInto(form, "edName", "Aalderwyn Household Repairs");
        typeInto(form, "edAddress1", "14 Quarry Lane");
        typeInto(form, "edCellphone", "0825550199");
        typeInto(form, "edReference", "BENCH");
        QApplication::processEvents();
        processor = std::clock();
        pressed = bench::Clock::now();
        QTest::keyClick(form.focusWidget(), Qt::Key_F10);
        if (form.isVisible()) {
            throw std::runtime_error("F10 did not close the screen");
        }
    });
    velcro::ui::runModal(screen);
    rounds.add(bench::Clock::now() - pressed, std::clock() - processor);
}

/// What the last save sent, sent once more with a number of its own and without a screen.
void sendAgain() {
    const QString order = sld_GenerateDocNo(gCO, gBranch, "CRO", "CROMST");
    sld_CheckDuplicates("SELECT [RecID] FROM CRORepMst WHERE [CO] = " + QuotedStr(gCO) +
                            " AND [Branch] = " + QuotedStr(gBranch) +
                            " AND [CRONo] = " + QuotedStr(order),
                        "CRORepMst");
    sfg_Date(0);
    QString batch = gSQL.Text();
    const auto number = batch.indexOf(QStringLiteral("VALUES ( '01','100','")) + 21;
    batch.replace(number, batch.indexOf('\'', number) - number, order);
    sfg_ClearSQL();
    sfg_AddSQL(batch, "NEW");
    if (!gData->vel_ExecSQL(1)) {
        throw std::runtime_error("the order could not be sent again");
    }
}

/// The number, the check that it is free, the server's date and the order with its two indexes, as
/// one durable transaction.
class RawOrder
{
public:
    explicit RawOrder(RawDatabase& database, const std::string& from)
        : database_(database) {
        database.copyTable(from, "CRORepMst");
        database.execute("CREATE INDEX byNumber ON CRORepMst (CO, Branch, CRONo);"
                         "CREATE INDEX byAccount ON CRORepMst (CO, Branch, Account);"
                         "CREATE UNIQUE INDEX byRecID ON CRORepMst (RecID);"
                         "CREATE TABLE series (key TEXT PRIMARY KEY, number INTEGER);"
                         "INSERT INTO series VALUES ('01-100-CRO-CROMST', 100500)");
        next_ = database.prepare("UPDATE series SET number = number + 1 WHERE key ="
                                 " '01-100-CRO-CROMST' RETURNING number");
        taken_ = database.prepare("SELECT RecID FROM CRORepMst WHERE CO = '01' AND Branch = '100'"
                                  " AND CRONo = ?1");
        date_ = database.prepare("SELECT strftime('%Y/%m/%d %H:%M:%S', 'now')");
        insert_ = database.prepare(
            "INSERT INTO CRORepMst (RecID, CO, Branch, CRONo, TranDate, Account, Name, Address1,"
            " Address2, Address3, Address4, PostCode, Telephone1, Telephone2, Cellphone, Contact,"
            " EMail, Reference, ReceiveDate, ReceiveMthd, ReceiveItems, Status, DTODate, DTOTime,"
            " DTOUser, DTOMacID) VALUES ((SELECT max(RecID) + 1 FROM CRORepMst), '01', '100', ?1,"
            " '2026/01/31', 'C00001', 'Aalderwyn Household Repairs', '14 Quarry Lane', '', '', '',"
            " '', '', '', '0825550199', '', '', 'BENCH', '2026/01/31', 'WALKIN', '0', '0',"
            " '2026/01/31', '12:00:00', 'COUNTER1', 'SEAT')");
    }

    void save() {
        database_.execute("BEGIN IMMEDIATE");
        sqlite3_step(next_.get());
        const std::string number =
            reinterpret_cast<const char*>(sqlite3_column_text(next_.get(), 0));
        sqlite3_reset(next_.get());
        database_.bind(taken_.get(), 1, number);
        bench::stepOver(taken_.get());
        bench::stepOver(date_.get());
        database_.bind(insert_.get(), 1, number);
        bench::stepOver(insert_.get());
        database_.execute("COMMIT");
    }

private:
    RawDatabase& database_;
    bench::RawStatement next_, taken_, date_, insert_;
};

void measureSaves(RawDatabase& raw, const std::string& suite, int saves) {
    RawOrder reference(raw, suite);
    Rounds ours, statements, theirs;
    for (int i = 0; i < saves; ++i) { // by turns, so that all meet the same machine
        saveOrder(ours);
        statements.run(sendAgain);
        theirs.run([&] { reference.save(); });
    }
    bench::print("F10 to closed screen, durable", ours, theirs, 2);
    bench::print("  its statements without the screen", statements, theirs, 2);
}

/// To the first picture of the form, and how long the form alone takes over its read.
class Selection
{
public:
    void open() {
        TfrmCRO900 screen;
        const auto start = bench::Clock::now();
        velcro::ui::setModalWatcher([&](QDialog& form) {
            QApplication::processEvents();
            painted_.add(bench::Clock::now() - start);
            read_.run([&] { screen.BuildGrid(); });
            search(screen, form);
            searchRead_.run([&] { screen.BuildGrid(searchText(screen.facts())); });
            rows_ = screen.grid().rowModel().rowCount();
            form.reject();
        });
        velcro::ui::runModal(screen);
    }
    const Rounds& painted() const { return painted_; }
    const Rounds& read() const { return read_; }
    const Rounds& searchRead() const { return searchRead_; }
    const Rounds& searchPainted() const { return searchPainted_; }
    int rows() const { return rows_; }

private:
    static QString searchText(const ListFacts& facts) {
        return searchTerms(facts.search.terms, QString::fromStdString(searched)) + facts.search.end;
    }
    void search(TfrmCRO900& screen, QDialog& form) {
        QTest::keyClick(&screen.grid(), Qt::Key_S, Qt::AltModifier);
        auto* edit = form.findChild<QLineEdit*>(QStringLiteral("edSearchText"));
        QTest::keyClicks(edit, QString::fromStdString(searched));
        QApplication::processEvents();
        searchPainted_.run([&] {
            QTest::keyClick(edit, Qt::Key_Return);
            QApplication::processEvents();
        });
    }

    Rounds painted_, read_, searchPainted_, searchRead_;
    int rows_ = 0;
};

// What the screen's statements ask, on a table with the same index and no regard to case.
const std::string scope = "SELECT Account, Name, Cellphone, Telephone, Telephone2, Contact, IDNo,"
                          " DefBranch FROM DEBMaster WHERE CO = '01' COLLATE NOCASE AND"
                          " Branch = '100' COLLATE NOCASE";
const std::string byName = " ORDER BY Name COLLATE NOCASE";

void measureSelection(RawDatabase& raw, const std::string& suite) {
    raw.copyTable(suite, "DEBMaster");
    raw.execute("CREATE INDEX byName ON DEBMaster (CO COLLATE NOCASE, Branch COLLATE NOCASE,"
                " Name COLLATE NOCASE)");
    const auto list = raw.prepare(scope + byName + " LIMIT 2000");
    const std::string like = " LIKE '%" + searched + "%'";
    const auto search = raw.prepare(scope + " AND Account" + like + " OR Name" + like + " OR IDNo" +
                                    like + " OR Cellphone" + like + byName);
    Rounds listed, found;
    Selection selection;
    int rows = 0;
    for (int i = 0; i < reads; ++i) {
        selection.open();
        listed.run([&] { bench::stepOver(list.get()); });
        found.run([&] { rows = bench::stepOver(search.get()); });
    }
    if (rows != selection.rows()) {
        throw std::runtime_error("the search and its reference find different customers");
    }
    bench::print("customer selection, list read", selection.read(), listed, 1.25);
    bench::print("customer selection, opened and painted", selection.painted());
    bench::print("customer search, read", selection.searchRead(), found, 1.25);
    bench::print("customer search, Enter to painted", selection.searchPainted());
    std::printf("%d customers found among %d\n", rows,
                Desk::suite("SELECT COUNT(*) FROM DEBMaster").toInt());
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    const Desk desk;
    bench::addCustomers(debtors);
    const std::string suite = (desk.databases() + "/VELSUITE.sqlite").toStdString();
    const velcro::test::TempFolder folder;
    RawDatabase raw(folder.file("raw.sqlite"));
    bench::printHead();
    measureSaves(raw, suite, argc > 1 ? std::atoi(argv[1]) : 100);
    measureSelection(raw, suite);
    for (const QString& problem : desk.shown) {
        std::fprintf(stderr, "%s\n", qPrintable(problem));
    }
    return desk.shown.isEmpty() ? 0 : 1;
}

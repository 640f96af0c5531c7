// The stock of an estimate, 200,000 products with prices and balances: a scanned barcode to the
// painted line, and the product selection opened and searched, against stepping over the same
// statements in raw SQLite; what the selection holds in memory.
//   StockBench [products]
#include "Memory.h"
#include "RawTable.h"
#include "Shop.h"
#include "Stopwatch.h"

#include "data/SearchTerms.h"
#include "lookups/CRO920.h"
#include "repairs/CRO104A.h"
#include "support/Desk.h"
#include "support/TempFolder.h"
#include "ui/AmountEdit.h"
#include "ui/Modal.h"
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

constexpr int scans = 300;
constexpr int reads = 15;

/// Runs a screen modally and leaves it; the steps begin when it is painted.
void work(QDialog& screen, const std::function<void(QDialog&)>& steps) {
    velcro::ui::setModalWatcher([&](QDialog& form) {
        if (&form != &screen) { // asks whether what was scanned may be lost
            QTest::keyClick(&form, Qt::Key_Y);
            form.reject();
            return;
        }
        form.activateWindow(); // or its edits have no focus to type into
        QApplication::processEvents();
        steps(form);
        form.reject();
    });
    velcro::ui::runModal(screen);
}

/// The Enter that a scanner sends after the code, to the painted line.
void scan(Rounds& rounds, int row) {
    TfrmCRO104A line;
    line.xFunction = 1;
    work(line, [&](QDialog& form) {
        auto* edStockCode = form.findChild<QLineEdit*>(QStringLiteral("edStockCode"));
        edStockCode->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(edStockCode, bench::barcodeOf(row));
        QApplication::processEvents();
        rounds.run([&] {
            QTest::keyClick(edStockCode, Qt::Key_Return);
            QApplication::processEvents();
        });
        const auto* price = form.findChild<velcro::ui::AmountEdit*>(QStringLiteral("edPriceExcl"));
        if (edStockCode->text() != bench::stockCodeOf(row) || price->value() != 10) {
            throw std::runtime_error("the barcode did not bring its product and price");
        }
    });
}

void measureScans(int products) {
    Rounds scanned;
    for (int i = 0; i < scans; ++i) {
        scan(scanned, int((i * 7919LL) % (products / 2)));
    }
    bench::print("barcode, Enter to the painted line", scanned);
    std::printf("99 of 100 within %.2f ms (aim 50)\n", scanned.percentile(0.99));
}

/// What the screen's statements ask, written for SQLite by hand.
std::string selectProducts(const std::string& search) {
    const auto same = [](const std::string& one, const std::string& other,
                         std::initializer_list<const char*> columns) {
        std::string text;
        for (const char* column : columns) {
            text += (text.empty() ? "" : " AND ") + one + "." + column + " = " + other + "." +
                    column + " COLLATE NOCASE";
        }
        return text;
    };
    return "SELECT T0.*, COALESCE(T1.Excl, 0.0), COALESCE(T1.Incl, 0.0),"
           " (SELECT SUM(Onhand) FROM STKBalance B WHERE " +
           same("B", "T0", {"CO", "Branch", "StockCode"}) +
           ") FROM STKMaster T0 LEFT JOIN STKPrice T1 ON " +
           same("T1", "T0", {"CO", "Branch", "StockCode", "LinkCode"}) +
           " AND T1.PriceCode = '1' COLLATE NOCASE LEFT JOIN STKBalance T2 ON " +
           same("T2", "T0", {"CO", "Branch", "StockCode"}) +
           " WHERE T0.CO = '01' COLLATE NOCASE AND T0.Branch = '100' COLLATE NOCASE AND"
           " T0.StockType <> 'P' COLLATE NOCASE AND T0.Status <> 'X' COLLATE NOCASE" +
           search + " ORDER BY T0.Description1 COLLATE NOCASE LIMIT 1000";
}

void copyStock(RawDatabase& raw, const std::string& suite) {
    for (const char* table : {"STKMaster", "STKPrice", "STKBalance"}) {
        raw.copyTable(suite, table);
    }
    const std::string branch = "(CO COLLATE NOCASE, Branch COLLATE NOCASE, ";
    const std::string code = "StockCode COLLATE NOCASE";
    raw.execute("CREATE INDEX byName ON STKMaster " + branch + "Description1 COLLATE NOCASE);" +
                "CREATE INDEX byPrice ON STKPrice " + branch + code +
                ", LinkCode COLLATE NOCASE, PriceCode COLLATE NOCASE);" +
                "CREATE INDEX byCode ON STKBalance " + branch + code + ", WH COLLATE NOCASE)");
}

/// A way to meet the selection: opened with a text, or searched for one in it.
struct Way
{
    const char* name;
    QString start, search;
    std::string rawSearch;
};

struct Held
{
    std::size_t open = 0, rows = 0, closed = 0;
};

class Selection
{
public:
    explicit Selection(const Way& way)
        : way_(way) {}

    void open() {
        const auto before = bench::heapBytes();
        {
            TfrmCRO920 screen;
            screen.xStartSearch = way_.start;
            const auto start = bench::Clock::now();
            work(screen, [&](QDialog& form) {
                if (way_.search.isEmpty()) {
                    painted_.add(bench::Clock::now() - start);
                } else {
                    search(screen, form);
                }
                read_.run([&] { screen.BuildGrid(searchText(screen)); });
                const auto& model = screen.grid().rowModel();
                rows_ = model.rowCount();
                held_ = {bench::heapBytes() - before, model.rows().memoryUse()};
            });
        }
        held_.closed = bench::heapBytes() - before;
    }
    const Rounds& painted() const { return painted_; }
    const Rounds& read() const { return read_; }
    const Held& held() const { return held_; }
    int rows() const { return rows_; }

private:
    QString searchText(const TfrmCRO920& screen) const {
        return way_.search.isEmpty() ? QString()
                                     : searchTerms(screen.facts().search.terms, way_.search);
    }
    void search(TfrmCRO920& screen, QDialog& form) {
        QTest::keyClick(&screen.grid(), Qt::Key_S, Qt::AltModifier);
        auto* edit = form.findChild<QLineEdit*>(QStringLiteral("edSearchText"));
        QTest::keyClicks(edit, way_.search);
        QApplication::processEvents();
        painted_.run([&] {
            QTest::keyClick(edit, Qt::Key_Return);
            QApplication::processEvents();
        });
    }

    const Way& way_;
    Rounds painted_, read_;
    Held held_;
    int rows_ = 0;
};

std::string like(std::initializer_list<const char*> columns, const std::string& text,
                 const char* first) {
    std::string terms;
    for (const char* column : columns) {
        terms += (terms.empty() ? first : std::string(" OR ")) + std::string("T0.") + column +
                 " LIKE '%" + text + "%'";
    }
    return terms;
}

void measureSelection(RawDatabase& raw) {
    const std::string text = "42 mm for model 1";
    const auto typed = QString::fromStdString(text);
    const Way ways[] = {
        {"opened", {}, {}, {}},
        {"opened with a text",
         typed,
         {},
         like({"StockCode", "Description1", "SuppCode", "Barcode"}, text, " AND (") + ")"},
        {"searched",
         {},
         typed,
         like({"StockCode", "LinkCode", "Description1", "Description2", "Barcode", "SuppCode"},
              text, " AND ")},
    };
    for (const auto& way : ways) {
        const auto reference = raw.prepare(selectProducts(way.rawSearch));
        Selection ours(way);
        Rounds theirs;
        int rows = 0;
        for (int i = 0; i < reads; ++i) { // by turns, so that both meet the same machine
            ours.open();
            theirs.run([&] { rows = bench::stepOver(reference.get()); });
        }
        if (rows != ours.rows() || rows == 0) {
            throw std::runtime_error("the selection and its reference find different products");
        }
        const std::string name = std::string("product selection ") + way.name;
        bench::print((name + ", read").c_str(), ours.read(), theirs, 1.25);
        bench::print((name + ", painted").c_str(), ours.painted());
        std::printf("%d rows; heap: %.2f MB more while open, %.2f of it the rows; %.2f after it\n",
                    rows, double(ours.held().open) / 1e6, double(ours.held().rows) / 1e6,
                    double(ours.held().closed) / 1e6);
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    const Desk desk(Desk::Start::SignedIn);
    const int products = argc > 1 ? std::atoi(argv[1]) : 200'000;
    bench::addProducts(products);
    const velcro::test::TempFolder folder;
    RawDatabase raw(folder.file("raw.sqlite"));
    copyStock(raw, (desk.databases() + "/VELSUITE.sqlite").toStdString());
    bench::printHead();
    measureScans(products);
    measureSelection(raw);
    for (const QString& problem : desk.shown) {
        std::fprintf(stderr, "%s\n", qPrintable(problem));
    }
    return desk.shown.isEmpty() ? 0 : 1;
}

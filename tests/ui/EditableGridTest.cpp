// Rows that are edited and filtered in memory, what a visitor is told of them, and checklists.
#include "support/ScreenChecks.h"
#include "ui/ChecklistGrid.h"
#include "ui/GridPrinter.h"
#include "ui/GridVisitor.h"
#include "ui/Theme.h"

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace velcro;
using namespace velcro::ui;

namespace {

sql::RowSet parts() {
    sql::RowSetBuilder builder({{"Code", sql::ColumnType::Text},
                                {"Quantity", sql::ColumnType::Integer},
                                {"Price", sql::ColumnType::Float},
                                {"Booked", sql::ColumnType::Text},
                                {"Read", sql::ColumnType::DateTime},
                                {"Status", sql::ColumnType::Text}});
    const auto add = [&](const char* code, int quantity, double price, const char* booked) {
        builder.addBytes(code);
        builder.addInteger(quantity);
        builder.addFloat(price);
        builder.addBytes(booked);
        builder.addBytes("2026-03-04 05:06:07.000");
        builder.addBytes("0");
        builder.endRow();
    };
    add("Belt", 30, 2.5, "2026/01/31");
    add("axle", 4, 10, "soon");
    add("Bolt", 100, 0.25, "2026-02-01 08:30");
    for (int i = 0; i < 6; ++i) {
        builder.addNull();
    }
    builder.endRow();
    return builder.take();
}

QString statusText(const QString& stored) {
    return stored == "0" ? "Open" : stored;
}

QString told(const CellValue& value) {
    struct Teller
    {
        QString operator()(std::monostate) const { return "-"; }
        QString operator()(const QString& text) const { return "text " + text; }
        QString operator()(qint64 whole) const { return "whole " + QString::number(whole); }
        QString operator()(double decimal) const { return "decimal " + QString::number(decimal); }
        QString operator()(const QDateTime& date) const {
            return "date " + date.toString("yyyy-MM-dd HH:mm:ss");
        }
        QString operator()(bool ticked) const { return ticked ? "ticked" : "not ticked"; }
    };
    return std::visit(Teller(), value);
}

/// What a visitor is told, as lines of text.
struct Listener : GridVisitor
{
    QStringList lines;

    void begin(const std::vector<VisibleColumn>& columns, int rows) override {
        lines << QString::number(rows) + " rows";
        for (const auto& column : columns) {
            lines.last() += ", " + column.heading;
        }
    }
    void beginRow(int row) override { lines << QString::number(row); }
    void cell(int /*position*/, const GridCell& cell) override {
        lines.last() += ", " + told(cell.value());
    }
};

class EditableGridTest : public testing::Test
{
protected:
    EditableGridTest() {
        grid.setColumns({{"Code"},
                         {.field = "Quantity", .editable = true},
                         {"Price"},
                         {.field = "Booked", .type = CellType::Date},
                         {.field = "Remark", .caption = "Note", .editable = true, .limit = 5},
                         {"Status", {}, statusText},
                         {"Read"},
                         {.field = "Code", .caption = "Hidden", .visible = false}});
        grid.setRows(parts());
        grid.resize(900, 400);
        grid.show();
    }
    QStringList codes() const {
        QStringList shown;
        for (int row = 0; row < grid.rowModel().rowCount(); ++row) {
            shown << grid.rowModel().text(row, 0);
        }
        return shown;
    }

    RowGrid grid;
};

} // namespace

TEST_F(EditableGridTest, AVisitorIsToldWhatIsSeenInItsOrderAndByItsType) {
    grid.horizontalHeader()->moveSection(0, 2);
    grid.setColumnHidden(6, true);
    grid.rowModel().setStored(1, 4, "new");
    grid.sortByColumn(1, Qt::DescendingOrder);
    Listener listener;
    visitGrid(grid, listener);
    EXPECT_EQ(listener.lines.join('\n').toStdString(),
              "4 rows, Quantity, Price, Code, Booked, Note, Status\n"
              "0, whole 100, decimal 0.25, text Bolt, date 2026-02-01 08:30:00, -, text Open\n"
              "1, whole 30, decimal 2.5, text Belt, date 2026-01-31 00:00:00, -, text Open\n"
              "2, whole 4, decimal 10, text axle, text soon, text new, text Open\n"
              "3, -, -, -, -, -, -");
    EXPECT_EQ(told(grid.rowModel().value(0, 6)), "date 2026-03-04 05:06:07");
}

TEST_F(EditableGridTest, EditsLieOverTheRowsAndGoWithNewOnes) {
    auto& model = grid.rowModel();
    model.setStored(0, 1, "3");
    EXPECT_EQ(model.text(0, 1), "3");
    EXPECT_EQ(told(model.value(0, 1)), "whole 3");
    EXPECT_EQ(model.rows().text(0, 1), "30") << "the rows stay as they were fetched";
    grid.sortByColumn(1, Qt::AscendingOrder);
    EXPECT_EQ(codes(), QStringList({"", "Belt", "axle", "Bolt"})) << "an edit sorts as it reads";
    model.setStored(0, 1, "many");
    EXPECT_EQ(told(model.value(model.viewRow(0), 1)), "text many");
    grid.setRows(parts());
    EXPECT_EQ(model.stored(0, 1), "30");
}

TEST_F(EditableGridTest, AFilterLeavesRowsInTheirOrderAndTheUserOnHis) {
    ASSERT_TRUE(grid.locate("Code", "Bolt"));
    grid.sortByColumn(0, Qt::DescendingOrder);
    grid.rowModel().setTextFilter("B");
    EXPECT_EQ(codes(), QStringList({"Bolt", "Belt"}));
    EXPECT_EQ(grid.currentResultRow(), 2U);
    EXPECT_EQ(grid.rowModel().viewRow(1), -1);
    grid.rowModel().setStored(1, 4, "bulb");
    grid.filter("BULB");
    EXPECT_EQ(codes(), QStringList({"axle"})) << "what was typed is found too";
    grid.filter("nowhere");
    EXPECT_EQ(codes(), QStringList());
    EXPECT_EQ(grid.currentResultRow(), std::nullopt);
    grid.filter({});
    EXPECT_EQ(codes().size(), 4);
    EXPECT_TRUE(grid.currentResultRow());
}

TEST_F(EditableGridTest, PrintedPagesHoldEveryRowOnce) {
    sql::RowSetBuilder builder({{"Code", sql::ColumnType::Text}});
    for (int i = 0; i < 300; ++i) {
        builder.addBytes("row " + std::to_string(i));
        builder.endRow();
    }
    RowGrid list;
    list.setColumns({{"Code"}});
    for (const bool withRows : {true, false}) {
        if (withRows) {
            list.setRows(builder.take());
        } else {
            list.filter("none such");
        }
        GridPrinter printer(list);
        printer.leftTitle = QStringList{"Title"};
        printer.rightTitle = QStringList{"Page : [Page #]"};
        QTemporaryDir folder;
        QPrinter paper;
        paper.setOutputFormat(QPrinter::PdfFormat);
        paper.setOutputFileName(folder.filePath("list.pdf"));
        printer.print(paper);
        QProcess reader;
        reader.start("pdftotext", {"-layout", paper.outputFileName(), "-"});
        ASSERT_TRUE(reader.waitForFinished());
        const QString text = reader.readAllStandardOutput();
        for (int i = 0; withRows && i < 300; ++i) {
            EXPECT_EQ(text.count(QRegularExpression(QString("row %1\\b").arg(i))), 1) << i;
        }
        const auto pages = text.count("Title");
        EXPECT_EQ(text.count("Code"), pages) << "each page has title and headings";
        EXPECT_TRUE(text.contains(QString("Page : %1").arg(pages)));
        EXPECT_EQ(pages > 1, withRows);
    }
}

namespace {

class ChecklistGridTest : public testing::Test
{
protected:
    ChecklistGridTest()
        : list({{"Code", "Intake Code"}, {"Description"}, {"Notes"}, 8}) {
        sql::RowSetBuilder builder({{"Code", sql::ColumnType::Text},
                                    {"Description", sql::ColumnType::Text},
                                    {"Notes", sql::ColumnType::Text}});
        const char* const rows[][3] = {
            {"BAG", "Carry bag", ""}, {"BATT", "Battery", "charged"}, {"CORD", "Power cord", ""}};
        for (const auto& row : rows) {
            for (const char* cell : row) {
                builder.addBytes(cell);
            }
            builder.endRow();
        }
        list.setAccessibleName("Intakes");
        list.setRows(builder.take());
        list.resize(700, 300);
        list.show();
        list.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&list));
    }
    QString ticked() {
        QStringList entries;
        for (const auto& [code, note] : list.ticked()) {
            entries << code + "=" + note;
        }
        return entries.join(' ');
    }
    QRect cell(int row, int column) { return list.visualRect(list.model()->index(row, column)); }
    void tap(const QPoint& place) { QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place); }
    void press(Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        QApplication::processEvents();
    }

    ChecklistGrid list;
};

} // namespace

TEST_F(ChecklistGridTest, KeysTickAndTypeTheNotes) {
    list.setFocus();
    press(Qt::Key_Space);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    EXPECT_EQ(ticked(), "BAG= CORD=");
    press(Qt::Key_Space);
    EXPECT_EQ(ticked(), "BAG=");
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_Right);
    }
    press(Qt::Key_Space);
    QTest::keyClicks(QApplication::focusWidget(), "w");
    QTest::keyClicks(QApplication::focusWidget(), "orn plug");
    press(Qt::Key_Return);
    EXPECT_EQ(ticked(), "BAG= CORD=worn plu") << "as long as the column holds";
    press(Qt::Key_Up);
    QTest::keyClicks(QApplication::focusWidget(), "x");
    press(Qt::Key_Escape);
    press(Qt::Key_Space);
    EXPECT_EQ(ticked(), "BAG= BATT=charged CORD=worn plu") << "Esc leaves the note";
    QTest::keyClicks(QApplication::focusWidget(), "low");
    EXPECT_EQ(ticked(), "BAG= BATT=low CORD=worn plu") << "what is being typed counts";
    press(Qt::Key_Left);
    QTest::keyClicks(QApplication::focusWidget(), "z");
    EXPECT_EQ(list.findChild<QLineEdit*>("edCell"), nullptr) << "only the note is typed into";
}

TEST_F(ChecklistGridTest, ATapAnywhereInTheTicksCellTicks) {
    tap(cell(0, 0).topLeft() + QPoint(2, 2));
    tap(cell(2, 0).bottomRight() - QPoint(2, 2));
    EXPECT_EQ(ticked(), "BAG= CORD=");
    tap(cell(0, 0).center());
    tap(cell(1, 1).center());
    EXPECT_EQ(ticked(), "CORD=") << "the other cells do not tick";
    tap(cell(1, 3).center());
    QTest::qWait(QApplication::doubleClickInterval() + 10);
    EXPECT_NE(list.findChild<QLineEdit*>("edCell"), nullptr) << "a second tap opens the note";
}

TEST_F(ChecklistGridTest, StoredCodesTickTheirFirstRowInAnyCase) {
    EXPECT_TRUE(list.tick("cord"));
    EXPECT_FALSE(list.tick("GONE"));
    EXPECT_EQ(ticked(), "CORD=");
}

TEST_F(ChecklistGridTest, RowsAreAFingerHighAndATickIsSeenWithoutItsColour) {
    for (int column : {0, 1, 3}) {
        EXPECT_GE(cell(0, column).height(), touchHeight);
        EXPECT_GE(cell(0, column).width(), touchHeight);
    }
    const auto ink = [this] {
        const QImage seen = list.viewport()
                                ->grab(cell(1, 0).adjusted(2, 2, -2, -2))
                                .toImage()
                                .convertToFormat(QImage::Format_Grayscale8);
        int dark = 0;
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                dark += qGray(seen.pixel(x, y)) < 100 ? 1 : 0;
            }
        }
        return dark;
    };
    const int before = ink();
    list.tick("BATT");
    EXPECT_GT(ink(), before + 40);
    keepPicture(list, "checklist");
}

TEST_F(ChecklistGridTest, AScreenReaderHearsWhatIsTickedAndWhatCanBeTyped) {
    list.tick("BATT");
    auto* table = QAccessible::queryAccessibleInterface(&list)->tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->cellAt(1, 0)->text(QAccessible::Name), "BATT ticked");
    EXPECT_EQ(table->cellAt(0, 0)->text(QAccessible::Name), "BAG not ticked");
    EXPECT_EQ(table->cellAt(1, 2)->text(QAccessible::Name), "Battery");
    EXPECT_TRUE(table->cellAt(1, 0)->state().checked);
    EXPECT_TRUE(table->cellAt(1, 3)->state().editable);
    EXPECT_FALSE(table->cellAt(1, 1)->state().editable);
    EXPECT_EQ(namelessControls(list), QStringList());
}

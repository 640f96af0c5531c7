// Rows that are edited and filtered in memory, and what a visitor is told of them.
#include "ui/GridVisitor.h"
#include "ui/RowGrid.h"

#include <QHeaderView>
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
    bool beginRow(int row) override {
        lines << QString::number(row);
        return true;
    }
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

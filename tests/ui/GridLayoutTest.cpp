#include "ui/GridLayout.h"

#include "ui/RowGrid.h"

#include <QHeaderView>
#include <gtest/gtest.h>

using namespace velcro;

namespace {

class GridLayoutTest : public testing::Test
{
protected:
    GridLayoutTest() { setUp(grid); }

    static void setUp(ui::RowGrid& it) {
        it.setColumns(
            {{"OrderNo", "Order"}, {"Name"}, {"Cost"}, {.field = "Notes", .visible = false}});
        sql::RowSetBuilder builder({{"OrderNo", sql::ColumnType::Integer},
                                    {"Name", sql::ColumnType::Text},
                                    {"Cost", sql::ColumnType::Float},
                                    {"Notes", sql::ColumnType::Text}});
        it.setRows(builder.take());
    }

    /// "Name Cost -Notes OrderNo": in view order, hidden ones with a dash.
    static std::string order(const ui::RowGrid& it) {
        QStringList names;
        for (const auto& column : ui::gridColumnOrder(it)) {
            names += (column.shown ? "" : "-") + it.rowModel().columns()[column.index].field;
        }
        return names.join(' ').toStdString();
    }

    ui::RowGrid grid;
};

TEST_F(GridLayoutTest, ComesBackAsItWasKept) {
    ui::arrangeGrid(grid, {{2, true}, {0, false}, {3, true}, {1, true}});
    grid.setWidthOf(1, 333);
    grid.sortByColumn(1, Qt::DescendingOrder);
    ui::RowGrid another;
    setUp(another);
    ASSERT_TRUE(ui::restoreGridLayout(another, ui::gridLayoutText(grid)));
    EXPECT_EQ(order(another), "Cost -OrderNo Notes Name");
    EXPECT_EQ(another.columnWidth(1), 333);
    another.resize(900, 300);
    another.show();
    EXPECT_EQ(another.columnWidth(1), 333) << "the first show leaves it alone";
    EXPECT_EQ(another.horizontalHeader()->sortIndicatorSection(), 1);
    EXPECT_EQ(another.horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST_F(GridLayoutTest, ATextThatDoesNotFitIsTakenAsFarAsItDoes) {
    const QString asDeclared = "OrderNo Name Cost -Notes";
    const QString begin = "[Grid]\nVersion=1\n";
    const struct
    {
        const char* what;
        QString text;
        bool taken;
        QString order;
    } texts[] = {
        {"nothing", "", false, asDeclared},
        {"rubbish", QString("Column.Name=hidden,1\n").repeated(50000), false, asDeclared},
        {"another program's", "[Grid]\nWidth=3\n", false, asDeclared},
        {"a version to come", "[Grid]\nVersion=2\nColumn.Name=hidden,80\n", false, asDeclared},
        {"a column that is gone, and new ones",
         begin + "Column.Gone=shown,80\nColumn.Cost=shown,80\n", true, "Cost OrderNo Name -Notes"},
        {"a column told twice", begin + "Column.Cost=shown,80\nColumn.cost=hidden,9\n", true,
         "Cost OrderNo Name -Notes"},
        {"lines cut and mangled",
         begin +
             "Column.Name\nColumn.=\nColumn.Cost=hidden,wide\nSort=\nSort\nColumn.Notes=shown,99",
         true, "Notes OrderNo Name Cost"},
        {"lines of another system", "[Grid]\r\nVersion=1\r\nColumn.Cost=hidden,80\r\n", true,
         "-Cost OrderNo Name -Notes"},
        {"nothing shown",
         begin + "Column.OrderNo=hidden,1\nColumn.Name=hidden,1\nColumn.Cost=hidden,1\n", true,
         "-OrderNo -Name -Cost -Notes"},
        {"widths beyond reason", begin + "Column.Name=shown,-5\nColumn.OrderNo=shown,99999999\n",
         true, "Name OrderNo Cost -Notes"},
    };
    for (const auto& [what, text, taken, expected] : texts) {
        ui::RowGrid it;
        setUp(it);
        EXPECT_EQ(ui::restoreGridLayout(it, text), taken) << what;
        EXPECT_EQ(order(it), expected.toStdString()) << what;
        for (const auto& column : ui::gridColumnOrder(it)) {
            const int width = it.columnWidth(column.index);
            EXPECT_TRUE(!column.shown || (width >= 20 && width <= 2000)) << what << ' ' << width;
        }
    }
}

} // namespace

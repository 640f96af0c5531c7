#include "ui/RowGrid.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

using namespace velcro;

namespace {

struct Row
{
    const char* name;
    const char* status;
    int items;
};

sql::RowSet orders(const std::vector<Row>& rows) {
    sql::RowSetBuilder builder({{"Name", sql::ColumnType::Text},
                                {"Status", sql::ColumnType::Text},
                                {"Items", sql::ColumnType::Integer}});
    for (const auto& row : rows) {
        builder.addBytes(row.name);
        builder.addBytes(row.status);
        builder.addInteger(row.items);
        builder.endRow();
    }
    return builder.take();
}

QString statusText(const QString& stored) {
    return stored == "0" ? "Open" : stored;
}

QStringList shown(const ui::RowGrid& grid, int column) {
    QStringList texts;
    for (int row = 0; row < grid.model()->rowCount(); ++row) {
        texts << grid.model()->index(row, column).data().toString();
    }
    return texts;
}

class RowGridTest : public testing::Test
{
protected:
    RowGridTest() {
        grid.setColumns({{"Name", "Customer"},
                         {"Status", {}, statusText},
                         {"Items"},
                         {"Gone", "Not fetched"},
                         {.field = "Name", .caption = "Hidden copy", .visible = false}});
        grid.setRows(
            orders({{"müller", "0", 9}, {"Adams", "X", 10}, {"Zed", "0", 100}, {"adams", "0", 2}}));
        grid.resize(700, 300);
        grid.show();
    }

    void clickHeading(int column) {
        auto* header = grid.horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          {header->sectionViewportPosition(column) + 10, header->height() / 2});
    }

    ui::RowGrid grid;
};

TEST_F(RowGridTest, ShowsCaptionsDisplayTextsAndBlanksForWhatTheResultLacks) {
    const auto heading = [this](int column) {
        return grid.model()->headerData(column, Qt::Horizontal).toString();
    };
    EXPECT_EQ(heading(0), "Customer");
    EXPECT_EQ(heading(1), "Status");
    EXPECT_EQ(shown(grid, 1), QStringList({"Open", "X", "Open", "Open"}));
    EXPECT_EQ(shown(grid, 3), QStringList({"", "", "", ""}));
    EXPECT_TRUE(grid.isColumnHidden(4));
    EXPECT_FALSE(grid.isColumnHidden(0));
}

TEST_F(RowGridTest, ManyRowsFillTheWidthBesideTheirScrollBar) {
    const std::vector<Row> many(200, {"Adams", "0", 1});
    const auto fills = [](ui::RowGrid& filled) {
        QApplication::processEvents();
        EXPECT_TRUE(filled.verticalScrollBar()->isVisible());
        EXPECT_EQ(filled.horizontalScrollBar()->maximum(), 0) << "nothing is left to scroll to";
        EXPECT_EQ(filled.horizontalHeader()->length(), filled.viewport()->width());
    };
    for (const bool rowsFirst : {true, false}) {
        SCOPED_TRACE(rowsFirst ? "rows, then shown" : "shown, then rows");
        ui::RowGrid filled;
        filled.setColumns({{"Name"}, {"Status"}, {"Items"}});
        filled.resize(700, 300);
        if (rowsFirst) {
            filled.setRows(orders(many));
        }
        filled.show();
        if (!rowsFirst) {
            filled.setRows(orders(many));
        }
        fills(filled);
    }
}

TEST_F(RowGridTest, LongTextsGiveWaySoThatTheNamesAreSeenAndShortOnesStayWhole) {
    const QString name = QString("name ").repeated(8);
    const auto right = [](const ui::RowGrid& narrow, int column) {
        return narrow.columnViewportPosition(column) + narrow.columnWidth(column);
    };
    const struct
    { int width, inSight; } rooms[] = {{440, 4}, {670, 5}, {1100, 6}};
    for (const auto& [width, inSight] : rooms) {
        SCOPED_TRACE(width);
        ui::RowGrid narrow;
        narrow.setColumns({{"Status", "A Long Heading"},
                           {"Items"},
                           {"Status"},
                           {"Name"},
                           {"Name", "Again"},
                           {"Name", "Once More"}});
        narrow.setRows(orders({{name.toUtf8().constData(), "0821234567", 123456}}));
        narrow.resize(width, 300);
        narrow.show();
        const int room = narrow.viewport()->width();
        EXPECT_LE(right(narrow, inSight - 1), room);
        EXPECT_GE(right(narrow, inSight - 1), room - 1) << "and no room is left over";
        for (const int whole : {0, 1, 2}) {
            EXPECT_GE(narrow.columnWidth(whole),
                      narrow.fontMetrics().horizontalAdvance(shown(narrow, whole).value(0)));
        }
    }
    ui::RowGrid changed;
    changed.setColumns({{"Name"}, {"Items"}});
    changed.setRows(orders({{"Adams", "0", 1}}));
    changed.resize(400, 300);
    changed.show();
    changed.resize(500, 300);
    EXPECT_EQ(right(changed, 1), changed.viewport()->width()) << "widths follow the room";
    changed.horizontalHeader()->resizeSection(0, 111);
    changed.resize(600, 300);
    EXPECT_EQ(changed.columnWidth(0), 111) << "but not one that the user gave";
}

TEST_F(RowGridTest, HeadingClickSortsTextWithoutCaseAndNumbersAsNumbers) {
    clickHeading(0);
    EXPECT_EQ(shown(grid, 0), QStringList({"Adams", "adams", "müller", "Zed"}));
    clickHeading(0);
    EXPECT_EQ(shown(grid, 0), QStringList({"Zed", "müller", "Adams", "adams"}));
    clickHeading(0);
    EXPECT_EQ(shown(grid, 0), QStringList({"müller", "Adams", "Zed", "adams"}))
        << "a third click brings the server's order back";
    clickHeading(2);
    EXPECT_EQ(shown(grid, 2), QStringList({"2", "9", "10", "100"}));
}

TEST_F(RowGridTest, TheRecordStaysTheSameWhenTheGridIsSortedAndReadAgain) {
    ASSERT_TRUE(grid.locate("Name", "Zed"));
    clickHeading(2);
    EXPECT_EQ(grid.currentResultRow(), 2U);
    EXPECT_EQ(grid.currentIndex().row(), 3);
    grid.setRows(orders({{"Zed", "0", 1}, {"Bea", "0", 0}}));
    EXPECT_EQ(shown(grid, 2), QStringList({"0", "1"})) << "the user's sorting is kept";
    EXPECT_EQ(grid.currentResultRow(), 1U) << "new rows start at the top of the view";
    EXPECT_FALSE(grid.locate("Name", "nobody"));
    EXPECT_FALSE(grid.locate("No such field", "Zed"));
}

TEST_F(RowGridTest, KeysMoveByRecordAndEnterChooses) {
    int chosen = 0;
    QObject::connect(&grid, &ui::RowGrid::rowChosen, &grid, [&chosen] { ++chosen; });
    const struct
    {
        Qt::Key key;
        std::size_t record;
    } steps[] = {{Qt::Key_Down, 1}, {Qt::Key_End, 3},  {Qt::Key_Down, 3},
                 {Qt::Key_Up, 2},   {Qt::Key_Home, 0}, {Qt::Key_Return, 0}};
    for (const auto& step : steps) {
        QTest::keyClick(&grid, step.key);
        EXPECT_EQ(grid.currentResultRow(), step.record) << "after key " << step.key;
    }
    EXPECT_EQ(chosen, 1);
}

TEST_F(RowGridTest, AnEmptyGridHasNoRecordAndTakesEveryKey) {
    grid.setRows(orders({}));
    EXPECT_EQ(grid.currentResultRow(), std::nullopt);
    for (const auto key : {Qt::Key_Down, Qt::Key_End, Qt::Key_Home, Qt::Key_PageDown}) {
        QTest::keyClick(&grid, key);
    }
    clickHeading(0);
    EXPECT_EQ(grid.currentResultRow(), std::nullopt);
    EXPECT_FALSE(grid.locate("Name", "Zed"));
}

} // namespace

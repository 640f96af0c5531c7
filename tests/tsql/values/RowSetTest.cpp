#include "tsql/values/RowSet.h"

#include <gtest/gtest.h>

#include <limits>

using namespace velcro::sql;

namespace {

RowSet sample() {
    RowSetBuilder builder(
        {{"Name", ColumnType::Text}, {"Count", ColumnType::Integer}, {"Price", ColumnType::Float}});
    builder.addBytes("Grüße");
    builder.addInteger(-42);
    builder.addFloat(19.99);
    builder.endRow();
    builder.addNull();
    builder.addNull();
    builder.addFloat(1e300);
    builder.endRow();
    return builder.take();
}

} // namespace

TEST(RowSetTest, cellsComeBackAsTheyWentIn) {
    const RowSet rows = sample();
    ASSERT_EQ(rows.rowCount(), 2U);
    EXPECT_EQ(rows.bytes(0, 0), "Grüße");
    EXPECT_EQ(rows.integer(0, 1), -42);
    EXPECT_EQ(rows.text(0, 1), "-42");
    EXPECT_EQ(rows.text(0, 2), "19.99");
    EXPECT_DOUBLE_EQ(rows.number(1, 2), 1e300);
    EXPECT_EQ(rows.integer(1, 2), std::numeric_limits<std::int64_t>::max());
    EXPECT_FALSE(rows.isNull(0, 0));
    EXPECT_TRUE(rows.isNull(1, 0));
    EXPECT_EQ(rows.integer(1, 1), 0);
    EXPECT_EQ(rows.text(1, 1), "");
}

TEST(RowSetTest, columnsAreFoundInAnyCase) {
    const RowSet rows = sample();
    EXPECT_EQ(rows.columnIndex("pRICE"), 2U);
    EXPECT_FALSE(rows.columnIndex("Prices"));
    EXPECT_FALSE(RowSet().columnIndex("Name"));
}

TEST(RowSetTest, rowsOutliveTheirBlocksAndLongCellsFit) {
    RowSetBuilder builder({{"T", ColumnType::Text}});
    const std::string huge(3 << 20, 'x');
    for (int i = 0; i < 50'000; ++i) {
        builder.addBytes(i == 25'000 ? huge : std::to_string(i));
        builder.endRow();
    }
    RowSet rows = builder.take();
    const RowSet copy = rows;
    rows = RowSet();
    EXPECT_EQ(copy.text(0, 0), "0");
    EXPECT_EQ(copy.bytes(25'000, 0).size(), huge.size());
    EXPECT_EQ(copy.text(49'999, 0), "49999");
    EXPECT_EQ(copy.integer(49'999, 0), 49'999);
}

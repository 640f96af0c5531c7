// A workbook is read back by another program's library.
#include "ui/GridWorkbook.h"

#include "support/Canceller.h"
#include "support/FullDisk.h"
#include "support/TempFolder.h"
#include "ui/GridLayout.h"
#include "ui/RowGrid.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <filesystem>
#include <gtest/gtest.h>

using namespace velcro;

namespace {

class GridWorkbookTest : public testing::Test
{
protected:
    void fill(int rows) {
        grid.setColumns({{"No"}, {"Phone", "Tele phone"}, {"Price"}, {"Day"}, {"Gone"}, {"Note"}});
        sql::RowSetBuilder builder({{"No", sql::ColumnType::Integer},
                                    {"Phone", sql::ColumnType::Text},
                                    {"Price", sql::ColumnType::Decimal},
                                    {"Day", sql::ColumnType::DateTime},
                                    {"Gone", sql::ColumnType::Text},
                                    {"Note", sql::ColumnType::Text}});
        for (int row = 0; row < rows; ++row) {
            builder.addInteger(row - 1);
            builder.addBytes("0115550" + std::to_string(row));
            builder.addBytes(row == 1 ? "1234567890123456.78" : "-12.50");
            builder.addBytes(row == 1   ? "2026-11-23 08:15:30"
                             : row == 2 ? "1899-12-30 00:00:00"
                                        : "2026-02-28 00:00:00");
            builder.addBytes("unseen");
            row == 3 ? builder.addNull()
                     : builder.addBytes("=1+1 & <b> \xC4\x8C\xD0\x94\xCE\xA9 'x' \"y\"");
            builder.endRow();
        }
        grid.setRows(builder.take());
        ui::arrangeGrid(grid, {{1, true}, {0, true}, {2, true}, {3, true}, {4, false}, {5, true}});
    }

    /// Rows of cells as another program reads them, its heading first: [type, text].
    QJsonArray readBack() const {
        QProcess reader;
        reader.start("/usr/bin/python3", {"-c", R"(
import json, openpyxl, sys
sheet = openpyxl.load_workbook(sys.argv[1]).active
print(json.dumps([[[c.data_type, str(c.value), c.number_format, bool(c.font.b)] for c in row]
                  for row in sheet.iter_rows()]
                 + [[sheet.title, sheet.freeze_panes, sheet.auto_filter.ref]])))",
                                          file});
        EXPECT_TRUE(reader.waitForFinished());
        const auto errors = reader.readAllStandardError();
        EXPECT_TRUE(errors.isEmpty()) << errors.toStdString();
        return QJsonDocument::fromJson(reader.readAllStandardOutput()).array();
    }

    static std::string textOf(const QJsonValue& row) {
        return QJsonDocument(row.toArray()).toJson(QJsonDocument::Compact).toStdString();
    }

    test::TempFolder folder;
    QString file = QString::fromStdString(folder.file("grid.xlsx"));
    ui::RowGrid grid;
};

TEST_F(GridWorkbookTest, NumbersAndDatesAreSuchAndTextStaysText) {
    fill(4);
    ASSERT_TRUE(ui::writeWorkbook(grid, "CRO100: [all] / every one of the orders", file));
    const auto rows = readBack();
    ASSERT_EQ(rows.size(), 6);
    const char* note = R"(["s","=1+1 & <b> ČДΩ 'x' \"y\"","General",false])";
    const std::string expected[] = {
        R"([["s","Tele phone","General",true],["s","No","General",true],["s","Price","General",true],)"
        R"(["s","Day","General",true],["s","Note","General",true]])",
        R"([["s","01155500","General",false],["n","-1","General",false],["n","-12.5","General",false],)"
        R"(["d","2026-02-28 00:00:00","yyyy/mm/dd",false],)" +
            std::string(note) + "]",
        R"([["s","01155501","General",false],["n","0","General",false],)"
        R"(["s","1234567890123456.78","General",false],)"
        R"(["d","2026-11-23 08:15:30","yyyy/mm/dd hh:mm:ss",false],)" +
            std::string(note) + "]",
        R"([["s","01155502","General",false],["n","1","General",false],["n","-12.5","General",false],)"
        R"(["s","1899-12-30 00:00:00","General",false],)" +
            std::string(note) + "]",
        R"([["s","01155503","General",false],["n","2","General",false],["n","-12.5","General",false],)"
        R"(["d","2026-02-28 00:00:00","yyyy/mm/dd",false],["n","None","General",false]])",
        R"(["CRO100 all  every one of the or","A2","A1:E5"])",
    };
    for (int row = 0; row < rows.size(); ++row) {
        EXPECT_EQ(textOf(rows[row]), expected[row]);
    }
}

TEST_F(GridWorkbookTest, AGridWithoutRowsIsAHeading) {
    fill(0);
    ASSERT_TRUE(ui::writeWorkbook(grid, "Empty", file));
    EXPECT_EQ(readBack().size(), 2);
}

TEST_F(GridWorkbookTest, AFolderThatIsMissingOrFullSaysSoAndKeepsNothing) {
    fill(4000);
    const QString missing = QString::fromStdString(folder.file("gone/grid.xlsx"));
    EXPECT_THROW(ui::writeWorkbook(grid, "Lost", missing), ui::WorkbookError);
    {
        const test::FullDisk full(4096);
        EXPECT_THROW(ui::writeWorkbook(grid, "Full", file), ui::WorkbookError);
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

// The form of the progress comes up after half a second only, so the work must be longer than that.
TEST_F(GridWorkbookTest, ACancelledOneKeepsNothing) {
    fill(100000);
    const test::Canceller canceller;
    EXPECT_FALSE(ui::writeWorkbook(grid, "Cancelled", file));
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

} // namespace

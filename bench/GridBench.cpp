// A large grid taken into a workbook, against the same cells handed to the library by hand; and the
// list of an item with many photographs, against reading the same bytes.
#include "Memory.h"
#include "RawTable.h"
#include "Stopwatch.h"

#include "platform/camera/Bitmap.h"
#include "repairs/CRO103.h"
#include "support/Desk.h"
#include "support/TempFolder.h"
#include "ui/GridWorkbook.h"
#include "ui/RowGrid.h"
#include "ui/Theme.h"

#include <QApplication>

#include <stdexcept>

#include <xlsxwriter.h>

namespace {

constexpr int columns = 20;

/// Half of the columns are text, a quarter each numbers and dates.
velcro::sql::RowSet cells(int rows) {
    using velcro::sql::ColumnType;
    std::vector<velcro::sql::Column> heads;
    for (int column = 0; column < columns; ++column) {
        heads.push_back({"C" + std::to_string(column), column % 4 == 1   ? ColumnType::Float
                                                       : column % 4 == 3 ? ColumnType::DateTime
                                                                         : ColumnType::Text});
    }
    velcro::sql::RowSetBuilder builder(heads);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            if (column % 4 == 1) {
                builder.addFloat(row * 1.25 + column);
            } else if (column % 4 == 3) {
                builder.addBytes("2026-11-23 00:00:00");
            } else {
                builder.addBytes("text " + std::to_string(row * columns + column));
            }
        }
        builder.endRow();
    }
    return builder.take();
}

void writeByHand(int rows, const std::string& file) {
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    auto* book = workbook_new_opt(file.c_str(), &options);
    auto* sheet = workbook_add_worksheet(book, nullptr);
    auto* day = workbook_add_format(book);
    format_set_num_format(day, "yyyy/mm/dd");
    lxw_datetime date{2026, 11, 23, 0, 0, 0};
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const auto at = static_cast<lxw_row_t>(row + 1);
            const auto to = static_cast<lxw_col_t>(column);
            if (column % 4 == 1) {
                worksheet_write_number(sheet, at, to, row * 1.25 + column, nullptr);
            } else if (column % 4 == 3) {
                worksheet_write_datetime(sheet, at, to, &date, day);
            } else {
                worksheet_write_string(sheet, at, to,
                                       ("text " + std::to_string(row * columns + column)).c_str(),
                                       nullptr);
            }
        }
    }
    workbook_close(book);
}

void benchExport(const velcro::test::Desk& desk, int rows) {
    velcro::ui::RowGrid grid;
    std::vector<velcro::ui::GridColumn> shown;
    for (int column = 0; column < columns; ++column) {
        shown.push_back({QStringLiteral("C%1").arg(column)});
    }
    grid.setColumns(std::move(shown));
    grid.setRows(cells(rows));
    const QString file = desk.workingFolder() + QStringLiteral("grid.xlsx");
    const std::string byHand = file.toStdString() + ".raw.xlsx";
    bench::Rounds ours, theirs;
    double grown = 0;
    for (int round = 0; round < 3; ++round) {
        theirs.run([&] { writeByHand(rows, byHand); });
        const double before = bench::residentMB();
        ours.run([&] { velcro::ui::writeWorkbook(grid, QStringLiteral("Bench"), file); });
        grown = std::max(grown, bench::residentMB() - before);
    }
    bench::print("export of 100,000 x 20 cells", ours, theirs, 1.3);
    std::printf("memory added by an export: %.1f MB (aim 50)\n", grown);
}

void benchPictures(const velcro::test::Desk& desk, int pictures) {
    QImage picture(1000, 700, QImage::Format_RGB32); // 2 MB as a bitmap
    picture.fill(Qt::darkCyan);
    const QString hex = QString::fromLatin1(velcro::camera::bitmapBytes(picture).toHex());
    for (int number = 1; number <= pictures; ++number) {
        velcro::test::Desk::onSuite(
            QStringLiteral(
                "INSERT INTO CRORepItmImages ([CO], [Branch], [CRONo], [ItemNo], "
                "[ImageID], [ImageData]) VALUES ('01', '100', '900009', '1', '%1', 0x%2)")
                .arg(number)
                .arg(hex));
    }
    const velcro::test::TempFolder folder;
    bench::RawDatabase raw(folder.file("raw.sqlite"));
    raw.copyTable((desk.databases() + "/VELSUITE.sqlite").toStdString(), "CRORepItmImages");
    const auto reading = raw.prepare("SELECT * FROM CRORepItmImages WHERE CRONo = '900009'");
    bench::Rounds ours, theirs;
    double after = 0;
    const double before = bench::residentMB();
    for (int round = 0; round < 5; ++round) {
        theirs.run([&] {
            sqlite3_reset(reading.get());
            if (bench::stepOver(reading.get()) != pictures) {
                throw std::runtime_error("the pictures are not there");
            }
        });
        ours.run([&] {
            TfrmCRO103 form({"900009", "1"}, {}, {});
            form.show();
            form.reject();
        });
        malloc_trim(0);
        after = bench::residentMB();
    }
    bench::print("list of 50 pictures of 2 MB", ours, theirs, 1.25);
    std::printf("memory before %.0f MB, after closing %.0f MB\n", before, after);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    const velcro::test::Desk desk;
    bench::printHead();
    benchExport(desk, 100'000);
    benchPictures(desk, 50);
    return 0;
}

// A grid on paper, read back from the file that it is printed to.
#include "ui/GridPrinter.h"

#include "support/Canceller.h"
#include "ui/RowGrid.h"

#include <QFileInfo>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace velcro;
using ui::GridPrinter;
using ui::RowGrid;

namespace {

class GridPrinterTest : public testing::Test
{
protected:
    /// The text of the pages, laid out as on paper.
    QString printed() {
        GridPrinter printer(grid);
        printer.leftTitle = QStringList{"Title"};
        printer.rightTitle = QStringList{"Page : [Page #]"};
        printer.titleFont.setPointSize(8);
        QTemporaryDir folder;
        QPrinter paper(QPrinter::HighResolution);
        paper.setOutputFormat(QPrinter::PdfFormat);
        paper.setOutputFileName(folder.filePath("list.pdf"));
        printer.print(paper);
        orientation = paper.pageLayout().orientation();
        QProcess reader;
        reader.start("pdftotext", {"-layout", paper.outputFileName(), "-"});
        EXPECT_TRUE(reader.waitForFinished());
        return reader.readAllStandardOutput();
    }

    RowGrid grid;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
};

} // namespace

TEST_F(GridPrinterTest, PagesHoldEveryRowOnce) {
    sql::RowSetBuilder builder({{"Code", sql::ColumnType::Text}});
    for (int i = 0; i < 300; ++i) {
        builder.addBytes("row " + std::to_string(i));
        builder.endRow();
    }
    grid.setColumns({{"Code"}});
    for (const bool withRows : {true, false}) {
        if (withRows) {
            grid.setRows(builder.take());
        } else {
            grid.filter("none such");
        }
        const QString text = printed();
        for (int i = 0; withRows && i < 300; ++i) {
            EXPECT_EQ(text.count(QRegularExpression(QString("row %1\\b").arg(i))), 1) << i;
        }
        const auto pages = text.count("Title");
        EXPECT_EQ(text.count("Code"), pages) << "each page has title and headings";
        EXPECT_TRUE(text.contains(QString("Page : %1").arg(pages)));
        EXPECT_EQ(pages > 1, withRows);
        EXPECT_EQ(orientation, QPageLayout::Portrait) << "one narrow column needs no more";
    }
}

// What is short is whole, however long its neighbours are: those go on below, and end in dots last.
TEST_F(GridPrinterTest, LongTextsGiveWayToDatesNumbersAndShortTexts) {
    grid.setColumns({{"OrderNo"}, {"Name"}, {"Day"}, {"Amount"}, {"Mail"}, {"Note"}});
    sql::RowSetBuilder builder({{"OrderNo", sql::ColumnType::Text},
                                {"Name", sql::ColumnType::Text},
                                {"Day", sql::ColumnType::DateTime},
                                {"Amount", sql::ColumnType::Decimal},
                                {"Mail", sql::ColumnType::Text},
                                {"Note", sql::ColumnType::Text}});
    for (int i = 0; i < 40; ++i) {
        builder.addBytes("100" + std::to_string(100 + i));
        builder.addBytes(i == 3 ? "Wilhelmina Featherstonehaugh van der Merwe and Daughters"
                                : "Short");
        builder.addBytes("2026-11-23 08:15:30");
        builder.addBytes("1234567890.55");
        builder.addBytes("someone@a-domain.example");
        builder.addBytes(i == 5 ? std::string(400, 'x') : "none");
        builder.endRow();
    }
    grid.setRows(builder.take());
    grid.resize(300, 300); // on the screen nothing of it is seen whole
    grid.show();
    const QString text = printed();
    EXPECT_EQ(orientation, QPageLayout::Landscape);
    for (int i = 0; i < 40; ++i) {
        EXPECT_EQ(text.count(QString("100%1").arg(100 + i)), 1) << i;
    }
    EXPECT_EQ(text.count("2026-11-23 08:15:30"), 40);
    EXPECT_EQ(text.count("1234567890.55"), 40);
    EXPECT_EQ(text.count("someone@a-domain.example"), 40);
    const QStringList lines = text.split('\n');
    for (const char* word : {"Wilhelmina", "Featherstonehaugh", "Merwe", "Daughters"}) {
        EXPECT_TRUE(text.contains(word)) << word;
    }
    EXPECT_FALSE(lines.filter("Wilhelmina").join(' ').contains("Daughters")) << "in two lines";
    EXPECT_EQ(text.count(QChar(0x2026)), 1) << "only the text of 400 letters ends in dots";
}

TEST_F(GridPrinterTest, ACancelledOneLeavesNoFile) {
    grid.setColumns({{"Code"}});
    sql::RowSetBuilder builder({{"Code", sql::ColumnType::Text}});
    for (int i = 0; i < 100'000; ++i) {
        builder.addBytes("row " + std::to_string(i));
        builder.endRow();
    }
    grid.setRows(builder.take());
    QTemporaryDir folder;
    QPrinter paper;
    paper.setOutputFormat(QPrinter::PdfFormat);
    paper.setOutputFileName(folder.filePath("list.pdf"));
    const test::Canceller canceller;
    GridPrinter(grid).print(paper);
    EXPECT_FALSE(QFileInfo::exists(paper.outputFileName()));
}

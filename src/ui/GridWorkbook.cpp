#include "ui/GridWorkbook.h"

#include "ui/GridVisitor.h"
#include "ui/Progress.h"
#include "ui/RowGrid.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <cmath>
#include <memory>
#include <xlsxwriter.h>

using namespace Qt::Literals::StringLiterals;

namespace velcro::ui {

namespace {

constexpr int mostRows = 1048575; // of a sheet, below its heading
constexpr int mostLetters = 32767;
constexpr double exactWhole = 999999999999999; // a cell keeps 15 digits; more are written as text
constexpr double pixelsOfLetter = 7;           // at the width a workbook measures in
constexpr int stepRows = 200;
const QDate firstDate(1900, 3, 1); // the format's own calendar has a day too many before it

struct FreeWorkbook
{
    void operator()(lxw_workbook* book) const { lxw_workbook_free(book); }
};

std::string sheetNameOf(const QString& name) {
    QString allowed = name;
    for (const QChar c : u"[]:*?/\\"_s) {
        allowed.remove(c);
    }
    return allowed.left(31).toStdString();
}

class Sheet : public GridVisitor
{
public:
    Sheet(const QString& sheetName, const QString& path)
        : path_(QFile::encodeName(path).toStdString())
        , folder_(QFile::encodeName(QFileInfo(path).path()).toStdString()) {
        // Rows go to a file beside the workbook as they come, so that memory stays as it is.
        lxw_workbook_options options{};
        options.constant_memory = LXW_TRUE;
        options.tmpdir = folder_.data();
        book_.reset(workbook_new_opt(path_.c_str(), &options));
        sheet_ =
            book_ ? workbook_add_worksheet(book_.get(), sheetNameOf(sheetName).c_str()) : nullptr;
        if (sheet_ == nullptr) {
            throw WorkbookError("the file could not be begun");
        }
        bold_ = workbook_add_format(book_.get());
        format_set_bold(bold_);
        day_ = workbook_add_format(book_.get());
        format_set_num_format(day_, "yyyy/mm/dd");
        moment_ = workbook_add_format(book_.get());
        format_set_num_format(moment_, "yyyy/mm/dd hh:mm:ss");
    }

    void begin(const std::vector<VisibleColumn>& columns, int rows) override {
        if (rows > mostRows) {
            throw WorkbookError("the grid has more rows than a sheet holds");
        }
        progress_ = std::make_unique<Progress>(u"Export to Excel"_s, rows);
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const auto at = static_cast<lxw_col_t>(i);
            // In this mode the heading's row is written first and never again.
            require(
                worksheet_set_column(sheet_, at, at, columns[i].width / pixelsOfLetter, nullptr));
            require(worksheet_write_string(sheet_, 0, at, columns[i].heading.toUtf8().constData(),
                                           bold_));
        }
        worksheet_freeze_panes(sheet_, 1, 0);
        if (!columns.empty() && rows > 0) {
            require(worksheet_autofilter(sheet_, 0, 0, static_cast<lxw_row_t>(rows),
                                         static_cast<lxw_col_t>(columns.size() - 1)));
        }
    }

    bool beginRow(int row) override {
        row_ = static_cast<lxw_row_t>(row) + 1;
        return row % stepRows != 0 || progress_->step(row);
    }

    void cell(int position, const GridCell& cell) override {
        const auto column = static_cast<lxw_col_t>(position);
        std::visit([&](const auto& value) { write(column, cell, value); }, cell.value());
    }

    void close() {
        const auto error = workbook_close(book_.release());
        require(error);
    }
    bool isCancelled() const { return progress_ && progress_->isCancelled(); }

private:
    static void require(lxw_error error) {
        if (error != LXW_NO_ERROR) {
            throw WorkbookError(lxw_strerror(error));
        }
    }

    void write(lxw_col_t /*column*/, const GridCell& /*cell*/, std::monostate) {}
    void write(lxw_col_t column, const GridCell& /*cell*/, const QString& text) {
        const QString kept =
            text.size() <= mostLetters ? text : text.left(mostLetters - 1) + QChar(0x2026);
        require(worksheet_write_string(sheet_, row_, column, kept.toUtf8().constData(), nullptr));
    }
    void write(lxw_col_t column, const GridCell& cell, qint64 number) {
        writeNumber(column, cell, static_cast<double>(number));
    }
    void write(lxw_col_t column, const GridCell& cell, double number) {
        writeNumber(column, cell, number);
    }
    void write(lxw_col_t column, const GridCell& cell, bool /*ticked*/) {
        write(column, cell, cell.text());
    }
    void write(lxw_col_t column, const GridCell& cell, const QDateTime& when) {
        const QDate date = when.date();
        const QTime time = when.time();
        if (date < firstDate) {
            write(column, cell, cell.text());
            return;
        }
        lxw_datetime moment{date.year(), date.month(),  date.day(),
                            time.hour(), time.minute(), time.second() + time.msec() / 1000.0};
        const bool hasTime = time != QTime(0, 0);
        require(worksheet_write_datetime(sheet_, row_, column, &moment, hasTime ? moment_ : day_));
    }
    void writeNumber(lxw_col_t column, const GridCell& cell, double number) {
        if (!std::isfinite(number) || std::abs(number) > exactWhole) {
            write(column, cell, cell.text());
        } else {
            require(worksheet_write_number(sheet_, row_, column, number, nullptr));
        }
    }

    std::string path_;
    std::string folder_;
    std::unique_ptr<lxw_workbook, FreeWorkbook> book_;
    lxw_worksheet* sheet_ = nullptr; // these are the workbook's
    lxw_format* bold_ = nullptr;
    lxw_format* day_ = nullptr;
    lxw_format* moment_ = nullptr;
    lxw_row_t row_ = 0;
    std::unique_ptr<Progress> progress_;
};

} // namespace

bool writeWorkbook(const RowGrid& grid, const QString& sheetName, const QString& path) {
    auto removeHalf = qScopeGuard([&path] { QFile::remove(path); });
    Sheet sheet(sheetName, path);
    visitGrid(grid, sheet);
    if (sheet.isCancelled()) {
        return false;
    }
    sheet.close();
    removeHalf.dismiss();
    return true;
}

} // namespace velcro::ui

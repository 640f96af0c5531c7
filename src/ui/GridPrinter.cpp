#include "ui/GridPrinter.h"

#include "ui/GridVisitor.h"
#include "ui/Progress.h"
#include "ui/RowGrid.h"

#include <QFile>
#include <QFontDatabase>
#include <QPageLayout>
#include <QPaintEngine>
#include <QPainter>
#include <QPrinter>

#include <algorithm>
#include <memory>
#include <numeric>

namespace velcro::ui {

namespace {

constexpr double cellGapMm = 2; // between the texts of two columns
constexpr double mmPerInch = 25.4;
constexpr int narrowestText = 12; // letters that a text keeps where room is short
constexpr int stepRows = 100;

double millimetres(const QPrinter& printer, double length) {
    return length / mmPerInch * printer.resolution();
}

QFont bold(QFont font) {
    font.setBold(true);
    return font;
}

/// A column on paper; lengths in points of the printer.
struct PaperColumn
{
    QString heading;
    bool isNumeric;
    bool isWhole; // a number or a date, which cut would read as another one
    QString longest = {};
    double wanted = 0; // all of it
    double least = 0;  // enough of it
    double left = 0;
    double width = 0;

    Qt::AlignmentFlag alignment() const { return isNumeric ? Qt::AlignRight : Qt::AlignLeft; }
};

/// What the columns want, from every cell.
class Widths : public GridVisitor
{
public:
    std::vector<PaperColumn> columns;

    void begin(const std::vector<VisibleColumn>& visible, int /*rows*/) override {
        for (const auto& column : visible) {
            columns.push_back({.heading = column.heading,
                               .isNumeric = column.isNumeric(),
                               .isWhole = column.isNumeric() || column.type == CellType::Date});
        }
    }
    void cell(int position, const GridCell& cell) override {
        auto& longest = columns[position].longest;
        if (auto text = cell.text(); text.size() > longest.size()) {
            longest = std::move(text);
        }
    }
    void measure(const QFont& font, QPrinter& printer) {
        const QFontMetricsF plain(font, &printer), heavy(bold(font), &printer);
        const double gap = millimetres(printer, cellGapMm);
        const double narrow = narrowestText * plain.averageCharWidth() + gap;
        for (auto& column : columns) {
            column.wanted = gap + std::max(plain.horizontalAdvance(column.longest),
                                           heavy.horizontalAdvance(column.heading));
            column.least = column.isWhole ? column.wanted : std::min(column.wanted, narrow);
        }
    }
    double wanted() const { return sum(&PaperColumn::wanted); }

    /// Shares the page's width: all that is wanted where there is room, else texts give way, the
    /// longest first.
    void share(double page) {
        double rest = page - sum(&PaperColumn::least);
        std::vector<PaperColumn*> longing;
        for (auto& column : columns) {
            column.width = column.least;
            longing.push_back(&column);
        }
        std::ranges::sort(longing, {}, [](auto* column) { return column->wanted - column->least; });
        for (std::size_t i = 0; i < longing.size() && rest > 0; ++i) {
            const double part = rest / static_cast<double>(longing.size() - i);
            const double more = std::min(part, longing[i]->wanted - longing[i]->least);
            longing[i]->width += more;
            rest -= more;
        }
        const double shrunk = std::min(1.0, page / sum(&PaperColumn::width));
        double left = 0;
        for (auto& column : columns) {
            column.left = left;
            column.width *= shrunk;
            left += column.width;
        }
    }

private:
    double sum(double PaperColumn::*length) const {
        return std::accumulate(
            columns.begin(), columns.end(), 0.0,
            [length](double all, const PaperColumn& column) { return all + column.*length; });
    }
};

/// Fills page after page with what it is told of the grid.
class Pages : public GridVisitor
{
public:
    Pages(const GridPrinter& facts, QPrinter& printer, std::vector<PaperColumn> columns)
        : facts_(facts)
        , printer_(printer)
        , painter_(&printer)
        , page_(QPointF(), printer.pageLayout().paintRectPixels(printer.resolution()).size())
        , columns_(std::move(columns))
        , row_(columns_.size())
        , gap_(millimetres(printer, cellGapMm)) {
        painter_.setFont(facts.titleFont);
        line_ = painter_.fontMetrics().height();
    }

    void begin(const std::vector<VisibleColumn>& /*columns*/, int rows) override {
        // A preview is made while its window paints, where nothing else may come up.
        if (painter_.paintEngine()->type() != QPaintEngine::Picture) {
            progress_ = std::make_unique<Progress>(QStringLiteral("Print"), rows);
        }
        beginPage();
    }
    bool beginRow(int row) override {
        writeRow();
        std::ranges::fill(row_, QString());
        pending_ = true;
        return !progress_ || row % stepRows != 0 || progress_->step(row);
    }
    void cell(int position, const GridCell& cell) override { row_[position] = cell.text(); }

    /// After the last row. False when the user has cancelled.
    bool end() {
        writeRow();
        const bool whole = !progress_ || !progress_->isCancelled();
        if (!whole) {
            printer_.abort();
        }
        painter_.end();
        return whole;
    }

private:
    // Title and headings.
    void beginPage() {
        ++number_;
        painter_.setFont(facts_.titleFont);
        top_ = writeTitle() + millimetres(printer_, facts_.headerHeightMm);
        painter_.setFont(bold(facts_.titleFont));
        for (const auto& column : columns_) {
            painter_.drawText(placeOf(column, rowHeight(1)), Qt::AlignVCenter | column.alignment(),
                              elided(column.heading, column));
        }
        top_ += rowHeight(1);
        painter_.drawLine(QPointF(0, top_), QPointF(page_.width(), top_));
        painter_.setFont(facts_.titleFont);
    }

    double writeTitle() {
        const double lineHeight = painter_.fontMetrics().lineSpacing();
        const auto lines = std::max(facts_.leftTitle.size(), facts_.rightTitle.size());
        for (int i = 0; i < lines; ++i) {
            const QRectF line(0, i * lineHeight, page_.width(), lineHeight);
            painter_.drawText(line, Qt::AlignLeft, facts_.leftTitle.value(i));
            auto right = facts_.rightTitle.value(i);
            right.replace(QStringLiteral("[Page #]"), QString::number(number_));
            painter_.drawText(line, Qt::AlignRight, right);
        }
        return static_cast<double>(lines) * lineHeight;
    }

    void writeRow() {
        if (!std::exchange(pending_, false)) {
            return;
        }
        bool second = false;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            second = second || (!columns_[i].isWhole && !fits(row_[i], columns_[i]));
        }
        const double height = rowHeight(second ? 2 : 1);
        if (top_ + height > page_.height()) {
            printer_.newPage();
            beginPage();
        }
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const auto& column = columns_[i];
            painter_.drawText(placeOf(column, height), Qt::AlignVCenter | column.alignment(),
                              inTwoLines(row_[i], column));
        }
        top_ += height;
    }

    // A text that is longer than its column goes on below, at a blank where there is one.
    QString inTwoLines(const QString& text, const PaperColumn& column) const {
        if (column.isWhole || fits(text, column)) {
            return text;
        }
        qsizetype cut = text.size();
        while (cut > 1 && !fits(text.left(cut), column)) {
            --cut;
        }
        const auto blank = text.lastIndexOf(QLatin1Char(' '), cut);
        const auto end = blank > 0 ? blank : cut;
        return text.left(end) + QLatin1Char('\n') + elided(text.mid(end).trimmed(), column);
    }

    bool fits(const QString& text, const PaperColumn& column) const {
        return painter_.fontMetrics().horizontalAdvance(text) <= column.width - gap_ + 1;
    }
    QString elided(const QString& text, const PaperColumn& column) const {
        return painter_.fontMetrics().elidedText(text, Qt::ElideRight,
                                                 static_cast<int>(column.width - gap_ + 1));
    }
    QRectF placeOf(const PaperColumn& column, double height) const {
        return {column.left, top_, column.width - gap_ + 1, height};
    }
    double rowHeight(int lines) const { return (lines + 0.4) * line_; }

    const GridPrinter& facts_;
    QPrinter& printer_;
    QPainter painter_;
    QRectF page_;
    std::vector<PaperColumn> columns_;
    std::vector<QString> row_; // not written yet
    std::unique_ptr<Progress> progress_;
    double gap_;
    bool pending_ = false;
    double line_ = 0; // its height
    double top_ = 0;  // of what is written next
    int number_ = 0;  // of the page
};

double pageWidth(const QPrinter& printer) {
    return printer.pageLayout().paintRectPixels(printer.resolution()).width();
}

} // namespace

GridPrinter::GridPrinter(const RowGrid& grid)
    : titleFont(QFontDatabase::systemFont(QFontDatabase::FixedFont))
    , grid_(&grid) {}

void GridPrinter::print(QPrinter& printer) const {
    Widths widths;
    visitGrid(*grid_, widths);
    widths.measure(titleFont, printer);
    printer.setPageOrientation(QPageLayout::Portrait);
    printer.setPageMargins(marginsMm, QPageLayout::Millimeter);
    if (widths.wanted() > pageWidth(printer)) {
        printer.setPageOrientation(QPageLayout::Landscape);
    }
    widths.share(pageWidth(printer));
    Pages pages(*this, printer, std::move(widths.columns));
    visitGrid(*grid_, pages);
    if (!pages.end() && !printer.outputFileName().isEmpty()) {
        QFile::remove(printer.outputFileName());
    }
}

} // namespace velcro::ui

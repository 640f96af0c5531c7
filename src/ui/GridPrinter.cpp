#include "ui/GridPrinter.h"

#include "ui/GridVisitor.h"
#include "ui/RowGrid.h"

#include <QFontDatabase>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>

#include <algorithm>

namespace velcro::ui {

namespace {

constexpr double cellGap = 4; // points between the text of two columns
constexpr double mmPerInch = 25.4;
constexpr double pointsPerInch = 72;

/// Fills page after page with what it is told of the grid.
class Pages : public GridVisitor
{
public:
    Pages(const GridPrinter& facts, QPrinter& printer)
        : facts_(facts)
        , printer_(printer)
        , painter_(&printer)
        , page_(QPointF(), printer.pageLayout().paintRectPixels(printer.resolution()).size()) {
        painter_.setFont(facts.titleFont);
        height_ = painter_.fontMetrics().height() * 1.4;
    }

    // Columns keep the proportions they have on screen and fill the page.
    void begin(const std::vector<VisibleColumn>& columns, int /*rows*/) override {
        const double gap = cellGap / pointsPerInch * printer_.resolution();
        double onScreen = 0;
        for (const auto& column : columns) {
            onScreen += column.width;
        }
        double left = 0;
        for (const auto& column : columns) {
            const double width = page_.width() * column.width / onScreen;
            columns_.push_back({column.heading, left, width - gap,
                                column.isNumeric() ? Qt::AlignRight : Qt::AlignLeft});
            left += width;
        }
        beginPage();
    }

    bool beginRow(int /*row*/) override {
        if (top_ + 2 * height_ > page_.height()) {
            printer_.newPage();
            beginPage();
        } else {
            top_ += height_;
        }
        return true;
    }

    void cell(int position, const GridCell& cell) override {
        const auto& column = columns_[position];
        write(column, painter_.fontMetrics().elidedText(cell.text(), Qt::ElideRight,
                                                        static_cast<int>(column.width)));
    }

private:
    struct Column
    {
        QString heading;
        double left;
        double width;
        Qt::AlignmentFlag alignment;
    };

    // Title, headings, and room for the first row below them.
    void beginPage() {
        ++number_;
        painter_.setFont(facts_.titleFont);
        top_ = writeTitle() + facts_.headerHeightMm / mmPerInch * printer_.resolution();
        auto bold = facts_.titleFont;
        bold.setBold(true);
        painter_.setFont(bold);
        for (const auto& column : columns_) {
            write(column, column.heading);
        }
        painter_.drawLine(QPointF(0, top_ + height_), QPointF(page_.width(), top_ + height_));
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

    void write(const Column& column, const QString& text) {
        painter_.drawText(QRectF(column.left, top_, column.width, height_),
                          Qt::AlignVCenter | column.alignment, text);
    }

    const GridPrinter& facts_;
    QPrinter& printer_;
    QPainter painter_;
    QRectF page_;
    std::vector<Column> columns_;
    double height_ = 0; // of a row
    double top_ = 0;    // of the row that is written
    int number_ = 0;    // of the page
};

} // namespace

GridPrinter::GridPrinter(const RowGrid& grid)
    : titleFont(QFontDatabase::systemFont(QFontDatabase::FixedFont))
    , grid_(&grid) {}

void GridPrinter::print(QPrinter& printer) const {
    printer.setPageMargins(marginsMm, QPageLayout::Millimeter);
    Pages pages(*this, printer);
    visitGrid(*grid_, pages);
}

} // namespace velcro::ui

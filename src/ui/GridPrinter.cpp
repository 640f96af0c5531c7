#include "ui/GridPrinter.h"

#include "ui/Handler.h"
#include "ui/Modal.h"
#include "ui/RowGrid.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QPageLayout>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include <algorithm>

namespace velcro::ui {

namespace {
constexpr double cellGap = 4; // points between the text of two columns
}

GridPrinter::GridPrinter(const RowGrid& grid)
    : titleFont(QFontDatabase::systemFont(QFontDatabase::FixedFont))
    , grid_(&grid) {}

void GridPrinter::preview(QWidget* parent) const {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    QPrintPreviewDialog dialog(&printer, parent);
    dialog.setObjectName(QStringLiteral("GridPreview"));
    connectHandler(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                   [this](QPrinter* page) { print(*page); });
    dialog.resize(parent->size().expandedTo(QSize(900, 650)));
    runModal(dialog);
}

// Columns keep the proportions they have on screen and fill the page.
std::vector<GridPrinter::Column> GridPrinter::placeColumns(double pageWidth) const {
    const auto* header = grid_->horizontalHeader();
    double onScreen = 0;
    for (int i = 0; i < header->count(); ++i) {
        onScreen += header->isSectionHidden(i) ? 0 : header->sectionSize(i);
    }
    std::vector<Column> columns;
    double left = 0;
    for (int visual = 0; visual < header->count(); ++visual) {
        const int index = header->logicalIndex(visual);
        if (!header->isSectionHidden(index)) {
            const double width = pageWidth * header->sectionSize(index) / onScreen;
            columns.push_back({index, left, width});
            left += width;
        }
    }
    return columns;
}

double GridPrinter::printTitle(QPainter& painter, const QRectF& page, int pageNumber) const {
    painter.setFont(titleFont);
    const double lineHeight = painter.fontMetrics().lineSpacing();
    const auto lines = std::max(leftTitle.size(), rightTitle.size());
    for (int i = 0; i < lines; ++i) {
        const QRectF line(0, i * lineHeight, page.width(), lineHeight);
        painter.drawText(line, Qt::AlignLeft, leftTitle.value(i));
        auto right = rightTitle.value(i);
        right.replace(QStringLiteral("[Page #]"), QString::number(pageNumber));
        painter.drawText(line, Qt::AlignRight, right);
    }
    return static_cast<double>(lines) * lineHeight;
}

void GridPrinter::printHeadings(QPainter& painter, const std::vector<Column>& columns, double top,
                                double height) const {
    auto font = titleFont;
    font.setBold(true);
    painter.setFont(font);
    for (const auto& column : columns) {
        const auto& model = grid_->rowModel();
        const QRectF cell(column.left, top, column.width - cellGap, height);
        painter.drawText(cell,
                         Qt::AlignVCenter |
                             (model.isNumeric(column.index) ? Qt::AlignRight : Qt::AlignLeft),
                         model.columns()[column.index].heading());
    }
    const auto& last = columns.back();
    painter.drawLine(QPointF(0, top + height), QPointF(last.left + last.width, top + height));
    painter.setFont(titleFont);
}

void GridPrinter::printRow(QPainter& painter, const std::vector<Column>& columns, int row,
                           double top, double height) const {
    const auto& model = grid_->rowModel();
    for (const auto& column : columns) {
        const QRectF cell(column.left, top, column.width - cellGap, height);
        const auto text = painter.fontMetrics().elidedText(
            model.text(row, column.index), Qt::ElideRight, static_cast<int>(cell.width()));
        painter.drawText(cell,
                         Qt::AlignVCenter |
                             (model.isNumeric(column.index) ? Qt::AlignRight : Qt::AlignLeft),
                         text);
    }
}

void GridPrinter::print(QPrinter& printer) const {
    printer.setPageMargins(marginsMm, QPageLayout::Millimeter);
    QPainter painter(&printer);
    const QRectF page(QPointF(), printer.pageLayout().paintRectPixels(printer.resolution()).size());
    const auto columns = placeColumns(page.width());
    if (columns.empty()) {
        return;
    }
    painter.setFont(titleFont);
    const double height = painter.fontMetrics().height() * 1.4;
    const double gap = headerHeightMm / 25.4 * printer.resolution();
    const int rows = grid_->rowModel().rowCount();
    int row = 0;
    int pageNumber = 1;
    do {
        if (pageNumber > 1) {
            printer.newPage();
        }
        double top = printTitle(painter, page, pageNumber++) + gap;
        printHeadings(painter, columns, top, height);
        for (top += height; row < rows && top + height <= page.height(); top += height) {
            printRow(painter, columns, row++, top, height);
        }
    } while (row < rows);
}

} // namespace velcro::ui

#include "ui/RowGrid.h"

#include "ui/Handler.h"
#include "ui/Theme.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScroller>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace velcro::ui {

namespace {
constexpr int sampleRows = 200; // enough to know how wide a column is
constexpr int cellPadding = 24;
constexpr int narrowest = 56;
constexpr int widest = 320;
constexpr int textMargin = 7; // brings a cell's text below its heading's

// Cells with room beside their text. A style sheet's padding serves selected cells alone.
class CellPainter : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        auto* style = cell.widget->style();
        const QString text = std::exchange(cell.text, QString());
        style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
        cell.text = text;
        cell.rect.adjust(textMargin, 0, -textMargin, 0);
        cell.state &= ~QStyle::State_HasFocus;
        style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    }
};

} // namespace

RowGrid::RowGrid(QWidget* parent)
    : QTableView(parent)
    , model_(this) {
    setModel(&model_);
    setItemDelegate(new CellPainter(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(
        std::max(velcro::ui::rowHeight, fontMetrics().height() + 12));
    auto* header = horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionsMovable(true);
    header->setMinimumHeight(touchHeight);
    header->setSortIndicatorClearable(true);
    header->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
    connectHandler(this, &QTableView::doubleClicked, this, &RowGrid::rowChosen);
}

void RowGrid::setColumns(std::vector<GridColumn> columns) {
    model_.setColumns(std::move(columns));
    showOnlyVisibleColumns();
    columnsFitted_ = false;
}

void RowGrid::showOnlyVisibleColumns() {
    for (int i = 0; i < model_.columnCount(); ++i) {
        setColumnHidden(i, !model_.columns()[i].visible);
    }
}

void RowGrid::setRows(const sql::RowSet& rows) {
    model_.setRows(rows);
    if (!columnsFitted_ && isVisible()) {
        fitColumns();
    }
    first();
}

std::optional<std::size_t> RowGrid::currentResultRow() const {
    const auto current = currentIndex();
    return current.isValid() ? std::optional(model_.resultRow(current.row())) : std::nullopt;
}

bool RowGrid::locate(const QString& field, const QString& value) {
    const auto& rows = model_.rows();
    const auto column = rows.rowCount() > 0 ? rows.columnIndex(field.toStdString()) : std::nullopt;
    if (!column) {
        return false;
    }
    const auto wanted = value.toStdString();
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        if (rows.text(row, *column) == wanted) {
            goTo(model_.viewRow(row));
            return true;
        }
    }
    return false;
}

void RowGrid::first() {
    goTo(0);
}

void RowGrid::previous() {
    goTo(currentIndex().row() - 1);
}

void RowGrid::next() {
    goTo(currentIndex().row() + 1);
}

void RowGrid::last() {
    goTo(model_.rowCount() - 1);
}

// The current cell must be in a column that is shown, or neither highlight nor keys work.
void RowGrid::goTo(int viewRow) {
    if (viewRow < 0 || viewRow >= model_.rowCount()) {
        return;
    }
    int column = currentIndex().isValid() ? currentIndex().column() : 0;
    while (column < model_.columnCount() && isColumnHidden(column)) {
        ++column;
    }
    setCurrentIndex(model_.index(viewRow, column));
}

void RowGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    emit currentRecordChanged();
}

void RowGrid::keyPressEvent(QKeyEvent* event) {
    guarded([&] {
        switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            emit rowChosen();
            break;
        case Qt::Key_Home:
            first();
            break;
        case Qt::Key_End:
            last();
            break;
        default:
            QTableView::keyPressEvent(event);
        }
    });
}

void RowGrid::showEvent(QShowEvent* event) {
    QTableView::showEvent(event);
    if (!columnsFitted_) {
        fitColumns();
    }
}

int RowGrid::sizeHintForColumn(int column) const {
    const QFontMetrics metrics(font());
    int width = 0;
    for (int row = 0; row < std::min(sampleRows, model_.rowCount()); ++row) {
        width = std::max(width, metrics.horizontalAdvance(model_.text(row, column)));
    }
    return width + cellPadding;
}

void RowGrid::fitColumns() {
    auto* header = horizontalHeader();
    int used = 0;
    int widestColumn = -1;
    for (int i = 0; i < model_.columnCount(); ++i) {
        const int wanted = std::max(sizeHintForColumn(i), header->sectionSizeHint(i));
        header->resizeSection(i, std::clamp(wanted, narrowest, widest));
        if (!isColumnHidden(i)) {
            used += columnWidth(i);
            widestColumn =
                widestColumn < 0 || columnWidth(i) > columnWidth(widestColumn) ? i : widestColumn;
        }
    }
    // The scroll bar of the new rows takes its room now and not with the next event.
    updateGeometries();
    QEvent layout(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(this, &layout);
    // Room that is left goes to the widest column, which is the one with the names.
    if (widestColumn >= 0 && used < viewport()->width()) {
        header->resizeSection(widestColumn, columnWidth(widestColumn) + viewport()->width() - used);
    }
    columnsFitted_ = model_.rowCount() > 0; // until then the headings alone decide
}

} // namespace velcro::ui

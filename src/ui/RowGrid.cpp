#include "ui/RowGrid.h"

#include "ui/GridSpeech.h"
#include "ui/Handler.h"
#include "ui/Theme.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScroller>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace velcro::ui {

namespace {
constexpr int sampleRows = 200; // enough to know how wide a column is
constexpr int cellPadding = 22;
constexpr int narrowest = 56;
constexpr int widest = 320;
// Letters of a long text that are seen where room is short: of all of them; to have more columns in
// sight; and to have the names in sight.
constexpr int everyLetter = 1000;
constexpr int longText = 22;
constexpr int shortenedText = 16;
constexpr int shortestText = 9;
constexpr int textMargin = 7; // brings a cell's text below its heading's
constexpr int tickBox = 24;

// A box as large as a finger's tip, with a mark that is seen without its colour.
void paintTick(QPainter& painter, const QStyleOptionViewItem& cell, bool ticked) {
    const auto& palette = cell.palette;
    QRectF box(0, 0, tickBox, tickBox);
    box.moveCenter(QRectF(cell.rect).center());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette.color(QPalette::Text), 1.5));
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRoundedRect(box, 4, 4);
    if (ticked) {
        QPainterPath mark(box.topLeft() + QPointF(5, 13));
        mark.lineTo(box.topLeft() + QPointF(10, 18));
        mark.lineTo(box.topLeft() + QPointF(19, 6));
        painter.setPen(QPen(palette.color(QPalette::Text), 3));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(mark);
    }
    painter.restore();
}

// Tells which of the cells that can be typed into the user stands on.
void paintFrame(QPainter& painter, const QStyleOptionViewItem& cell) {
    painter.save();
    painter.setPen(QPen(cell.palette.color(QPalette::HighlightedText), 2));
    painter.drawRect(QRectF(cell.rect).adjusted(3, 3, -3, -3));
    painter.restore();
}

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
        const bool isTick = cell.features.testFlag(QStyleOptionViewItem::HasCheckIndicator);
        cell.features.setFlag(QStyleOptionViewItem::HasCheckIndicator, false);
        style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
        cell.text = text;
        cell.rect.adjust(textMargin, 0, -textMargin, 0);
        cell.state &= ~QStyle::State_HasFocus;
        style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
        // Last: on the selected row the text brings its background with it.
        cell.rect = option.rect;
        if (isTick) {
            paintTick(*painter, cell, cell.checkState == Qt::Checked);
        }
        if (option.state.testFlag(QStyle::State_HasFocus) &&
            index.flags().testFlag(Qt::ItemIsEditable)) {
            paintFrame(*painter, cell);
        }
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                          const QModelIndex& index) const override {
        auto* edit = new QLineEdit(parent);
        edit->setObjectName(QStringLiteral("edCell"));
        edit->setAccessibleName(
            index.model()->headerData(index.column(), Qt::Horizontal).toString());
        const auto& model = static_cast<const RowSetModel&>(*index.model());
        if (const int limit = model.columns()[index.column()].limit; limit > 0) {
            edit->setMaxLength(limit);
        }
        return edit;
    }

    // A tap anywhere in a tick's cell ticks.
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override {
        if (!index.flags().testFlag(Qt::ItemIsUserCheckable)) {
            return QStyledItemDelegate::editorEvent(event, model, option, index);
        }
        if (event->type() != QEvent::MouseButtonRelease ||
            static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) {
            return false;
        }
        const bool on = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return model->setData(index, on ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }

    // By itself Qt ends an edit one round of the loop later, and keys that follow at once are lost.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) {
            return QStyledItemDelegate::eventFilter(watched, event);
        }
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool ends = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        const bool turnsPage = (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) &&
                               key->modifiers().testFlag(Qt::ControlModifier);
        if (!ends && !turnsPage) {
            return QStyledItemDelegate::eventFilter(watched, event);
        }
        auto* editor = qobject_cast<QWidget*>(watched);
        emit commitData(editor);
        emit closeEditor(editor, QAbstractItemDelegate::NoHint);
        return ends;
    }
};

/// In two lines, where that is narrower.
QString inLines(const QString& heading, const QFontMetrics& metrics) {
    QString best = heading;
    int width = metrics.horizontalAdvance(heading);
    for (auto blank = heading.indexOf(u' '); blank > 0; blank = heading.indexOf(u' ', blank + 1)) {
        const int widthSoFar = std::max(metrics.horizontalAdvance(heading.left(blank)),
                                        metrics.horizontalAdvance(heading.mid(blank + 1)));
        if (widthSoFar < width) {
            width = widthSoFar;
            best = heading;
            best[blank] = u'\n';
        }
    }
    return best;
}

/// Headings that are no wider than they need to be, with room for the arrow of the sorting where
/// the arrow is.
class HeadingBar : public QHeaderView
{
public:
    using QHeaderView::QHeaderView;

protected:
    QSize sectionSizeFromContents(int section) const override {
        QStyleOptionHeader heading;
        initStyleOption(&heading);
        heading.fontMetrics = bold();
        heading.section = section;
        heading.text = textOf(section);
        auto size = style()->sizeFromContents(QStyle::CT_HeaderSection, &heading, {}, this);
        if (section == sortIndicatorSection()) {
            size.rwidth() += std::max(minimumHeight(), size.height()) / 2 +
                             2 * style()->pixelMetric(QStyle::PM_HeaderMargin, &heading, this);
        }
        return size;
    }
    void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override {
        QHeaderView::initStyleOptionForIndex(option, section);
        option->text = textOf(section);
    }

private:
    QFontMetrics bold() const {
        auto letters = font();
        letters.setBold(true);
        return QFontMetrics(letters);
    }
    QString textOf(int section) const {
        return inLines(model()->headerData(section, Qt::Horizontal).toString(), bold());
    }
};

} // namespace

RowGrid::RowGrid(QWidget* parent)
    : QTableView(parent)
    , model_(this) {
    speakGrids();
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
    auto* header = new HeadingBar(Qt::Horizontal, this);
    setHorizontalHeader(header);
    header->setSectionsClickable(true);
    header->setSectionsMovable(true);
    header->setMinimumHeight(touchHeight);
    header->setSortIndicatorClearable(true);
    header->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    connectHandler(header, &QHeaderView::sortIndicatorChanged, this,
                   [this](int section, Qt::SortOrder) {
                       if (section >= 0 && section < model_.columnCount()) {
                           const int heading = horizontalHeader()->sectionSizeHint(section);
                           setColumnWidth(section, std::max(columnWidth(section), heading));
                       }
                   });
    connectHandler(header, &QHeaderView::sectionResized, this, [this] {
        if (!layingOut_) {
            fits_.clear();
        }
    });
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
    connectHandler(this, &QTableView::doubleClicked, this, &RowGrid::rowChosen);
}

void RowGrid::setColumns(std::vector<GridColumn> columns) {
    model_.setColumns(std::move(columns));
    showOnlyVisibleColumns();
    allowEditing();
    columnsFitted_ = false;
    fits_.clear();
}

// A note is opened by typing on it, a second tap, F2 or a double click.
void RowGrid::allowEditing() {
    const auto& columns = model_.columns();
    const auto tick = std::ranges::find(columns, CellType::Tick, &GridColumn::type);
    tickColumn_ = tick == columns.end() ? -1 : static_cast<int>(tick - columns.begin());
    const bool editable = std::ranges::any_of(columns, &GridColumn::editable);
    setEditTriggers(editable ? AnyKeyPressed | EditKeyPressed | SelectedClicked | DoubleClicked
                             : EditTriggers(NoEditTriggers));
    verticalHeader()->setDefaultSectionSize(
        std::max(editable ? touchHeight : velcro::ui::rowHeight, fontMetrics().height() + 12));
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

void RowGrid::filter(const QString& text) {
    model_.setTextFilter(text);
    first();
    emit currentRecordChanged();
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
    if (isColumnHidden(column)) {
        column = 0;
    }
    while (column + 1 < model_.columnCount() && isColumnHidden(column)) {
        ++column;
    }
    setCurrentIndex(model_.index(viewRow, column));
}

void RowGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    // Past what the table would tell of it, which counts hidden columns too.
    QAbstractItemView::currentChanged(current, previous);
    tellFocus(*this, current);
    emit currentRecordChanged();
}

void RowGrid::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QAbstractItemView::selectionChanged(selected, deselected);
}

int RowGrid::spokenColumn() const {
    return spokenField_.isEmpty() ? -1 : model_.columnOf(spokenField_);
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
        case Qt::Key_Space:
            tickCurrent();
            break;
        default:
            QTableView::keyPressEvent(event);
        }
    });
}

void RowGrid::tickCurrent() {
    if (const auto row = currentResultRow(); row && tickColumn_ >= 0) {
        model_.setTicked(*row, tickColumn_, !model_.isTicked(*row, tickColumn_));
    }
}

// Tab ends the edit as Enter does, and stays on the cell.
void RowGrid::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    const bool goesOn = hint == QAbstractItemDelegate::EditNextItem ||
                        hint == QAbstractItemDelegate::EditPreviousItem;
    QTableView::closeEditor(editor, goesOn ? QAbstractItemDelegate::NoHint : hint);
}

void RowGrid::endEdit() {
    if (state() == EditingState) {
        auto* editor = indexWidget(currentIndex());
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

int RowGrid::widthOf(int column) const {
    return isColumnHidden(column) ? std::clamp(sizeHintForColumn(column), narrowest, widest)
                                  : columnWidth(column);
}

void RowGrid::setWidthOf(int column, int width) {
    setColumnWidth(column, width);
    columnsFitted_ = true;
}

void RowGrid::standOnShownColumn() {
    goTo(currentIndex().row());
}

void RowGrid::showEvent(QShowEvent* event) {
    QTableView::showEvent(event);
    if (!columnsFitted_) {
        fitColumns();
    }
}

// A cut number reads as another number, so those are measured to the last one.
int RowGrid::sizeHintForColumn(int column) const {
    const QFontMetrics metrics(font());
    const int rows = model_.rowCount();
    int width = 0;
    for (int row = 0; row < std::min(sampleRows, rows); ++row) {
        width = std::max(width, metrics.horizontalAdvance(model_.text(row, column)));
    }
    if (model_.isNumeric(column)) {
        QString longest;
        for (int row = sampleRows; row < rows; ++row) {
            const auto text = model_.text(row, column);
            longest = text.size() > longest.size() ? text : longest;
        }
        width = std::max(width, metrics.horizontalAdvance(longest));
    }
    return width + cellPadding;
}

std::vector<RowGrid::Fit> RowGrid::wantedWidths() const {
    std::vector<Fit> fits;
    const auto* header = horizontalHeader();
    for (int visual = 0; visual < header->count(); ++visual) {
        const int i = header->logicalIndex(visual);
        if (isColumnHidden(i)) {
            continue;
        }
        const int heading = header->sectionSizeHint(i);
        const int wanted = std::clamp(std::max(sizeHintForColumn(i), heading), narrowest, widest);
        const bool text = model_.cellType(i) == CellType::Text;
        const bool isLong = text && wanted >= narrowed(longText);
        fits.push_back({.index = i,
                        .wanted = wanted,
                        .least = isLong ? std::max(heading, narrowest) : wanted,
                        .isLong = isLong,
                        .typed = text && model_.columns()[i].editable});
    }
    return fits;
}

int RowGrid::narrowed(int letters) const {
    return letters * QFontMetrics(font()).averageCharWidth() + cellPadding;
}

int RowGrid::narrow(std::vector<Fit>& fits, int letters, int& room) const {
    int seen = 0;
    for (auto& fit : fits) {
        fit.width = std::max(fit.least, std::min(fit.wanted, narrowed(letters)));
    }
    while (seen < int(fits.size()) && fits[seen].width <= room) {
        room -= fits[seen++].width;
    }
    return seen;
}

// Where not all columns fit, long texts give way so that more columns are seen, and none of those
// is cut at the edge. The first long text is what people know a row by: it is always seen.
void RowGrid::shareRoom(std::vector<Fit>& fits, int room) const {
    const auto names = std::ranges::find(fits, true, &Fit::isLong) - fits.begin();
    auto left = room;
    auto seen = narrow(fits, everyLetter, left);
    for (const int letters : {longText, shortenedText, shortestText}) {
        const bool isWanted = letters == shortestText ? names >= seen : seen < int(fits.size());
        auto narrowedRoom = room;
        auto narrowedFits = fits;
        const int more = isWanted ? narrow(narrowedFits, letters, narrowedRoom) : 0;
        if (more > seen) {
            seen = more;
            left = narrowedRoom;
            fits = narrowedFits;
        }
    }
    const auto widen = [&left](Fit& fit) {
        const int more = std::min(left, fit.wanted - fit.width);
        fit.width += more;
        left -= more;
    };
    if (names < seen) {
        widen(fits[names]);
    }
    const auto end = fits.begin() + seen;
    std::for_each(fits.begin(), end, widen);
    // What is left goes to what is typed, or else to the widest column, the one with the names.
    if (end != fits.begin()) {
        std::max_element(fits.begin(), end, [](const Fit& a, const Fit& b) {
            return std::pair(a.typed, a.width) < std::pair(b.typed, b.width);
        })->width += left;
    }
}

void RowGrid::fitColumns() {
    // The scroll bar of the new rows takes its room now and not with the next event.
    updateGeometries();
    QEvent layout(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(this, &layout);
    fits_ = wantedWidths();
    layColumnsOut();
    columnsFitted_ = model_.rowCount() > 0; // until then the headings alone decide
}

void RowGrid::layColumnsOut() {
    if (std::exchange(layingOut_, true)) {
        return;
    }
    std::erase_if(fits_, [this](const Fit& fit) { return isColumnHidden(fit.index); });
    shareRoom(fits_, viewport()->width());
    for (const auto& fit : fits_) {
        setColumnWidth(fit.index, fit.width);
    }
    layingOut_ = false;
}

// Widths that nobody has changed follow the room.
void RowGrid::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    layColumnsOut();
}

} // namespace velcro::ui

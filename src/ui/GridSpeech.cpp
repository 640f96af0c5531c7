#include "ui/GridSpeech.h"

#include "ui/RowGrid.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QHeaderView>

#include <vector>

namespace velcro::ui {

namespace {

constexpr int headingRow = -1;

/// The columns that are shown, in the user's order.
std::vector<int> shownColumns(const RowGrid& grid) {
    std::vector<int> shown;
    for (int visual = 0; visual < grid.horizontalHeader()->count(); ++visual) {
        const int column = grid.horizontalHeader()->logicalIndex(visual);
        if (!grid.isColumnHidden(column)) {
            shown.push_back(column);
        }
    }
    return shown;
}

class GridSpeech;

/// A cell, or a heading.
class CellSpeech final : public QAccessibleInterface,
                         public QAccessibleTableCellInterface,
                         public QAccessibleActionInterface
{
public:
    CellSpeech(RowGrid& grid, int row, int column)
        : grid_(grid)
        , row_(row)
        , column_(column) {}

    bool isValid() const override {
        return row_ < grid_.rowModel().rowCount() && column_ < grid_.rowModel().columnCount();
    }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return table(); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    QAccessible::Role role() const override {
        return isHeading() ? QAccessible::ColumnHeader : QAccessible::Cell;
    }
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name) {
            return isHeading() ? heading() : name();
        }
        if (kind == QAccessible::Description && !isHeading()) {
            const auto own = index().data(Qt::AccessibleDescriptionRole).toString();
            return own.isEmpty() ? heading() : heading() + QStringLiteral(". ") + own;
        }
        return {};
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        const auto* header = grid_.horizontalHeader();
        const QRect place = isHeading() ? QRect(header->sectionViewportPosition(column_), 0,
                                                header->sectionSize(column_), header->height())
                                        : grid_.visualRect(index());
        const auto* on = isHeading() ? header->viewport() : grid_.viewport();
        return {on->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        if (isHeading()) {
            return state;
        }
        const auto flags = index().flags();
        state.focusable = true;
        state.selectable = true;
        state.selected = isSelected();
        state.focused = grid_.currentIndex() == index();
        state.checkable = flags.testFlag(Qt::ItemIsUserCheckable);
        state.checked = state.checkable && index().data(Qt::CheckStateRole).toInt() == Qt::Checked;
        state.editable = flags.testFlag(Qt::ItemIsEditable);
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        switch (type) {
        case QAccessible::TableCellInterface:
            return static_cast<QAccessibleTableCellInterface*>(this);
        case QAccessible::ActionInterface:
            return static_cast<QAccessibleActionInterface*>(this);
        default:
            return nullptr;
        }
    }

    bool isSelected() const override {
        return !isHeading() && grid_.selectionModel()->isSelected(index());
    }
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override {
        const auto shown = shownColumns(grid_);
        const auto found = std::ranges::find(shown, column_);
        return found == shown.end() ? -1 : static_cast<int>(found - shown.begin());
    }
    int rowIndex() const override { return row_; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override {
        return QAccessible::queryAccessibleInterface(&grid_);
    }

    QStringList actionNames() const override {
        return isHeading() ? QStringList() : QStringList{setFocusAction(), pressAction()};
    }
    void doAction(const QString& action) override {
        grid_.setCurrentIndex(index());
        if (action == pressAction() && state().checkable) {
            grid_.rowModel().setData(index(), state().checked ? Qt::Unchecked : Qt::Checked,
                                     Qt::CheckStateRole);
        } else if (action == pressAction()) {
            emit grid_.rowChosen();
        }
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    bool isHeading() const { return row_ == headingRow; }
    QModelIndex index() const { return grid_.rowModel().index(row_, column_); }
    QString heading() const { return grid_.rowModel().columns()[column_].heading(); }
    QString shown(int column) const { return grid_.rowModel().text(row_, column); }

    // A row is told by what it is known by, a cell of it by that and by what it holds.
    QString name() const {
        const auto own = index().data(Qt::AccessibleTextRole).toString();
        if (!own.isEmpty()) {
            return own;
        }
        const int known = grid_.spokenColumn();
        return known < 0 || known == column_ ? shown(column_)
                                             : shown(known) + QStringLiteral(", ") + heading() +
                                                   QLatin1Char(' ') + shown(column_);
    }

    RowGrid& grid_;
    int row_;
    int column_;
};

class GridSpeech final : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit GridSpeech(RowGrid& grid)
        : QAccessibleWidget(&grid, QAccessible::Table)
        , grid_(grid) {}
    ~GridSpeech() override { forget(); }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    // Headings first, then row by row.
    int childCount() const override { return (rowCount() + 1) * columnCount(); }
    QAccessibleInterface* child(int index) const override {
        const int columns = columnCount();
        return index < 0 || columns == 0 ? nullptr
                                         : cellAt(index / columns + headingRow, index % columns);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        auto* cell = child == nullptr
                         ? nullptr
                         : const_cast<QAccessibleInterface*>(child)->tableCellInterface();
        return cell == nullptr
                   ? -1
                   : (cell->rowIndex() - headingRow) * columnCount() + cell->columnIndex();
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const auto at = grid_.indexAt(grid_.viewport()->mapFromGlobal(QPoint(x, y)));
        return at.isValid() ? cell(at.row(), at.column()) : nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        const auto at = grid_.currentIndex();
        return at.isValid() ? cell(at.row(), at.column()) : nullptr;
    }

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override {
        const auto shown = shownColumns(grid_);
        const bool isThere = row >= headingRow && row < rowCount() && column >= 0 &&
                             column < static_cast<int>(shown.size());
        return isThere ? cell(row, shown[column]) : nullptr;
    }
    int selectedCellCount() const override { return static_cast<int>(selectedCells().size()); }
    QList<QAccessibleInterface*> selectedCells() const override {
        QList<QAccessibleInterface*> cells;
        for (const int row : selectedRows()) {
            for (const int column : shownColumns(grid_)) {
                cells << cell(row, column);
            }
        }
        return cells;
    }
    QString columnDescription(int column) const override {
        const auto* heading = cellAt(headingRow, column);
        return heading == nullptr ? QString() : heading->text(QAccessible::Name);
    }
    QString rowDescription(int row) const override {
        const int known = grid_.spokenColumn();
        return known < 0 || row < 0 || row >= rowCount() ? QString()
                                                         : grid_.rowModel().text(row, known);
    }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
    int columnCount() const override { return static_cast<int>(shownColumns(grid_).size()); }
    int rowCount() const override { return grid_.rowModel().rowCount(); }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override {
        QList<int> rows;
        for (const auto& index : grid_.selectionModel()->selectedRows()) {
            rows << index.row();
        }
        return rows;
    }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int row) const override { return selectedRows().contains(row); }
    bool selectRow(int row) override {
        const auto shown = shownColumns(grid_);
        if (row < 0 || row >= rowCount() || shown.empty()) {
            return false;
        }
        grid_.setCurrentIndex(grid_.rowModel().index(row, shown.front()));
        return true;
    }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override { forget(); }

    QAccessibleInterface* cell(int row, int column) const {
        auto& id = cells_[{row, column}];
        if (id == 0) {
            id = QAccessible::registerAccessibleInterface(new CellSpeech(grid_, row, column));
        }
        return QAccessible::accessibleInterface(id);
    }

private:
    void forget() {
        for (const auto id : std::as_const(cells_)) {
            QAccessible::deleteAccessibleInterface(id);
        }
        cells_.clear();
    }

    RowGrid& grid_;
    mutable QHash<std::pair<int, int>, QAccessible::Id> cells_; // by row and column of the model
};

QList<QAccessibleInterface*> CellSpeech::columnHeaderCells() const {
    return {static_cast<GridSpeech*>(table())->cell(headingRow, column_)};
}

QAccessibleInterface* makeSpeech(const QString& /*className*/, QObject* object) {
    auto* grid = qobject_cast<RowGrid*>(object);
    return grid == nullptr ? nullptr : new GridSpeech(*grid);
}

} // namespace

void speakGrids() {
    static const bool isInstalled = [] {
        QAccessible::installFactory(makeSpeech);
        return true;
    }();
    Q_UNUSED(isInstalled)
}

void tellFocus(RowGrid& grid, const QModelIndex& cell) {
    auto* spoken =
        grid.hasFocus() && cell.isValid() ? QAccessible::queryAccessibleInterface(&grid) : nullptr;
    if (spoken != nullptr) {
        QAccessibleEvent event(&grid, QAccessible::Focus);
        event.setChild(spoken->indexOfChild(spoken->focusChild()));
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace velcro::ui

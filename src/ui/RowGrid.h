// The grid of the screens: whole rows, sorted by a click on a heading, read at arm's length. Columns
// that are declared so can be ticked and typed into.
#pragma once

#include "ui/RowSetModel.h"

#include <QTableView>

namespace velcro::ui {

class RowGrid : public QTableView
{
    Q_OBJECT

public:
    explicit RowGrid(QWidget* parent = nullptr);

    void setColumns(std::vector<GridColumn> columns);
    /// Shows new rows and stands on the first one.
    void setRows(const sql::RowSet& rows);
    RowSetModel& rowModel() { return model_; }
    const RowSetModel& rowModel() const { return model_; }

    /// Row of the result the user stands on; nothing in an empty grid.
    std::optional<std::size_t> currentResultRow() const;
    /// Stands on the row whose field reads as the value; false, and stays, when there is none.
    bool locate(const QString& field, const QString& value);
    /// Leaves the rows that show the text somewhere, in any case, and stands on the first one.
    void filter(const QString& text);

    void first();
    void previous();
    void next();
    void last();

    /// Takes what is being typed into a cell.
    void endEdit();

    /// In pixels; of a hidden column, what its rows want.
    int widthOf(int column) const;
    /// The user's own width, which stays when rows come.
    void setWidthOf(int column, int width);
    /// Gives the columns that are shown the widths they have on first show.
    void fitColumns();
    /// The field that a row is known by to a screen reader, such as its number; a list whose cells
    /// are typed into needs none.
    void setSpokenField(const QString& field) { spokenField_ = field; }
    /// Its column; -1 without one.
    int spokenColumn() const;
    /// After columns were hidden: highlight and keys want a current cell that is seen.
    void standOnShownColumn();

signals:
    /// Enter on a row, or a double click.
    void rowChosen();
    /// The user stands on another row, or the rows are new.
    void currentRecordChanged();

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    int sizeHintForColumn(int column) const override;

private:
    void showOnlyVisibleColumns();
    void allowEditing();
    void tickCurrent();
    /// A column on first show.
    struct Fit
    {
        int index;
        int wanted;  // shows all of it
        int least;   // what it is narrowed to at most
        bool isLong; // a text that gives way where room is short
        bool typed;  // holds what is typed
        int width = 0;
    };
    std::vector<Fit> wantedWidths() const;
    /// Width of a column that shows so many letters of its text.
    int narrowed(int letters) const;
    /// Gives long texts so many letters; how many columns fit, and the room that is left.
    int narrow(std::vector<Fit>& fits, int letters, int& room) const;
    void shareRoom(std::vector<Fit>& fits, int room) const;
    void layColumnsOut();
    void goTo(int viewRow);

    RowSetModel model_;
    QString spokenField_;
    int tickColumn_ = -1;
    bool columnsFitted_ = false;
    bool layingOut_ = false;
    std::vector<Fit> fits_; // of the columns as they stand; empty once somebody changed a width
};

} // namespace velcro::ui

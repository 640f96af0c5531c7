// TfrmCMN005, in which a user chooses and orders the columns of a grid.
#pragma once

#include "screens/Screen.h"
#include "ui/GridLayout.h"

#include <vector>

class QHBoxLayout;
namespace velcro::ui {
class RowGrid;
}

class TfrmCMN005 : public Screen
{
    Q_OBJECT

public:
    /// Lists the grid's columns in view order, but those that the user must not see.
    TfrmCMN005(const velcro::ui::RowGrid& grid, QWidget* parent);

    bool xApply = false;
    bool xSave = false;
    bool xDelete = false;

    /// As the list stands.
    std::vector<velcro::ui::GridLayoutColumn> columns() const;

private:
    void makeList(const velcro::ui::RowGrid& grid);
    void makeButtons();
    void tickAll(bool on);
    void moveSelected(int by);
    void finish(bool apply, bool remove);

    void showColumns(int current);
    bool isTicked(std::size_t row) const;

    struct Column
    {
        int index; // in the grid
        bool ticked;
        QString heading;
    };
    std::vector<Column> listed_; // in the list's order; the ticks are the list's own
    velcro::ui::RowGrid* clGridColumns = nullptr;
};

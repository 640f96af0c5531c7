// How a user arranged a grid: which columns, in which order, how wide, sorted by which. It is kept
// as a short text that people can read:
//
//   [Grid]
//   Version=1
//   Column.OrderNo=shown,120
//   Column.Notes=hidden,200
//   Sort=OrderNo,descending
//
// Columns stand in view order; the widths are pixels.
#pragma once

#include <QString>

#include <vector>

namespace velcro::ui {

class RowGrid;

struct GridLayoutColumn
{
    int index; // in the model
    bool shown;
};

/// All columns of the grid in view order.
std::vector<GridLayoutColumn> gridColumnOrder(const RowGrid& grid);
/// Puts these columns first, in this order, shown or hidden as they say; the others keep theirs.
void arrangeGrid(RowGrid& grid, const std::vector<GridLayoutColumn>& columns);

QString gridLayoutText(const RowGrid& grid);
/// As far as the text fits the grid's columns: one that is gone is passed over, one that is new
/// stays behind the others as the screen declares it. False, and the grid stays as it is, for a text
/// that is none of these or of a version to come.
bool restoreGridLayout(RowGrid& grid, const QString& text);

} // namespace velcro::ui

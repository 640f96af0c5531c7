// What a screen reader is told of a grid: the columns that are shown, and which row the user is on.
#pragma once

#include <QAccessible>

class QModelIndex;

namespace velcro::ui {

class RowGrid;

/// Call before the first grid is spoken; more calls do nothing.
void speakGrids();
/// Tells that the user stands on this cell now.
void tellFocus(RowGrid& grid, const QModelIndex& cell);

} // namespace velcro::ui

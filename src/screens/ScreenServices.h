// What list and detail screens ask of units that are not theirs. An empty service greys the entry
// that would call it.
#pragma once

#include <QString>

#include <functional>

namespace velcro::ui {
class RowGrid;
}

struct ScreenServices
{
    /// Lets the user choose and order the columns of a grid, and keeps that under the grid's name.
    std::function<void(velcro::ui::RowGrid& xGrid, const QString& xGridName)> gridCustom;
    /// Writes the grid to a spreadsheet and opens it.
    std::function<void(velcro::ui::RowGrid& xGrid, const QString& xName)> exportExcell;
    /// Shows the technical reference of a screen, by the name of its unit.
    std::function<void(const QString& xFormCode)> techHelp;
};

inline ScreenServices gScreenServices;

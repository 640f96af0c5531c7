// What a user does with a grid as a whole: arrange it, keep the arrangement, take the grid into a
// spreadsheet. Arrangements lie in table SysSaveGrids, one per company, user and screen.
#pragma once

#include <QString>

namespace velcro::ui {
struct GridColumn;
class RowGrid;
} // namespace velcro::ui

/// Columns of costs and profits, by their fields' names, are for users with gAllowViewCost alone.
bool mayShowColumn(const velcro::ui::GridColumn& column);

/// Shows the dialog, applies what it gives and keeps it or removes what was kept. xGridName: the
/// unit of the screen.
void sfvel_GridCustom(velcro::ui::RowGrid& xGrid, const QString& xGridName);
/// Keeps the layout in place of an older one. A failure is raised with its reason.
void sfvel_SaveGrids(const QString& xGridName, const QString& layout);
/// Applies the stored layout where there is one, as far as it fits. Failures of the read go on.
void sfvel_LoadSavedGrid(velcro::ui::RowGrid& myGrid, const QString& sGridName);
void sfvel_DeleteGrids(const QString& xGridName);

/// Writes the grid to a workbook beside the program's temporary folder and opens it with the
/// desktop. A failure is raised as VelmaraError; nothing happens when the user cancels.
void sfvel_ExportExcell(const velcro::ui::RowGrid& xGrid, const QString& xName);

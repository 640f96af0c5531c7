// Routines that the repair order screens share.
#pragma once

#include <QString>

class QWidget;

namespace velcro::ui {
class RowGrid;
}

/// RecID that the next list of items or processes stands on when it opens, which then sets it back
/// to 0; 0 leaves it on its first row. For a module that leads a user there.
inline int gMainRecID = 0;
void cro_LocateMainRecord(velcro::ui::RowGrid& grid);

/// Lets the user choose a customer. The account, blank if none was chosen; gSParam1 has the name and
/// gSParam2 the default branch. The starting search is handed on and not applied: the list always
/// opens whole.
QString cro_BrowseDEBMaster(QString xStartSearch, QWidget* parent = nullptr);

// The numbers below count within the session's company and branch. A failed read shows nothing: it
// gives 0, sets gErrorCode to 1 and puts its reason into gErrorMsg; both are cleared before. Read
// without a lock, so two seats may be given one number.

/// The highest item number of the order (CRORepItems) plus one; 1 for the first item.
int cro_GenerateItemNo(const QString& xCRONo);
/// The highest picture number of the item (CRORepItmImages) plus one.
int cro_GenerateImageID(const QString& xCRONo, const QString& xItemNo);
/// How many items the order has.
int cro_GetReceivedItemCount(const QString& xCRONo);

// Routines that the repair order screens share.
#pragma once

#include <QString>

class QWidget;

/// Lets the user choose a customer. The account, blank if none was chosen; gSParam1 has the name and
/// gSParam2 the default branch. The starting search is handed on and not applied: the list always
/// opens whole.
QString cro_BrowseDEBMaster(QString xStartSearch, QWidget* parent = nullptr);

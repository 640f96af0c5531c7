// Combo boxes over code tables: filling them, and finding a stored code among their items.
#pragma once

#include <QString>

class QComboBox;

/// Fills a combo box from a code table: leading items by xALL, then the rows. An unknown xTable
/// leaves the combo as it is. Blank gCmbCO and gCmbBranch become the session's. Throws VelmaraError
/// when the read fails.
void sld_LoadCombo(const QString& xTable, QComboBox& cmbCombo, const QString& xALL,
                   const QString& xParam1 = {}, const QString& xParam2 = {},
                   const QString& xParam3 = {});

/// Index of the first item equal to xString after trimming, case-sensitive; -1 if there is none.
/// With xStripCode the items count by the code before their first "-".
int sfg_FindComboIndex(const QString& xString, const QComboBox& xComboBox, bool xStripCode);

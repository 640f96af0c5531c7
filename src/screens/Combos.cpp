#include "screens/Combos.h"

#include "data/Session.h"
#include "data/SysLoadData.h"
#include "data/TextHelpers.h"

#include <QComboBox>

void sld_LoadCombo(const QString& xTable, QComboBox& cmbCombo, const QString& xALL,
                   const QString& xParam1, const QString& xParam2, const QString& xParam3) {
    if (gCmbCO.trimmed().isEmpty()) {
        gCmbCO = gCO;
    }
    if (gCmbBranch.trimmed().isEmpty()) {
        gCmbBranch = gBranch;
    }
    const QString wSQL = sld_LoadComboSQL(xTable, xParam1, xParam2, xParam3, gCmbCO, gCmbBranch);
    if (wSQL.isEmpty()) {
        return;
    }
    cmbCombo.clear();
    cmbCombo.addItems(sld_ComboLeadingItems(xALL));
    cmbCombo.addItems(sld_ComboRows(xTable, wSQL, xParam1));
    cmbCombo.setMaxVisibleItems(qMin(cmbCombo.count(), 20));
}

int sfg_FindComboIndex(const QString& xString, const QComboBox& xComboBox, bool xStripCode) {
    const QString wanted = xString.trimmed();
    for (int index = 0; index < xComboBox.count(); ++index) {
        const QString item = xComboBox.itemText(index);
        if ((xStripCode ? sfg_StripCode(item, QLatin1Char('-'), "Y") : item.trimmed()) == wanted) {
            return index;
        }
    }
    return -1;
}

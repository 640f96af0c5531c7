#include "repairs/SysCRO.h"

#include "data/Session.h"
#include "lookups/CRO900.h"
#include "ui/Modal.h"

QString cro_BrowseDEBMaster(QString xStartSearch, QWidget* parent) {
    sfg_ResetParamFields({});
    if (xStartSearch.trimmed() == QLatin1String("?")) {
        xStartSearch.clear();
    }
    TfrmCRO900 selection(parent);
    selection.xStartSearch = xStartSearch;
    velcro::ui::runModal(selection);
    gSParam[1] = selection.xName;
    gSParam[2] = selection.xDefBranch;
    return selection.xAccount;
}

#include "data/SysDataModel.h"

void freeSharedLists() {
    gVatRates.clear();
    gParameters.clear();
    gAccessRules.clear();
    gRepAccessRules.clear();
    gOpenForms.clear();
    gReportCriteria.clear();
    gSelectCriteria.clear();
    gSelectionList.clear();
}

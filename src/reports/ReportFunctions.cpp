#include "reports/ReportFunctions.h"

#include "reports/RepSys.h"
#include "reports/SysRepUtils.h"

void registerReportFunctions() {
    registerFunctions("Velmara Functions", repSysFunctions());
    registerFunctions("Orvane Functions", sysRepUtilsFunctions());
}

#include "security/AccessCheck.h"

#include "data/Settings.h"
#include "screens/SysFuncGlobal.h"
#include "security/CMN900.h"
#include "security/CMN901.h"
#include "ui/Modal.h"

bool sfvel_CheckUserAccess(const QString& xModule, int xAccessNo, const QString& xDisplay) {
    const QString option = sfvel_GetAccess(xModule, xAccessNo);
    if (option == QLatin1String("Y")) {
        return true;
    }
    if (option.size() == 1 && QStringLiteral("SFG").contains(option)) {
        if (sfvel_SupervisorCheck(xModule, xAccessNo)) {
            return true;
        }
    } else if (option.size() == 1 && QStringLiteral("DWV").contains(option)) {
        if (sfvel_DoubleSuperCheck(xModule, xAccessNo)) {
            return true;
        }
    }
    if (xDisplay == QLatin1String("Y")) {
        sfg_AccessDlg(QStringLiteral("%1 [%2]").arg(xModule).arg(xAccessNo),
                      QStringLiteral("SysFuncVelmara"), QStringLiteral("sfvel_CheckUserAccess"), 0);
    }
    return false;
}

bool sfvel_SupervisorCheck(const QString& xModCode, int xAccessNo) {
    TfrmCMN900 form;
    form.xModCode = xModCode;
    form.xAccessNo = xAccessNo;
    velcro::ui::runModal(form);
    return form.xReturn == QLatin1String("OK");
}

bool sfvel_DoubleSuperCheck(const QString& xModCode, int xAccessNo) {
    TfrmCMN901 form;
    form.xModCode = xModCode;
    form.xAccessNo = xAccessNo;
    velcro::ui::runModal(form);
    return form.xReturn == QLatin1String("OK");
}

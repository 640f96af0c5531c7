#include "application/Settings.h"

#include "application/SysDataModel.h"
#include "application/SysFuncGlobal.h"
#include "security/CMN900.h"
#include "security/CMN901.h"
#include "security/VEL710.h"
#include "ui/Modal.h"

QString sfvel_GetParam(const QString& xParamCode, int xParamNo) {
    for (const auto& parameter : gParameters) {
        if (parameter->ParamNo == xParamNo &&
            parameter->ParamCode.compare(xParamCode, Qt::CaseInsensitive) == 0) {
            return parameter->ParamValue;
        }
    }
    return {};
}

QString sfvel_GetAccess(const QString& xModCode, int xAccessNo) {
    for (const auto& rule : gAccessRules) {
        if (rule->AccessNo == xAccessNo && rule->ModCode == xModCode) {
            return rule->AccessValue;
        }
    }
    return {};
}

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

void sfvel_TechHelp(const QString& xFormCode) {
    TfrmVEL710 form;
    form.xFormCode = xFormCode;
    velcro::ui::runModal(form);
}

#include "data/Settings.h"

#include "data/SysDataModel.h"

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

// Loads the suite's numbered parameters, with the overrides of company, branch and user group, and
// the VAT rates into memory at log-in.
#pragma once

#include <QHash>
#include <QString>

#include <array>

struct TParameter;

/// Parameters by "code_number" while they are being loaded; the values belong to gParameters.
using ParameterIndex = QHash<QString, TParameter*>;

/// One group of parameter values for units that read them by number: [1] to [300].
using LegacyParameters = std::array<QString, 301>;

inline LegacyParameters gParam_CO, gParam_Branch, gParam_CRD, gParam_STK, gParam_DEB, gParam_POS,
    gParam_PUR, gParam_REP, gParam_GSM, gParam_UTL, gParam_GLG, gParam_COF, gParam_SYS, gParam_TIL,
    gParam_VIP;

/// Fills gParameters, the legacy arrays and gVatRates from vcSysParmControl, SYSParameter,
/// SYSGrpParam and SysTax. False with the reason in gErrorMsg; what was loaded by then stays.
bool par_LoadParameters(const QString& xCO, const QString& xBranch);

bool par_Load_ParamControl();
bool par_LoadAllParam_Overrides(ParameterIndex& dict, const QString& xCO, const QString& xBranch,
                                const QString& xUserGroup, const QString& xUserCode);
void par_UpdateOrAddParamInDict(ParameterIndex& dict, const QString& xParamCode, int xParamNo,
                                const QString& xValue);
void par_PopulateLegacyArrays();
bool par_LoadVATRates();

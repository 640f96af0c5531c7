#include "security/SysLoadParams.h"

#include "data/DataUCMN.h"
#include "data/DataUVEL.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "data/SysDataModel.h"
#include "security/LogInRead.h"
#include "security/SettingsIndex.h"

namespace {

QString par_CO;
QString par_Branch;

struct LegacyGroup
{
    const char* code;
    LegacyParameters* values;
};

constexpr LegacyGroup legacyGroups[] = {
    {"CO", &gParam_CO},   {"BRANCH", &gParam_Branch}, {"CRD", &gParam_CRD}, {"STK", &gParam_STK},
    {"DEB", &gParam_DEB}, {"POS", &gParam_POS},       {"PUR", &gParam_PUR}, {"REP", &gParam_REP},
    {"GSM", &gParam_GSM}, {"UTL", &gParam_UTL},       {"GLG", &gParam_GLG}, {"COF", &gParam_COF},
    {"SYS", &gParam_SYS}, {"TIL", &gParam_TIL},       {"VIP", &gParam_VIP},
};

/// The group a definition belongs to: its level, or its module where it is of no level. Throws
/// std::out_of_range, which no read keeps to itself, for a blank xParmType.
QString groupCode(const QString& xParmType, const QString& xModCode) {
    if (xParmType.isEmpty()) {
        throw std::out_of_range("A row of vcSysParmControl has an empty ParmType.");
    }
    switch (xParmType.at(0).unicode()) {
    case 'B':
        return QStringLiteral("BRANCH");
    case 'C':
        return QStringLiteral("CO");
    case 'U':
        return QStringLiteral("USER");
    default:
        return xModCode.trimmed();
    }
}

TParameter* addParameter(const QString& xCode, int xNumber, const QString& xName,
                         const QString& xValue) {
    auto parameter = std::make_unique<TParameter>();
    parameter->ParamCode = xCode;
    parameter->ParamNo = xNumber;
    parameter->ParamName = xName;
    parameter->ParamValue = xValue;
    gParameters.push_back(std::move(parameter));
    return gParameters.back().get();
}

// Each group is set on one level only: a value of the user's group does not fall back on the
// branch's, nor the branch's on the company's. Modules are set by branch, three of them by company.
const QStringList parameterOverrides = {
    "SELECT 'CO' AS [ParamCode], [ParamNo], [ParamValue], 1 AS [Priority]",
    "  FROM SYSParameter WITH (NOLOCK)",
    " WHERE [CO] = :CO AND [Branch] = '' AND [ModCode] = '' AND UserCode = ''",
    "UNION ALL",
    "SELECT 'BRANCH' AS [ParamCode], [ParamNo], [ParamValue], 2 AS [Priority]",
    "  FROM SYSParameter WITH (NOLOCK)",
    " WHERE [CO] = :CO AND [Branch] = :Branch",
    "   AND [ModCode] = '' AND [UserCode] = ''",
    "UNION ALL",
    "SELECT [ModCode] AS [ParamCode], [ParamNo], [ParamValue], 3 AS [Priority]",
    "  FROM SYSParameter WITH (NOLOCK)",
    " WHERE [CO] = :CO AND [Branch] = ''",
    "   AND [ModCode] IN ( 'CRD','GSM','GLG') AND [UserCode] = ''",
    "UNION ALL",
    "SELECT [ModCode] AS [ParamCode], [ParamNo], [ParamValue], 4 AS [Priority]",
    "  FROM SYSParameter WITH (NOLOCK)",
    " WHERE [CO] = :CO AND [Branch] = :Branch",
    "   AND [ModCode] NOT IN ( 'CRD','GSM','GLG') AND [UserCode] = ''",
    "UNION ALL",
    "SELECT 'USER' AS [ParamCode], [ParamNo], [ParamValue], 5 AS [Priority]",
    "  FROM SYSGrpParam WITH (NOLOCK)",
    " WHERE [CO] = :CO AND [UserGroup] = :UserGroup",
    " ORDER BY [Priority]",
};

} // namespace

bool par_LoadParameters(const QString& xCO, const QString& xBranch) {
    par_CO = xCO;
    par_Branch = xBranch;
    if (!par_Load_ParamControl()) {
        return false;
    }
    ParameterIndex index;
    for (const auto& parameter : gParameters) {
        const auto key = settingKey(parameter->ParamCode, parameter->ParamNo);
        if (!index.contains(key)) {
            index.insert(key, parameter.get());
        }
    }
    if (!par_LoadAllParam_Overrides(index, par_CO, par_Branch, gUserGroup, gUserCode)) {
        return false;
    }
    par_PopulateLegacyArrays();
    return par_LoadVATRates();
}

bool par_Load_ParamControl() {
    gParameters.clear();
    return readRows(cData->VelmaraCommon,
                    {
                        "SELECT * FROM vcSysParmControl WITH (NOLOCK)",
                        " WHERE [Suite] = " + QuotedStr(gSuite),
                        " ORDER BY [ParmType], [ModCode], [ParmNo]",
                    },
                    keptInErrorMsg("[SysLoadParams.par_Load_ParamControl] SQL Error reading "
                                   "\"vcSysParmControl\".\r\"",
                                   "\"."),
                    [](Statement& row) {
                        for (; !row.Eof(); row.Next()) {
                            addParameter(groupCode(row.FieldByName("ParmType").AsString(),
                                                   row.FieldByName("ModCode").AsString()),
                                         row.FieldByName("ParmNo").AsInteger(),
                                         row.FieldByName("ParmName").AsString(),
                                         row.FieldByName("DefaultValue").AsString());
                        }
                    });
}

bool par_LoadAllParam_Overrides(ParameterIndex& dict, const QString& xCO, const QString& xBranch,
                                const QString& xUserGroup, const QString&) {
    Statement query(gData->Velmara);
    query.setText(parameterOverrides);
    query.ParamByName("CO").setString(xCO);
    query.ParamByName("Branch").setString(xBranch);
    query.ParamByName("UserGroup").setString(xUserGroup);
    const auto failure = keptInErrorMsg("[SysLoadParams.par_LoadAllParam_Overrides] SQL Error "
                                        "loading parameter overrides. \"",
                                        "\".");
    return readRows(query, failure, [&dict](Statement& row) {
        for (; !row.Eof(); row.Next()) {
            par_UpdateOrAddParamInDict(dict, row.FieldByName("ParamCode").AsString(),
                                       row.FieldByName("ParamNo").AsInteger(),
                                       row.FieldByName("ParamValue").AsString());
        }
    });
}

// An override without a definition is kept, so that it can be read all the same.
void par_UpdateOrAddParamInDict(ParameterIndex& dict, const QString& xParamCode, int xParamNo,
                                const QString& xValue) {
    TParameter*& entry = dict[settingKey(xParamCode, xParamNo)];
    if (entry) {
        entry->ParamValue = xValue;
    } else {
        entry = addParameter(xParamCode, xParamNo, QString(), xValue);
    }
}

void par_PopulateLegacyArrays() {
    for (const auto& parameter : gParameters) {
        if (parameter->ParamNo < 1 || parameter->ParamNo > 300) {
            continue;
        }
        for (const auto& group : legacyGroups) {
            if (parameter->ParamCode.compare(QLatin1String(group.code), Qt::CaseInsensitive) == 0) {
                (*group.values)[static_cast<std::size_t>(parameter->ParamNo)] =
                    parameter->ParamValue;
            }
        }
    }
}

bool par_LoadVATRates() {
    gVatRates.clear();
    const auto failure =
        keptInErrorMsg("[SysLoadParams.par_LoadVATRates] SQL Error reading \"SysTax\".\r\"", "\".");
    return readRows(gData->Velmara, {"SELECT * FROM SysTax WITH (NOLOCK) ORDER BY [SeqNo]"},
                    failure, [](Statement& row) {
                        for (; !row.Eof(); row.Next()) {
                            auto rate = std::make_unique<TVatRate>();
                            rate->VATCode = row.FieldByName("TaxCode").AsString();
                            rate->Description = row.FieldByName("TaxDesc").AsString();
                            rate->VATRate = row.FieldByName("TaxRate").AsFloat();
                            rate->FromDate = row.FieldByName("FromDate").AsString();
                            rate->ToDate = row.FieldByName("ToDate").AsString();
                            gVatRates.push_back(std::move(rate));
                        }
                        return !gVatRates.empty() || falseBecause("NO VAT Rates Found.");
                    });
}

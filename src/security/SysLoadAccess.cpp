#include "security/SysLoadAccess.h"

#include "data/DataUCMN.h"
#include "data/DataUVEL.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/SysDataModel.h"
#include "security/SettingsIndex.h"

namespace {

using ReportLevels = QHash<int, TRepAccessRule*>;

TAccessRule* addRule(const QString& xModCode, int xAccessNo, const QString& xName,
                     const QString& xValue) {
    auto rule = std::make_unique<TAccessRule>();
    rule->ModCode = xModCode;
    rule->AccessNo = xAccessNo;
    rule->AccessName = xName;
    rule->AccessValue = xValue;
    gAccessRules.push_back(std::move(rule));
    return gAccessRules.back().get();
}

// What is not granted is denied, but the suite's two maintenance users may always use its tools.
QString ungrantedValue(const QString& xModCode) {
    const bool maintenance =
        gUserCode == QLatin1String("KORVAL") || gUserCode == QLatin1String("TORVEN");
    return xModCode == QLatin1String("UTL") && maintenance ? QStringLiteral("Y")
                                                           : QStringLiteral("N");
}

ReadFailure reportFailure(const char* xTable) {
    return keptInErrorMsg(QStringLiteral("[SysLoadAccess.acc_Load_RepAccess] SQL Error on %1: ")
                              .arg(QLatin1String(xTable)));
}

bool loadReportLevels(ReportLevels& levels) {
    return readRows(gData->Velmara,
                    {"SELECT * FROM SysRepAccessLevel WITH (NOLOCK) ORDER BY [AccessLevel]"},
                    reportFailure("SysRepAccessLevel"), [&levels](Statement& row) {
                        for (; !row.Eof(); row.Next()) {
                            auto rule = std::make_unique<TRepAccessRule>();
                            rule->AccessLevel = row.FieldByName("AccessLevel").AsInteger();
                            rule->Description = row.FieldByName("Description").AsString();
                            levels.insert(rule->AccessLevel, rule.get());
                            gRepAccessRules.push_back(std::move(rule));
                        }
                    });
}

bool loadGroupReportLevels(const ReportLevels& levels) {
    Statement query(gData->Velmara);
    query.setText({
        "SELECT [AccessLevel] FROM SYSGrpRepAccess WITH (NOLOCK)",
        " WHERE [UserGroup] = :UserGroup",
    });
    query.ParamByName("UserGroup").setString(gUserGroup);
    return readRows(query, reportFailure("SYSGrpRepAccess"), [&levels](Statement& row) {
        for (; !row.Eof(); row.Next()) {
            if (auto* rule = levels.value(row.FieldByName("AccessLevel").AsInteger())) {
                rule->Allowed = true;
            }
        }
    });
}

bool loadUserReportLevels(const ReportLevels& levels, const QString& xCO, const QString& xBranch,
                          const QString& xUserCode) {
    Statement query(gData->Velmara);
    query.setText({
        "SELECT [AccessLevel], [AllowAccess] FROM SYSUserRepAccess WITH (NOLOCK)",
        " WHERE [CO] = :CO AND [Branch] = :Branch AND [UserCode] = :UserCode",
    });
    query.ParamByName("CO").setString(xCO);
    query.ParamByName("Branch").setString(xBranch);
    query.ParamByName("UserCode").setString(xUserCode);
    return readRows(query, reportFailure("SYSUserRepAccess"), [&levels](Statement& row) {
        for (; !row.Eof(); row.Next()) {
            if (auto* rule = levels.value(row.FieldByName("AccessLevel").AsInteger())) {
                rule->Allowed = row.FieldByName("AllowAccess").AsInteger() == 1;
            }
        }
    });
}

} // namespace

bool acc_LoadAccess(const QString& xCO, const QString& xBranch, const QString& xUserCode) {
    if (!acc_Load_AccessControl()) {
        return false;
    }
    AccessIndex index;
    for (const auto& rule : gAccessRules) {
        const auto key = settingKey(rule->ModCode, rule->AccessNo);
        if (!index.contains(key)) {
            index.insert(key, rule.get());
        }
    }
    return acc_LoadAllAccess_Overrides(index, xCO, xBranch, gUserGroup, xUserCode) &&
           acc_Load_RepAccess(xCO, xBranch, xUserCode);
}

bool acc_Load_AccessControl() {
    gAccessRules.clear();
    Statement query(cData->VelmaraCommon);
    query.setText({
        "SELECT * FROM vcSysAccess WITH (NOLOCK) WHERE [Suite] = :Suite "
        "ORDER BY [ModCode], [AccessNo]",
    });
    query.ParamByName("Suite").setString(gSuite);
    const auto failure = keptInErrorMsg(
        "[SysLoadAccess.acc_Load_AccessControl] SQL Error reading \"vcSysAccess\".\r\"", "\".");
    return readRows(query, failure, [](Statement& row) {
        for (; !row.Eof(); row.Next()) {
            const auto module = row.FieldByName("ModCode").AsString();
            addRule(module, row.FieldByName("AccessNo").AsInteger(),
                    row.FieldByName("AccessName").AsString(), ungrantedValue(module));
        }
    });
}

bool acc_LoadAllAccess_Overrides(AccessIndex& dict, const QString& xCO, const QString& xBranch,
                                 const QString& xUserGroup, const QString& xUserCode) {
    Statement query(gData->Velmara);
    query.setText({
        "SELECT [ModCode], [AccessNo], [Options], 1 AS [Priority] "
        "FROM SYSGrpAccess WITH (NOLOCK) ",
        " WHERE [CO] = :CO AND [UserGroup] = :UserGroup ",
        " UNION ALL SELECT [ModCode], [AccessNo], [Options], 2 AS [Priority] "
        "FROM SYSUserAccess WITH (NOLOCK) ",
        " WHERE [CO] = :CO AND [Branch] = :Branch AND [UserCode] = :UserCode ",
        " ORDER BY [Priority]",
    });
    query.ParamByName("CO").setString(xCO);
    query.ParamByName("UserGroup").setString(xUserGroup);
    query.ParamByName("Branch").setString(xBranch);
    query.ParamByName("UserCode").setString(xUserCode);
    const auto failure = keptInErrorMsg(
        "[SysLoadAccess.acc_LoadAllAccess_Overrides] SQL Error loading access overrides. \"",
        "\".");
    return readRows(query, failure, [&dict](Statement& row) {
        for (; !row.Eof(); row.Next()) {
            acc_UpdateOrAddAccessInDict(dict, row.FieldByName("ModCode").AsString(),
                                        row.FieldByName("AccessNo").AsInteger(),
                                        row.FieldByName("Options").AsString());
        }
    });
}

void acc_UpdateOrAddAccessInDict(AccessIndex& dict, const QString& xModCode, int xAccessNo,
                                 const QString& xValue) {
    TAccessRule*& entry = dict[settingKey(xModCode, xAccessNo)];
    if (entry) {
        entry->AccessValue = xValue;
    } else {
        entry = addRule(xModCode, xAccessNo, QString(), xValue);
    }
}

bool acc_Load_RepAccess(const QString& xCO, const QString& xBranch, const QString& xUserCode) {
    gRepAccessRules.clear();
    ReportLevels levels;
    return loadReportLevels(levels) && loadGroupReportLevels(levels) &&
           loadUserReportLevels(levels, xCO, xBranch, xUserCode);
}

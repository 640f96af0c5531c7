#include "security/SysLoadAccess.h"

#include "data/DataUCMN.h"
#include "data/DataUVEL.h"
#include "data/StatementText.h"
#include "data/SysDataModel.h"
#include "security/SettingsIndex.h"

namespace {

const QString unitName = QStringLiteral("SysLoadAccess");

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

QString reportFault(const char* xTable) {
    return QStringLiteral("[%1.acc_Load_RepAccess] SQL Error on ") + QLatin1String(xTable) +
           QStringLiteral(": %2");
}

bool loadReportLevels(ReportLevels& levels) {
    return readQuietly(reportFault("SysRepAccessLevel"), unitName, [&levels] {
        Statement query(gData->Velmara);
        query.NewRead();
        query.SQL.Add("SELECT * FROM SysRepAccessLevel WITH (NOLOCK) ORDER BY [AccessLevel]");
        for (query.Open(); !query.Eof(); query.Next()) {
            auto rule = std::make_unique<TRepAccessRule>();
            rule->AccessLevel = query.FieldByName("AccessLevel").AsInteger();
            rule->Description = query.FieldByName("Description").AsString();
            levels.insert(rule->AccessLevel, rule.get());
            gRepAccessRules.push_back(std::move(rule));
        }
    });
}

bool loadGroupReportLevels(const ReportLevels& levels) {
    return readQuietly(reportFault("SYSGrpRepAccess"), unitName, [&levels] {
        Statement query(gData->Velmara);
        query.NewRead();
        query.SQL.Add("SELECT [AccessLevel] FROM SYSGrpRepAccess WITH (NOLOCK)");
        query.SQL.Add(" WHERE [UserGroup] = :UserGroup");
        query.ParamByName("UserGroup").setString(gUserGroup);
        for (query.Open(); !query.Eof(); query.Next()) {
            if (auto* rule = levels.value(query.FieldByName("AccessLevel").AsInteger())) {
                rule->Allowed = true;
            }
        }
    });
}

bool loadUserReportLevels(const ReportLevels& levels, const QString& xCO, const QString& xBranch,
                          const QString& xUserCode) {
    return readQuietly(reportFault("SYSUserRepAccess"), unitName, [&] {
        Statement query(gData->Velmara);
        query.NewRead();
        query.SQL.Add("SELECT [AccessLevel], [AllowAccess] FROM SYSUserRepAccess WITH (NOLOCK)");
        query.SQL.Add(" WHERE [CO] = :CO AND [Branch] = :Branch AND [UserCode] = :UserCode");
        query.ParamByName("CO").setString(xCO);
        query.ParamByName("Branch").setString(xBranch);
        query.ParamByName("UserCode").setString(xUserCode);
        for (query.Open(); !query.Eof(); query.Next()) {
            if (auto* rule = levels.value(query.FieldByName("AccessLevel").AsInteger())) {
                rule->Allowed = query.FieldByName("AllowAccess").AsInteger() == 1;
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
    const auto fault =
        QStringLiteral("[%1.acc_Load_AccessControl] SQL Error reading \"vcSysAccess\".\r\"%2\".");
    return readQuietly(fault, unitName, [] {
        Statement query(cData->VelmaraCommon);
        query.NewRead();
        query.SQL.Add("SELECT * FROM vcSysAccess WITH (NOLOCK) WHERE [Suite] = :Suite "
                      "ORDER BY [ModCode], [AccessNo]");
        query.ParamByName("Suite").setString(gSuite);
        for (query.Open(); !query.Eof(); query.Next()) {
            const auto module = query.FieldByName("ModCode").AsString();
            addRule(module, query.FieldByName("AccessNo").AsInteger(),
                    query.FieldByName("AccessName").AsString(), ungrantedValue(module));
        }
    });
}

bool acc_LoadAllAccess_Overrides(AccessIndex& dict, const QString& xCO, const QString& xBranch,
                                 const QString& xUserGroup, const QString& xUserCode) {
    const auto fault = QStringLiteral(
        "[%1.acc_LoadAllAccess_Overrides] SQL Error loading access overrides. \"%2\".");
    return readQuietly(fault, unitName, [&] {
        Statement query(gData->Velmara);
        query.NewRead();
        query.SQL.Add("SELECT [ModCode], [AccessNo], [Options], 1 AS [Priority] "
                      "FROM SYSGrpAccess WITH (NOLOCK) ");
        query.SQL.Add(" WHERE [CO] = :CO AND [UserGroup] = :UserGroup ");
        query.SQL.Add(" UNION ALL SELECT [ModCode], [AccessNo], [Options], 2 AS [Priority] "
                      "FROM SYSUserAccess WITH (NOLOCK) ");
        query.SQL.Add(" WHERE [CO] = :CO AND [Branch] = :Branch AND [UserCode] = :UserCode ");
        query.SQL.Add(" ORDER BY [Priority]");
        query.ParamByName("CO").setString(xCO);
        query.ParamByName("UserGroup").setString(xUserGroup);
        query.ParamByName("Branch").setString(xBranch);
        query.ParamByName("UserCode").setString(xUserCode);
        for (query.Open(); !query.Eof(); query.Next()) {
            acc_UpdateOrAddAccessInDict(dict, query.FieldByName("ModCode").AsString(),
                                        query.FieldByName("AccessNo").AsInteger(),
                                        query.FieldByName("Options").AsString());
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

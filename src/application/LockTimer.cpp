#include "application/LockTimer.h"

#include "data/DataUVEL.h"
#include "data/ReadGuard.h"
#include "data/Session.h"
#include "data/StatementText.h"

#include <optional>

namespace {

/// A group with this time or more is exempt.
constexpr int exempt = 999;
const QString routine = QStringLiteral("sfvel_Get_LockAppTimer");

std::optional<int> firstLockTime(Statement& query) {
    query.Open();
    if (query.IsEmpty()) {
        return std::nullopt;
    }
    return query.FieldByName("LockTime").AsInteger();
}

std::optional<int> programRule(const QString& program) {
    Statement query(gData->Velmara);
    query.NewRead();
    query.SQL.Add("SELECT [LockTime] FROM SYSLockAppTimers WITH (NOLOCK) ");
    query.SQL.Add(" WHERE [CO] = " + QuotedStr(gCO));
    query.SQL.Add(" AND [Branch] = " + QuotedStr(gBranch));
    query.SQL.Add(" AND [PgmName] = " + QuotedStr(program));
    return firstLockTime(query);
}

std::optional<int> groupRule(const QString& program) {
    Statement query(gData->Velmara);
    query.NewRead();
    query.SQL.Add("SELECT [LockTime] FROM SYSGrpLockAppTimers WITH (NOLOCK) ");
    query.SQL.Add(" WHERE [CO] = " + QuotedStr(gCO));
    query.SQL.Add(" AND [Branch] = " + QuotedStr(gBranch));
    query.SQL.Add(" AND [UserGroup] = " + QuotedStr(gUserGroup));
    query.SQL.Add(" AND [PgmName] = " + QuotedStr(program));
    return firstLockTime(query);
}

} // namespace

int sfvel_Get_LockAppTimer(const QString& xPgmName) {
    const bool hasExtension = xPgmName.endsWith(QLatin1String(".exe"));
    const QString program = hasExtension ? xPgmName.chopped(4) : xPgmName;
    const auto ofProgram = guardedRead("SFVEL-12", "SYSLockAppTimers", "SysFuncVelmara", routine,
                                       [&program] { return programRule(program); });
    if (!ofProgram) {
        return 0;
    }
    const auto ofGroup = guardedRead("SFVEL-13", "SYSGrpLockAppTimers", "SysFuncVelmara", routine,
                                     [&program] { return groupRule(program); });
    if (!ofGroup) {
        return *ofProgram;
    }
    return *ofGroup >= exempt ? 0 : *ofGroup;
}

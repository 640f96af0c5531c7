#include "application/LockTimer.h"

#include "data/DataUVEL.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"

#include <optional>

namespace {

/// A group with this time or more is exempt.
constexpr int exempt = 999;

using LockTime = std::optional<int>;

LockTime firstLockTime(const QStringList& lines, const char* errorNo, const char* table) {
    return readRows(
        gData->Velmara, lines,
        dialogAndRaise(errorNo, sqlErrorOnTable(table), "SysFuncVelmara", "sfvel_Get_LockAppTimer"),
        [](const Statement& rows) {
            return rows.IsEmpty() ? LockTime() : rows.FieldByName("LockTime").AsInteger();
        });
}

LockTime programRule(const QString& program) {
    return firstLockTime(
        {
            "SELECT [LockTime] FROM SYSLockAppTimers WITH (NOLOCK) ",
            " WHERE [CO] = " + QuotedStr(gCO),
            " AND [Branch] = " + QuotedStr(gBranch),
            " AND [PgmName] = " + QuotedStr(program),
        },
        "SFVEL-12", "SYSLockAppTimers");
}

LockTime groupRule(const QString& program) {
    return firstLockTime(
        {
            "SELECT [LockTime] FROM SYSGrpLockAppTimers WITH (NOLOCK) ",
            " WHERE [CO] = " + QuotedStr(gCO),
            " AND [Branch] = " + QuotedStr(gBranch),
            " AND [UserGroup] = " + QuotedStr(gUserGroup),
            " AND [PgmName] = " + QuotedStr(program),
        },
        "SFVEL-13", "SYSGrpLockAppTimers");
}

} // namespace

int sfvel_Get_LockAppTimer(const QString& xPgmName) {
    const bool hasExtension = xPgmName.endsWith(QLatin1String(".exe"));
    const QString program = hasExtension ? xPgmName.chopped(4) : xPgmName;
    const LockTime ofProgram = programRule(program);
    if (!ofProgram) {
        return 0;
    }
    const LockTime ofGroup = groupRule(program);
    if (!ofGroup) {
        return *ofProgram;
    }
    return *ofGroup >= exempt ? 0 : *ofGroup;
}

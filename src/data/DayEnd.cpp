#include "data/DayEnd.h"

#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/PeriodAndTax.h"
#include "data/ReadGuard.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "platform/seat/Programs.h"

namespace {

bool isAskedFor(const QString& runDate) {
    Statement query(gData->Velmara);
    query.NewRead();
    query.SQL.Add("SELECT * FROM SYSEODLog WITH (NOLOCK) ");
    query.SQL.Add(" WHERE [CO] = " + QuotedStr(gCO));
    query.SQL.Add("   AND [Branch] = " + QuotedStr(gBranch));
    query.SQL.Add("   AND [RunDate] = " + QuotedStr(runDate));
    query.Open();
    return !query.IsEmpty();
}

bool askFor(const QString& runDate, const QString& monthEnd) {
    const QStringList values{gCO, gBranch,     runDate,    monthEnd,  {},      {},  {},
                             {},  sfg_Date(0), sfg_Time(), gUserCode, gPCName, "X", {}};
    sfg_AddSQL("INSERT INTO SYSEODLog ( "
               "[CO], [Branch], [RunDate], [MonthEnd], [StartDate], [StartTime], [EndDate],  "
               "[EndTime], [DTODate], [DTOTime], [DTOUser], [DTOMacID], [Status], [LogData]   "
               " ) VALUES ( " +
                   QuotedStrArray(values) + ")",
               "NEW");
    return gData->vel_ExecSQL(1);
}

bool isRunFromHere() {
    Statement query(gData->Velmara);
    query.NewRead();
    query.SQL.Add("SELECT * FROM SysEODLog WITH (NOLOCK) ");
    query.SQL.Add(" WHERE [CO] = " + QuotedStr(gCO));
    query.SQL.Add("   AND [Branch] = " + QuotedStr(gBranch));
    query.SQL.Add("   AND [Status] < " + QuotedStr("9"));
    query.SQL.Add("   AND [DTOMacID] = " + QuotedStr(gPCName));
    query.Open();
    return !query.IsEmpty();
}

/// A missing velEOD is silent: the row stays, and no other seat of the branch tries again.
void startDayEnd() {
    const QString program = velcro::seat::findProgram(QStringLiteral("velEOD"));
    if (!program.isEmpty()) {
        velcro::seat::startProgram(program, {gCO, gBranch});
    }
}

} // namespace

bool sfvel_Check_EndOfDay_Run() {
    gEODInitiated = "N";
    const QString yesterday = sfg_Date(-1);
    const bool askedFor =
        guardedRead("SFVEL-10", "SYSEODLog", "SysFuncVelmara", "sfvel_Check_EndOfDay_Run",
                    [&yesterday] { return isAskedFor(yesterday); });
    if (askedFor) {
        return true;
    }
    sfvel_GetPeriod(yesterday);
    const QString wAPTo = gSParam[2];
    const bool result = askFor(yesterday, yesterday == wAPTo ? "Y" : "N");
    gEODInitiated = "Y";
    startDayEnd();
    return result;
}

bool sfvel_Check_DayEnd_Progress() {
    try {
        return guardedRead("SFVEL-11", "SysEODLog", "SysFuncVelmara", "sfvel_Check_DayEnd_Progress",
                           isRunFromHere);
    } catch (const std::exception&) {
        return false; // shown already; the session goes on without knowing
    }
}

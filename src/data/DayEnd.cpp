#include "data/DayEnd.h"

#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/PeriodAndTax.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "platform/seat/Programs.h"

namespace {

bool isAskedFor(const QString& runDate) {
    return readRows(gData->Velmara,
                    {
                        "SELECT * FROM SYSEODLog WITH (NOLOCK) ",
                        " WHERE [CO] = " + QuotedStr(gCO),
                        "   AND [Branch] = " + QuotedStr(gBranch),
                        "   AND [RunDate] = " + QuotedStr(runDate),
                    },
                    dialogAndRaise("SFVEL-10", sqlErrorOnTable("SYSEODLog"), "SysFuncVelmara",
                                   "sfvel_Check_EndOfDay_Run"),
                    hasRow);
}

bool askFor(const QString& runDate, const QString& monthEnd) {
    const QStringList values{gCO, gBranch,     runDate,    monthEnd,  {},      {},  {},
                             {},  sfg_Date(0), sfg_Time(), gUserCode, gPCName, "X", {}};
    sfg_AddSQL(
        {
            "INSERT INTO SYSEODLog ( ",
            "[CO], [Branch], [RunDate], [MonthEnd], [StartDate], [StartTime], [EndDate],  ",
            "[EndTime], [DTODate], [DTOTime], [DTOUser], [DTOMacID], [Status], [LogData]   ",
            " ) VALUES ( ",
            QuotedStrArray(values),
            ")",
        },
        "NEW");
    return gData->vel_ExecSQL(1);
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
    if (isAskedFor(yesterday)) {
        return true;
    }
    sfvel_GetPeriod(yesterday);
    const QString wAPTo = gSParam[2];
    const bool result = askFor(yesterday, yesterday == wAPTo ? "Y" : "N");
    gEODInitiated = "Y";
    startDayEnd();
    return result;
}

// A failure is shown, and the session goes on without knowing.
bool sfvel_Check_DayEnd_Progress() {
    return readRows(gData->Velmara,
                    {
                        "SELECT * FROM SysEODLog WITH (NOLOCK) ",
                        " WHERE [CO] = " + QuotedStr(gCO),
                        "   AND [Branch] = " + QuotedStr(gBranch),
                        "   AND [Status] < " + QuotedStr("9"),
                        "   AND [DTOMacID] = " + QuotedStr(gPCName),
                    },
                    dialogAndFalse("SFVEL-11", sqlErrorOnTable("SysEODLog"), "SysFuncVelmara",
                                   "sfvel_Check_DayEnd_Progress"),
                    hasRow);
}

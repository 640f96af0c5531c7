#include "application/VersionCheck.h"

#include "application/CMN010.h"
#include "data/DataUCMN.h"
#include "data/DateTimeText.h"
#include "data/ReadGuard.h"
#include "data/Session.h"
#include "data/StatementText.h"

namespace {

/// Takes the row's version into the session; false when the program has no row.
bool readRegistered(const QString& program) {
    Statement query(cData->VelmaraCommon);
    query.NewRead();
    query.SQL.Add("SELECT [Version], [Description] ");
    query.SQL.Add(" FROM vcVersions WITH (NOLOCK)");
    query.SQL.Add(" WHERE [Suite] = " + QuotedStr(gSuite));
    query.SQL.Add(" AND [PgmName] = " + QuotedStr(program));
    query.Open();
    if (query.IsEmpty()) {
        return false;
    }
    if (gEXETitle.trimmed().isEmpty()) {
        gEXETitle = query.FieldByName("Description").AsString();
    }
    gSystemVersion = query.FieldByName("Version").AsString();
    return true;
}

// The last value has always been the time: LastPCName names a machine only after an update.
void registerProgram(const QString& program) {
    sfg_AddSQL("INSERT INTO vcVersions ( "
               "[Suite], [PgmName], [Description], [Version], [LastUpd], [LastPCName]   "
               " ) VALUES ( " +
                   QuotedStrArray({gSuite, program, gEXETitle, gVersion, sfg_Date(0), sfg_Time()}) +
                   ")",
               "NEW");
    cData->cmn_ExecSQL();
}

} // namespace

bool sfg_CheckEXEVersion() {
    const QString wPgm = gEXEName.section(QLatin1Char('.'), 0, 0);
    const bool registered =
        guardedRead("900004", "vcVersions", "SysFuncGlobal", "sg_CheckEXEVersion",
                    [&wPgm] { return readRegistered(wPgm); });
    if (!registered) {
        registerProgram(wPgm);
        return true;
    }
    return gSystemVersion.toUpper() == gVersion.toUpper() || sfg_VersionDlg();
}

bool isHigherVersion(const QString& version, const QString& than) {
    const auto strung = [](QString text) { return StrToInt(text.remove(QLatin1Char('.'))); };
    return strung(version) > strung(than);
}

bool Update_Version(const QString& xEXEName, const QString& xEXEVersion) {
    sfg_AddSQL("UPDATE vcVersions SET "
               "[Version] = " +
                   QuotedStr(xEXEVersion) + "," + "[LastPCName] = " + QuotedStr(gPCName) + "," +
                   "[Lastupd] = " + QuotedStr(sfg_Date(0)) + " WHERE [Suite] = " +
                   QuotedStr(gSuite) + " AND [PgmName] = " + QuotedStr(xEXEName),
               "NEW");
    return cData->cmn_ExecSQL();
}

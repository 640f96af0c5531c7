#include "application/VersionCheck.h"

#include "application/CMN010.h"
#include "data/DataUCMN.h"
#include "data/DateTimeText.h"
#include "data/Errors.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"

namespace {

/// Takes the row's version into the session; false when the program has no row.
bool readRegistered(const QString& program) {
    return readRows(cData->VelmaraCommon,
                    {
                        "SELECT [Version], [Description] ",
                        " FROM vcVersions WITH (NOLOCK)",
                        " WHERE [Suite] = " + QuotedStr(gSuite),
                        " AND [PgmName] = " + QuotedStr(program),
                    },
                    dialogAndRaise("900004", sqlErrorOnTable("vcVersions"), "SysFuncGlobal",
                                   "sg_CheckEXEVersion"),
                    [](const Statement& rows) {
                        if (rows.IsEmpty()) {
                            return false;
                        }
                        if (gEXETitle.trimmed().isEmpty()) {
                            gEXETitle = rows.FieldByName("Description").AsString();
                        }
                        gSystemVersion = rows.FieldByName("Version").AsString();
                        return true;
                    });
}

// The last value has always been the time: LastPCName names a machine only after an update.
void registerProgram(const QString& program) {
    sfg_AddSQL(
        {
            "INSERT INTO vcVersions ( ",
            "[Suite], [PgmName], [Description], [Version], [LastUpd], [LastPCName]   ",
            " ) VALUES ( ",
            QuotedStrArray({gSuite, program, gEXETitle, gVersion, sfg_Date(0), sfg_Time()}),
            ")",
        },
        "NEW");
    cData->cmn_ExecSQL();
}

} // namespace

bool sfg_CheckEXEVersion() {
    const QString wPgm = gEXEName.section(QLatin1Char('.'), 0, 0);
    if (!readRegistered(wPgm)) {
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
    sfg_AddSQL(
        {
            "UPDATE vcVersions SET ",
            "[Version] = " + QuotedStr(xEXEVersion) + ",",
            "[LastPCName] = " + QuotedStr(gPCName) + ",",
            "[Lastupd] = " + QuotedStr(sfg_Date(0)),
            " WHERE [Suite] = " + QuotedStr(gSuite),
            " AND [PgmName] = " + QuotedStr(xEXEName),
        },
        "NEW");
    return cData->cmn_ExecSQL();
}

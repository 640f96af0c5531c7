#include "schema/SysTillDBMods.h"

#include "data/DataUTIL.h"
#include "data/DateTimeText.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/StatementText.h"

namespace {

void addWorkstation() {
    const QString today = sfg_Date(0);
    sfg_AddSQL("INSERT INTO SYSTillControl ( "
               "[PCName], [MacID], [Key], [DBVersion], [LastMaint], [LastUpgrade]   "
               " ) VALUES ( " +
                   QuotedStr(gPCName) + "," + QuotedStr(QString()) + "," + QuotedStr(QString()) +
                   "," + QuotedStr(gLocalDBVersion) + "," + QuotedStr(today) + "," +
                   QuotedStr(today) + ")",
               "NEW");
    tData->til_ExecSQL(1);
}

} // namespace

void tb_Check_Till_DBVersion() {
    try {
        Statement query(tData->VelmaraTILL);
        query.NewRead();
        query.SQL.Add("SELECT * FROM SYSTillControl WITH (NOLOCK) ");
        query.SQL.Add(" WHERE [PCName] = " + QuotedStr(gPCName));
        query.Open();
        if (query.IsEmpty()) {
            addWorkstation();
        } else {
            gLocalDBVersion = query.FieldByName("DBVersion").AsString();
        }
    } catch (const std::exception& e) {
        sfg_ErrorDlg(QStringLiteral("900004"),
                     QStringLiteral("SQL Error on Table: vcVersions :-\r") + errorText(e),
                     QStringLiteral("SysTillDBMods"), QStringLiteral("tb_Check_Till_DBVersion"));
        throw;
    }
}

bool tillSchemaIsBehind() {
    return gTillDBVersion.compare(gLocalDBVersion, Qt::CaseSensitive) > 0;
}

void tb_Upgrade() {}

#include "schema/SysTillDBMods.h"

#include "data/DataUTIL.h"
#include "data/DateTimeText.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"

namespace {

void addWorkstation() {
    const QString today = sfg_Date(0);
    sfg_AddSQL(
        {
            "INSERT INTO SYSTillControl ( ",
            "[PCName], [MacID], [Key], [DBVersion], [LastMaint], [LastUpgrade]   ",
            " ) VALUES ( ",
            valueList({gPCName, {}, {}, gLocalDBVersion, today, today}),
            ")",
        },
        "NEW");
    tData->til_ExecSQL(1);
}

} // namespace

void tb_Check_Till_DBVersion() {
    const auto failure = dialogAndRaise("900004", sqlErrorOnTable("vcVersions"), "SysTillDBMods",
                                        "tb_Check_Till_DBVersion");
    readRows(tData->VelmaraTILL,
             {
                 "SELECT * FROM SYSTillControl WITH (NOLOCK) ",
                 " WHERE [PCName] = " + QuotedStr(gPCName),
             },
             failure, [](const Statement& rows) {
                 if (rows.IsEmpty()) {
                     addWorkstation();
                 } else {
                     gLocalDBVersion = rows.FieldByName("DBVersion").AsString();
                 }
             });
}

bool tillSchemaIsBehind() {
    return gTillDBVersion.compare(gLocalDBVersion, Qt::CaseSensitive) > 0;
}

void tb_Upgrade() {}

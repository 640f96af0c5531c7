#include "schema/SysTillDBMods.h"

#include "data/DataUTIL.h"
#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "schema/ColumnMigrations.h"
#include "schema/Definitions.h"
#include "schema/StoredProcs.h"
#include "schema/SysDBGen.h"
#include "schema/UnfinishedTable.h"

using namespace Qt::Literals::StringLiterals;
using velcro::schema::Change;

namespace {

// Names of the past, but for the last: that table is made anew in every sweep, without its rows.
constexpr const char* droppedTables[] = {"TempPurOrdHdrClm", "TempPurOrdDetClm",
                                         "TempPurOrdDetDeals", "TempPURXPODetPrice"};

QString insertWorkstation(const QString& version, const QString& maintained) {
    return "INSERT INTO SYSTillControl ( "
           "[PCName], [MacID], [Key], [DBVersion], [LastMaint], [LastUpgrade]   "
           " ) VALUES ( " +
           QuotedStr(gPCName) + "," + QuotedStr(QString()) + "," + QuotedStr(QString()) + "," +
           QuotedStr(version) + "," + QuotedStr(maintained) + "," + QuotedStr(sfg_Date(0)) + ")";
}

void createTables() {
    for (const auto* family : velcro::schema::families) {
        for (const auto& table : family->tables) {
            sdb_CreateTable(QString::fromLatin1(table.name), velcro::schema::createText(table));
        }
    }
}

void make(const Change& change) {
    switch (change.kind) {
    case Change::Kind::Add:
        sdb_AddColumn(change.table, change.column, change.type, change.length, change.value);
        break;
    case Change::Kind::Alter:
        sdb_AlterColumn(change.table, change.column, change.type, change.length);
        break;
    case Change::Kind::Drop:
        sdb_DropColumn(change.table, change.column);
        break;
    }
}

void updateTables() {
    for (const char* name : velcro::schema::updateOrder) {
        const auto& step = velcro::schema::updateStep(QString::fromLatin1(name));
        for (const Change& change : velcro::schema::changesOf(step)) {
            make(change);
        }
    }
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
                     velcro::schema::send(insertWorkstation(gLocalDBVersion, sfg_Date(0)));
                 } else {
                     gLocalDBVersion = rows.FieldByName("DBVersion").AsString();
                 }
             });
}

bool tillSchemaIsBehind() {
    return gTillDBVersion.compare(gLocalDBVersion, Qt::CaseSensitive) > 0;
}

void tb_Upgrade() {
    velcro::schema::UnfinishedTable::finish();
    for (const char* table : droppedTables) {
        sdb_DropTable(QString::fromLatin1(table));
    }
    createTables();
    updateTables();
    tb_Update_STKDesc_ColLength();
    tb_Update_Descriptions_Length();
    tb_Indexing();
    stkproc_Stored_Procs();
}

bool tb_Indexing() {
    for (const auto& index : velcro::schema::indexes()) {
        sdb_AddIndex(index.table, index.name, index.key, QString());
    }
    return true;
}

void tb_Update_TillDBVersion(const QString& xVersion) {
    velcro::schema::send("IF EXISTS ( "
                         "SELECT [RECID] FROM SYSTillControl"
                         " WHERE [PCName] = " +
                         QuotedStr(gPCName) +
                         " ) "
                         "UPDATE SYSTillControl SET "
                         "[DBVersion] = " +
                         QuotedStr(xVersion) +
                         ","
                         "[LastUpgrade] = " +
                         QuotedStr(sfg_Date(0)) + " WHERE [PCName] = " + QuotedStr(gPCName) +
                         " ELSE " + insertWorkstation(xVersion, QString()));
}

bool tb_CheckDBVersions() {
    gDBVersion = u"0.0.0"_s;
    gLocalDBVersion = u"0.0.0"_s;
    Statement query(gData->Velmara);
    query.SQL.Add("SELECT * FROM SYSDBConfig WITH (NOLOCK) ");
    query.Open();
    if (!query.IsEmpty()) {
        gDBVersion = query.FieldByName(u"DBVersion"_s).AsString();
    }
    return true;
}

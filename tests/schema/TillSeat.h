// A seat on a till database, and what the program has sent to it.
#pragma once

#include "data/DataUCMN.h"
#include "data/DataUTIL.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "schema/SysDBGen.h"
#include "schema/SysTillDBMods.h"
#include "support/EmbeddedDatabase.h"

namespace velcro::test {

class TillSeat
{
public:
    /// The database lies in a folder, or goes through a factory that is set.
    explicit TillSeat(const std::string& folder, const QString& name = "SEAT1") {
        gPCName = name;
        gLocHost = QString::fromStdString("embedded:" + folder);
        gLocDBName = "Shop";
        gSQLPath = QString::fromStdString(folder + "/" + name.toStdString() + "-");
        gTillDBVersion = requiredTillDBVersion;
        gLocalDBVersion.clear();
        gErrorMsg.clear();
        sfg_ClearSQL();
        cData = std::make_unique<TcData>();
        cData->VelmaraCommon.setConnectString(sfg_BuildUNIConnectionStr(
            QString::fromStdString("embedded:" + common_.folder().path().string()), "Shop", {}, {},
            {}, {}));
        cData->VelmaraCommon.Connect();
        tData = std::make_unique<TtData>();
        tData->ConnectDB_TIL();
        gPrompts.errorForm = [this](const QString& number, const QString& text, const QString&,
                                    const QString&) { shown.append(number + "|" + text); };
        gPrompts.errorBox = [this](const QString&, const QString& text) { shown.append(text); };
        schema::gSchemaWatch = {.afterLookUp = [this] { ++lookUps; },
                                .afterSend =
                                    [this](const QString& statement, bool done) {
                                        sent.append(statement);
                                        if (!done) {
                                            refused.append(statement);
                                        }
                                    }};
    }
    ~TillSeat() {
        schema::gSchemaWatch = {};
        gPrompts = {};
        tData.reset();
        cData.reset();
        gSQLPath.clear();
    }
    TillSeat(const TillSeat&) = delete;
    TillSeat& operator=(const TillSeat&) = delete;

    /// What the log-in does with a till that is behind.
    void sweep() {
        sent.clear();
        refused.clear();
        lookUps = 0;
        tb_Upgrade();
        tb_Update_TillDBVersion(gTillDBVersion);
    }

    QStringList sent, refused, shown;
    int lookUps = 0;

private:
    EmbeddedDatabase common_; // asked for the date
};

/// Everything that the catalogue says of the tables, indexes and procedures of a database.
inline std::string schemaOf(sql::SqlConnection& connection) {
    std::string text;
    for (const char* select :
         {"SELECT TABLE_NAME, COLUMN_NAME, ORDINAL_POSITION, DATA_TYPE, CHARACTER_MAXIMUM_LENGTH,"
          " IS_NULLABLE, COLUMN_DEFAULT FROM INFORMATION_SCHEMA.COLUMNS"
          " ORDER BY TABLE_NAME, ORDINAL_POSITION",
          "SELECT T.name, I.name, I.is_primary_key, C.index_column_id,"
          " COL_NAME(C.object_id, C.column_id) FROM sys.indexes I"
          " INNER JOIN sys.tables T ON T.object_id = I.object_id"
          " INNER JOIN sys.index_columns C ON C.object_id = I.object_id"
          " AND C.index_id = I.index_id ORDER BY T.name, I.name, C.index_column_id",
          "SELECT name FROM sys.procedures ORDER BY name"}) {
        text += EmbeddedDatabase::answerOf(connection, select) + "\n";
    }
    std::replace(text.begin(), text.end(), ';', '\n');
    return text;
}

} // namespace velcro::test

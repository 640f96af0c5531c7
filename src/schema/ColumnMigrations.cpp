#include "schema/ColumnMigrations.h"

#include "data/DataUTIL.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "schema/SysDBGen.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int descriptionLength = 150;
const QStringList descriptionColumns = {u"DESCRIPTION1"_s, u"DESCRIPTION2"_s, u"DESCRIPTION3"_s};

bool alterDescription(const QString& table, const QString& column) {
    return sdb_AlterColumn(table, column, u"nvarchar"_s, QString::number(descriptionLength));
}

void alterDescriptions() {
    Statement query(tData->VelmaraTILL);
    query.SQL.Add("SELECT TABLE_NAME, COLUMN_NAME, CHARACTER_MAXIMUM_LENGTH");
    query.SQL.Add("  FROM INFORMATION_SCHEMA.[Columns]");
    query.SQL.Add(" WHERE COLUMN_NAME IN (" + QuotedStrArray(descriptionColumns) + ")");
    query.SQL.Add(" ORDER BY TABLE_NAME, COLUMN_NAME");
    for (query.Open(); !query.Eof(); query.Next()) {
        if (!alterDescription(query.FieldByName(u"TABLE_NAME"_s).AsString(),
                              query.FieldByName(u"COLUMN_NAME"_s).AsString())) {
            throw VelmaraError(u"[SysTillDBMods.tb_Update_STKDesc_ColLength] SQL Error Reading "
                               "\"INFORMATION_SCHEMA\". Reason: "_s +
                               gErrorMsg);
        }
    }
}

} // namespace

void tb_Update_STKDesc_ColLength() {
    try {
        alterDescriptions();
    } catch (const std::exception& error) {
        throw VelmaraError(u"[SysTillDBMods.tb_Update_STKDesc_ColLength] SQL Error reading object "
                           "\"INFORMATION_SCHEMA\". Reason: "_s +
                           errorText(error));
    }
}

bool tb_Update_Descriptions_Length() {
    Statement& query = tData->tLoadQuery1;
    QStringList quoted;
    for (const QString& column : descriptionColumns) {
        quoted.append(QuotedStr(column));
    }
    query.SQL.Add("SELECT TABLE_NAME, COLUMN_NAME, CHARACTER_MAXIMUM_LENGTH "
                  " FROM INFORMATION_SCHEMA.[Columns] "
                  " WHERE COLUMN_NAME IN (" +
                  quoted.join(',') +
                  ")"
                  " ORDER BY TABLE_NAME, COLUMN_NAME ");
    try {
        query.Open();
    } catch (const std::exception& error) {
        errorBox(u"Error"_s, u"SQL Error reading INFORMATION_SCHEMA\r"_s + errorText(error));
        return false;
    }
    const bool found = !query.IsEmpty();
    for (; !query.Eof(); query.Next()) {
        if (query.FieldByName(u"CHARACTER_MAXIMUM_LENGTH"_s).AsInteger() < descriptionLength) {
            alterDescription(query.FieldByName(u"TABLE_NAME"_s).AsString(),
                             query.FieldByName(u"COLUMN_NAME"_s).AsString());
        }
    }
    query.Close();
    return found;
}

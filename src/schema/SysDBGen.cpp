#include "schema/SysDBGen.h"

#include "data/DataUTIL.h"
#include "data/Errors.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "schema/UnfinishedTable.h"

using namespace Qt::Literals::StringLiterals;

namespace velcro::schema {

bool send(const QString& statement) {
    sfg_AddSQL(statement, u"NEW"_s);
    const bool done = tData->til_ExecSQL(1);
    if (gSchemaWatch.afterSend) {
        gSchemaWatch.afterSend(statement, done);
    }
    return done;
}

} // namespace velcro::schema

using velcro::schema::send;

namespace {

// As it has always stood in the messages.
const QString unit = u"SysDEBGen"_s;

void open(Statement& query) {
    query.Open();
    if (velcro::schema::gSchemaWatch.afterLookUp) {
        velcro::schema::gSchemaWatch.afterLookUp();
    }
}

// The text of another unit's routine, which support knows by now.
[[noreturn]] void throwAsBuyerName(const std::exception& error) {
    throw VelmaraError(
        u"[%1.sld_GetBuyerName] SQL Error reading object \"CRDBuyers\". Reason: %2"_s.arg(
            unit, errorText(error)));
}

// A look-up whose failure counts as "not there".
bool found(const QString& routine, const QString& xSQL, const QString& xReturn) {
    try {
        return sdb_Local_Query(xSQL, xReturn);
    } catch (const std::exception& error) {
        gErrorMsg = u"[%1.%2] Falied to open SQL query \"%3\". Reason: %4"_s.arg(
            unit, routine, xSQL, errorText(error));
        return false;
    }
}

bool indexExists(const QString& xIndexName) {
    return sdb_Local_Query(u"SELECT * FROM SysIndexes "
                           " WHERE LTRIM(NAME) = "_s +
                               QuotedStr(xIndexName.trimmed()),
                           u"N"_s);
}

QString typeToAdd(const QString& xDataType, const QString& xLength, const QString& xDefValue) {
    static const QStringList sized = {u"varchar"_s, u"nvarchar"_s, u"char"_s};
    static const QStringList large = {u"ntext"_s, u"text"_s, u"image"_s};
    static const QStringList numbers = {u"float"_s,      u"int"_s,     u"smallint"_s,
                                        u"bigint"_s,     u"decimal"_s, u"tinyint"_s,
                                        u"smallmoney"_s, u"money"_s,   u"numeric"_s};
    if (sized.contains(xDataType)) {
        const QString value = xDefValue.trimmed().isEmpty() ? QString() : xDefValue;
        return xDataType + '(' + xLength + ") NOT NULL DEFAULT (" + QuotedStr(value) + ") ";
    }
    if (large.contains(xDataType)) {
        return xDataType + " NOT NULL DEFAULT (" + QuotedStr(QString()) + ") ";
    }
    return numbers.contains(xDataType) ? xDataType + " NOT NULL DEFAULT (0)" : xDataType;
}

} // namespace

bool sdb_Local_Query(const QString& xSQL, const QString& xReturn) {
    Statement query(tData->VelmaraTILL);
    query.SQL.Add(xSQL);
    try {
        open(query);
    } catch (const std::exception& error) {
        throw VelmaraError(
            u"[Statement.sdb_Local_Query] SQL Error open SQL query \"%1\". Reason: %2"_s.arg(
                xSQL, errorText(error)));
    }
    if (query.IsEmpty()) {
        return false;
    }
    if (xReturn.compare("FC"_L1, Qt::CaseInsensitive) == 0) {
        sdb_DataType = query.FieldByName(u"DATA_TYPE"_s).AsString();
        sdb_CharLegnth = query.FieldByName(u"CHARACTER_MAXIMUM_LENGTH"_s).AsInteger();
    }
    return true;
}

bool sdb_FindTable(const QString& xTableName) {
    return found(u"sdb_FindTable"_s,
                 u"SELECT * FROM INFORMATION_SCHEMA.[TABLES] "
                 " WHERE TABLE_NAME = "_s +
                     QuotedStr(xTableName),
                 u"N"_s);
}

bool sdb_FindColumn(const QString& xTableName, const QString& xColumnName) {
    sdb_DataType.clear();
    sdb_CharLegnth = 0;
    return found(u"sdb_FindColumn"_s,
                 u"SELECT * FROM INFORMATION_SCHEMA.[COLUMNS] "
                 " WHERE TABLE_NAME = "_s +
                     QuotedStr(xTableName) + "   AND COLUMN_NAME = " + QuotedStr(xColumnName),
                 u"FC"_s);
}

bool sdb_CreateTable(const QString& xTableName, const QString& xSQL) {
    if (sdb_FindTable(xTableName)) {
        return true;
    }
    const QString name = xTableName.trimmed();
    const QString key = "ALTER TABLE [dbo].[" + name + "] " + " ADD CONSTRAINT [" + name +
                        "_idx00] PRIMARY KEY ([RecID])";
    const velcro::schema::UnfinishedTable unfinished(name, key);
    send(xSQL);
    send(key);
    return true;
}

bool sdb_DropTable(const QString& xTableName) {
    return !sdb_FindTable(xTableName) || send("DROP TABLE [" + xTableName + "]");
}

bool sdb_AddColumn(const QString& xTableName, const QString& xColumnName, const QString& xDataType,
                   const QString& xLength, const QString& xDefValue) {
    if (sdb_FindColumn(xTableName, xColumnName)) {
        return false;
    }
    return send("ALTER TABLE [dbo].[" + xTableName + "] " + "ADD [" + xColumnName + "] " +
                typeToAdd(xDataType, xLength, xDefValue));
}

bool sdb_AlterColumn(const QString& xTableName, const QString& xColName, const QString& xDataType,
                     const QString& xLength) {
    if (!sdb_FindColumn(xTableName, xColName) || sdb_DataType != xDataType) {
        return true;
    }
    if (xLength != "max"_L1 && xLength.toInt() == sdb_CharLegnth) {
        return true;
    }
    try {
        sdb_Check_Index_Dependancy(xTableName, xColName, u"Y"_s);
    } catch (const std::exception& error) {
        gErrorMsg = u"[%1.sdb_AlterColumn] Falied to check index dependancy on table \"%2\" and "
                    "column \"%3\". Reason: %4"_s.arg(unit, xTableName, xColName, errorText(error));
        return false;
    }
    const bool sized = xDataType == "varchar"_L1 || xDataType == "nvarchar"_L1;
    return send("ALTER TABLE [dbo].[" + xTableName + "] " + " ALTER COLUMN [" + xColName + "] " +
                (sized ? xDataType + '(' + xLength + ')' : xDataType));
}

bool sdb_DropColumn(const QString& xTableName, const QString& xColName) {
    if (!sdb_FindColumn(xTableName, xColName)) {
        return true;
    }
    QString constraint;
    try {
        constraint = sdb_Check_Constraint(xTableName, xColName);
    } catch (const std::exception& error) {
        gErrorMsg = u"[%1.sdb_DropColumn] Falied to check constraint on table \"%2\" and column "
                    "\"%3\". Reason: %4"_s.arg(unit, xTableName, xColName, errorText(error));
        return false;
    }
    // The constraint is not dropped: only what an unreachable server has left in the buffer is run,
    // and the server refuses the column below. Databases in the field have kept such columns.
    if (!constraint.trimmed().isEmpty() && !tData->til_ExecSQL(1)) {
        return false;
    }
    return send("ALTER TABLE [dbo].[" + xTableName + "] " + " DROP COLUMN [" + xColName + "] ");
}

bool sdb_AddIndex(const QString& xTableName, const QString& xIndexName, const QString& xIndexKey,
                  const QString& xIncludeFields) {
    if (indexExists(xIndexName)) {
        return true;
    }
    QString text = "CREATE NONCLUSTERED INDEX [" + xIndexName.trimmed() + "] ON [dbo].[" +
                   xTableName.trimmed() + "] " + " (" + xIndexKey.trimmed() + ")";
    if (!xIncludeFields.trimmed().isEmpty()) {
        text += " INCLUDE (" + xIncludeFields + ") ";
    }
    text += " WITH ( "
            " PAD_INDEX = OFF, "
            " DROP_EXISTING = OFF, "
            " STATISTICS_NORECOMPUTE = OFF, "
            " SORT_IN_TEMPDB = OFF, "
            " ONLINE = OFF, "
            " ALLOW_ROW_LOCKS = ON, "
            " ALLOW_PAGE_LOCKS = ON) "
            " ON [PRIMARY] ";
    return send(text);
}

// The blank in front of the name has always been sent: an index without it stays where it is.
bool sdb_DropIndex(const QString& xTableName, const QString& xIndexName) {
    return !indexExists(xIndexName) ||
           send("DROP INDEX [ " + xIndexName + "] ON [dbo].[" + xTableName + "] ");
}

bool sdb_Check_Index_Dependancy(const QString& xTableName, const QString& xColName,
                                const QString& xDropIndex) {
    try {
        Statement query(tData->VelmaraTILL);
        query.SQL.Add("SELECT ix.name as [IndexName],"
                      " COL_NAME(ix.object_id, ixc.column_id) as [Column Name]");
        query.SQL.Add("  FROM sys.indexes ix");
        query.SQL.Add(" INNER JOIN sys.index_columns ixc");
        query.SQL.Add("    ON  ix.object_id = ixc.object_id");
        query.SQL.Add("   AND ix.index_id = ixc.index_id");
        query.SQL.Add(" INNER JOIN sys.tables tab");
        query.SQL.Add("    ON ix.object_id = tab.object_id");
        query.SQL.Add(" WHERE ix.is_primary_key = 0");
        query.SQL.Add("   AND ix.is_unique = 0");
        query.SQL.Add("   AND ix.is_unique_constraint = 0");
        query.SQL.Add("   AND tab.is_ms_shipped = 0");
        query.SQL.Add("   AND tab.name = " + QuotedStr(xTableName));
        query.SQL.Add("   AND COL_NAME(ix.object_id, ixc.column_id) = " + QuotedStr(xColName));
        query.SQL.Add(" ORDER BY ix.name, tab.name");
        open(query);
        const bool covered = !query.IsEmpty();
        const bool drop = xDropIndex.compare("N"_L1, Qt::CaseInsensitive) != 0;
        for (; drop && !query.Eof(); query.Next()) {
            sdb_DropIndex(xTableName, query.FieldByName(u"IndexName"_s).AsString());
        }
        return covered;
    } catch (const std::exception& error) {
        throwAsBuyerName(error);
    }
}

QString sdb_Check_Constraint(const QString& xTableName, const QString& xColumnName) {
    try {
        Statement query(tData->VelmaraTILL);
        query.SQL.Add("SELECT T1.Name AS [TableName], T2.name AS [ColumnName],"
                      " object_name(T0.constid) AS [Constraint]");
        query.SQL.Add("  FROM sysconstraints T0");
        query.SQL.Add("  JOIN sysobjects T1");
        query.SQL.Add("    ON T1.id = T0.id");
        query.SQL.Add("  JOIN syscolumns T2");
        query.SQL.Add("    ON T2.id = T0.id");
        query.SQL.Add("   AND T2.colid = T0.colid");
        query.SQL.Add("  JOIN syscomments T3");
        query.SQL.Add("    ON T3.id = T0.constid");
        query.SQL.Add("  WHERE T0.status & 5 = 5");
        query.SQL.Add("    AND T1.name = " + QuotedStr(xTableName));
        query.SQL.Add("    AND\tT1.xtype = " + QuotedStr("U"));
        query.SQL.Add("    AND T2.name = " + QuotedStr(xColumnName));
        open(query);
        return query.IsEmpty() ? QString() : query.FieldByName(u"Constraint"_s).AsString();
    } catch (const std::exception& error) {
        throwAsBuyerName(error);
    }
}

bool sdb_Drop_StoredProc(const QString& xProcName) {
    return send("IF  EXISTS ("
                " SELECT * FROM sys.objects "
                "  WHERE object_id = OBJECT_ID(N" +
                QuotedStr(xProcName) +
                ")"
                "    AND type in (N" +
                QuotedStr("P") + ", N" + QuotedStr("PC") +
                ")"
                ")"
                " DROP PROCEDURE " +
                xProcName);
}

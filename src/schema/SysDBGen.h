// Changes to the schema of the till database that may be asked for again and again: what is there is
// left alone, what is missing is made.
#pragma once

#include <QString>

#include <functional>

/// DATA_TYPE and CHARACTER_MAXIMUM_LENGTH of the column that sdb_FindColumn found last: lower case,
/// -1 for "max", 0 without a length; blank and 0 when it found none.
inline QString sdb_DataType;
inline int sdb_CharLegnth = 0;

/// Sends xSQL and then the primary key on RecID, unless there is such a table. Neither answer is
/// looked at. Always true.
bool sdb_CreateTable(const QString& xTableName, const QString& xSQL);
/// A failed look-up gives false, its reason in gErrorMsg.
bool sdb_FindTable(const QString& xTableName);
/// True when it is gone, or was not there.
bool sdb_DropTable(const QString& xTableName);

/// A failed look-up gives false, its reason in gErrorMsg.
bool sdb_FindColumn(const QString& xTableName, const QString& xColumnName);
/// Texts get xLength ("max" too) and the default xDefValue, numbers the default 0 whatever
/// xDefValue says, and both are NOT NULL; any other type is added bare. False also when the column
/// is there, whatever its type.
bool sdb_AddColumn(const QString& xTableName, const QString& xColumnName, const QString& xDataType,
                   const QString& xLength, const QString& xDefValue);
/// Changes the length of a column of that type, "max" every time it is asked for. True too where
/// there is nothing to change.
bool sdb_AlterColumn(const QString& xTableName, const QString& xColName, const QString& xDataType,
                     const QString& xLength);
/// True when it is gone, or was not there. A column with a default stays, and gives false.
bool sdb_DropColumn(const QString& xTableName, const QString& xColName);

/// xIndexKey and xIncludeFields are lists as "[CO], [Branch]". True when it was made or an index of
/// that name is anywhere in the database. A failed look-up is thrown.
bool sdb_AddIndex(const QString& xTableName, const QString& xIndexName, const QString& xIndexKey,
                  const QString& xIncludeFields);
/// True when no index has that name, or it was dropped. Only reaches an index whose name begins with
/// a blank. A failed look-up is thrown.
bool sdb_DropIndex(const QString& xTableName, const QString& xIndexName);
/// True when plain indexes cover the column; unless xDropIndex is "N" each is asked to go. A failure
/// is thrown.
bool sdb_Check_Index_Dependancy(const QString& xTableName, const QString& xColName,
                                const QString& xDropIndex);
/// Name of the column's default constraint, or blank. A failure is thrown.
QString sdb_Check_Constraint(const QString& xTableName, const QString& xColumnName);

/// True when the statement gave a row; with "FC" the row fills sdb_DataType and sdb_CharLegnth. A
/// failure is thrown.
bool sdb_Local_Query(const QString& xSQL, const QString& xReturn);
/// True too where there was none.
bool sdb_Drop_StoredProc(const QString& xProcName);

namespace velcro::schema {

/// Who runs a sweep may watch it: to keep a window alive, to count, to write down.
struct SchemaWatch
{
    std::function<void()> afterLookUp;
    std::function<void(const QString& statement, bool done)> afterSend;
};
inline SchemaWatch gSchemaWatch;

/// Runs one statement in a transaction of its own. A failure is false, its reason in gErrorMsg.
bool send(const QString& statement);

} // namespace velcro::schema

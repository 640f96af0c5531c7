// Reads the written-down tables, changes and indexes of a till's database.
#pragma once

#include "schema/tables/Family.h"

#include <QList>
#include <QString>

namespace velcro::schema {

struct Column
{
    QString name;
    QString type; // "nvarchar(10)", "float DEFAULT 0 NOT NULL"
};

/// The columns of a table as a new database gets it, RecID first.
QList<Column> columnsOf(const TableDefinition& table);
/// The CREATE TABLE that is sent for it.
QString createText(const TableDefinition& table);

struct Change
{
    enum class Kind { Add, Alter, Drop };
    Kind kind;
    QString table;
    QString column;
    QString type = {};
    QString length = {};
    QString value = {}; // the default, without quotes
};

/// Every change of a step, table after table.
QList<Change> changesOf(const UpdateStep& step);
/// Throws std::logic_error when no family has a step of that name.
const UpdateStep& updateStep(const QString& name);

struct Index
{
    QString table;
    QString name;
    QString key; // "[CO], [Branch]"
};

QList<Index> indexes();

} // namespace velcro::schema

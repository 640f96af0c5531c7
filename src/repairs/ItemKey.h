// The item of an order that rows of the tables below it belong to.
#pragma once

#include <QStringList>

struct ItemKey
{
    QString xCRONo;
    QString xItemNo;

    /// The condition on company, branch, order and item, line by line.
    QStringList where() const;
    /// DELETE of all rows of the table below the item.
    QStringList deletion(const char* table) const;
    /// INSERT of a row below the item: its key, then these columns, comma-separated in brackets,
    /// with their values.
    QStringList insertion(const char* table, const char* columns, const QStringList& values) const;
};

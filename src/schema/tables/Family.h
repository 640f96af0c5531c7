// How the tables of a till's database are written down: one file a family, one line a column.
#pragma once

#include <span>
#include <vector>

namespace velcro::schema {

/// A table as a new database gets it.
struct TableDefinition
{
    const char* name;
    /// A line for each column, in the table's order: name and type, as CREATE TABLE has them.
    const char* columns;
    /// Lines of the same form for columns that this table has otherwise; a name alone takes its
    /// column out.
    const char* otherwise = "";
};

/// What databases made by earlier versions still need.
struct UpdateStep
{
    const char* name;
    /// Names with blanks between; the changes are made to each in turn.
    const char* tables;
    /// A line for each change, in their order:
    ///   add   <column> <type>(<length>) '<default>'   where the column is missing
    ///   alter <column> <type>(<length>)               where its length is another
    ///   drop  <column>                                where it is there
    /// "<table>.<column>" names a table of its own.
    const char* changes;
};

/// Tables and steps that belong together. Tables stand in the order in which a sweep makes them.
struct Family
{
    std::span<const TableDefinition> tables;
    std::span<const UpdateStep> updates;
};

extern const Family documentTables, documentPartTables, importTables, signatureTables,
    companyTables, userTables, referenceTables, debtorTables, stockTables, stockOfferTables,
    tillTables, tillSaleTables, loyaltyTables, goodsReceivedLineTables, goodsReceivedHeadTables,
    purchaseOrderTables, exchangedOrderTables, workingDocumentTables, columnWidths;

/// All families, in the order of a sweep.
extern const std::vector<const Family*> families;

/// Names of the steps, in the order in which a sweep takes them.
extern const std::vector<const char*> updateOrder;

/// A line for each index, in the order in which a sweep makes them: table, index, key columns.
extern const std::vector<const char*> indexLists;

} // namespace velcro::schema

// How the cells of a result stand between T-SQL's types and the seam's row sets.
#pragma once

#include "tsql/values/RowSet.h"
#include "tsql/values/Values.h"

#include <span>

struct sqlite3_stmt;

namespace velcro::sql::tsql {

ColumnType columnTypeOf(const Type& type);
/// The widest type that a column of a row set stands for.
Type typeOfColumn(ColumnType type);
Value valueOfCell(const RowSet& rows, std::size_t row, std::size_t column);

/// Adds the row the statement stands on.
void addRow(RowSetBuilder& rows, sqlite3_stmt* statement, std::span<const ColumnType> types);

} // namespace velcro::sql::tsql

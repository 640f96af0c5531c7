// Takes a whole result from the driver, many rows at a call.
#pragma once

#include "platform/sqlserver/odbc/Diagnostics.h"
#include "platform/sqlserver/odbc/DriverChoice.h"
#include "tsql/values/RowSet.h"

#include <stdexcept>

namespace velcro::sql::odbc {

/// A value was longer than the driver said its column could be, and was cut.
struct TruncatedCell : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// Fills rows with the statement's current result, of columnCount columns. What it gives back is
/// empty, or says how the statement failed on the way; rows then stays as it was. Throws
/// TruncatedCell.
std::vector<Diagnostic> fetchRows(SQLHANDLE statement, int columnCount, DriverKind kind,
                                  RowSet& rows);

} // namespace velcro::sql::odbc

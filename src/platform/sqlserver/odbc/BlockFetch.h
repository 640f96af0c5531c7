// Takes a whole result from the driver, many rows at a call.
#pragma once

#include "platform/sqlserver/RowSet.h"
#include "platform/sqlserver/odbc/DriverChoice.h"

#include <stdexcept>

namespace velcro::sql::odbc {

/// A value was longer than the driver said its column could be, and was cut.
struct TruncatedCell : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// Fills rows with the statement's current result, of columnCount columns. An error code means that
/// the statement failed on the way, with its diagnostics on it; rows then stays as it was. Throws
/// TruncatedCell.
SQLRETURN fetchRows(SQLHANDLE statement, int columnCount, DriverKind kind, RowSet& rows);

} // namespace velcro::sql::odbc

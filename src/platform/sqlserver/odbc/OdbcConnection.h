// The end of the seam that talks to a real server through ODBC.
#pragma once

#include "platform/sqlserver/SqlConnection.h"

namespace velcro::sql {

std::unique_ptr<SqlConnection> createOdbcConnection();

} // namespace velcro::sql

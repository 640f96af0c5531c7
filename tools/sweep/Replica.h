// A scratch database with the tables, views and indexes of another one, but none of its rows: what a
// sweep would send to that one can be tried on it.
#pragma once

#include "platform/sqlserver/SqlConnection.h"

namespace velcro::sweep {

/// Reads the catalogue of one database and makes what it tells in the other. Throws SqlError.
void replicate(sql::SqlConnection& from, sql::SqlConnection& to);

} // namespace velcro::sweep

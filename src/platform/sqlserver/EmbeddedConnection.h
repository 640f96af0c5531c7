// The stand-in for a server on one seat: T-SQL on SQLite files in a folder.
#pragma once

#include "platform/sqlserver/SqlConnection.h"

namespace velcro::sql {

/// What a server value begins with when it names the stand-in; the folder follows.
inline constexpr std::string_view embeddedPrefix = "embedded:";

std::unique_ptr<SqlConnection> createEmbeddedConnection();

} // namespace velcro::sql

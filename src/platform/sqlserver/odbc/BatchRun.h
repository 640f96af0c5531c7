// Sends one batch through a connected driver and takes everything it gives.
#pragma once

#include "platform/sqlserver/SqlConnection.h"
#include "platform/sqlserver/odbc/DriverChoice.h"
#include "platform/sqlserver/odbc/RunningStatement.h"

#include <span>
#include <string_view>

namespace velcro::sql::odbc {

/// Hands over each statement's result in order. Goes on behind a failed statement as the server
/// does, to the last result, and then throws the first error; a lost connection at once. What runs
/// is made known in running.
void runBatch(SQLHANDLE connection, DriverKind kind, std::string_view batch,
              std::span<const Parameter> parameters, const SqlConnection::OnResult& onResult,
              RunningStatement& running);

/// What the driver knows of the connection after a failed call.
bool isDead(SQLHANDLE connection);

} // namespace velcro::sql::odbc

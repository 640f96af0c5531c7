// Runs the batches of every source on one connection.
#pragma once

#include "CommandLine.h"

#include "platform/sqlserver/SqlConnection.h"

#include <istream>
#include <ostream>

namespace velcro::velsql {

/// The program's exit status: 0 or 1. Results and the server's errors go to out in their order;
/// what keeps velsql itself from working (no connection, an unreadable file) to problems.
int runSession(const CommandLine& line, std::istream& standardInput, std::ostream& out,
               std::ostream& problems);

} // namespace velcro::velsql

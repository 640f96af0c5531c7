// Runs the batches of every source on one connection.
#pragma once

#include "CommandLine.h"

#include "platform/sqlserver/SqlConnection.h"

#include <istream>
#include <ostream>

namespace velcro::velsql {

/// The program's exit status: 0 or 1. Results and the server's errors go to out in their order;
/// what keeps velsql itself from working (no connection, an unreadable file) to problems.
/// Ctrl-C cancels the statement that runs and ends the session; while none runs, and the second
/// time, it ends the process.
int runSession(const CommandLine& line, std::istream& standardInput, std::ostream& out,
               std::ostream& problems);

} // namespace velcro::velsql

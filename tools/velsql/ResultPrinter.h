// Results and messages as lines of text.
#pragma once

#include "platform/sqlserver/SqlConnection.h"

#include <ostream>

namespace velcro::velsql {

/// A header line and the rows, tab-separated, or the count of rows, and what the server said.
void print(const sql::StatementResult& result, std::ostream& out);

/// "Msg <number>, Level <n>, State <n>: <text>"; information is its text alone.
void print(const sql::SqlMessage& message, std::ostream& out);

bool isError(const sql::SqlMessage& message);

} // namespace velcro::velsql

// Results and messages as lines of text.
#pragma once

#include "platform/sqlserver/SqlConnection.h"

#include <ostream>

namespace velcro::velsql {

/// Where a batch stands.
struct BatchPlace
{
    std::string script; // a file's name; blank for text of the command line and the standard input
    int line = 1;       // its first
};

/// A header line and the rows, tab-separated, or the count of rows, and what the server said.
void print(const sql::StatementResult& result, const BatchPlace& place, std::ostream& out);

/// "Msg <number>, Level <n>, State <n>, <file>, Line <n>: <text>", the line being that of the
/// script; information is its text alone.
void print(const sql::SqlMessage& message, const BatchPlace& place, std::ostream& out);

bool isError(const sql::SqlMessage& message);

} // namespace velcro::velsql

// What a driver says about a call, in the server's terms.
#pragma once

#include "platform/sqlserver/odbc/OdbcApi.h"
#include "tsql/values/SqlError.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velcro::sql::odbc {

struct Diagnostic
{
    std::string sqlState;
    SqlMessage message; // level 0 for information
};

bool isError(const Diagnostic& diagnostic);

/// Everything said about the last call on the handle, in the driver's order. failed tells whether
/// the call did: one of the diagnostics is then an error, even where the driver graded none so, and
/// there is always one.
std::vector<Diagnostic> diagnostics(SQLSMALLINT handleType, SQLHANDLE handle, bool failed);

/// The diagnostic a failed call is reported by; a broken connection's own one before others.
const Diagnostic& decisive(const std::vector<Diagnostic>& all);

/// Why a connection was not made. Drivers put a bare "cannot connect" beside the cause, in any order.
const Diagnostic& connectCause(const std::vector<Diagnostic>& all);

/// The same, told as a lost connection: what happened in plain words, then the driver's.
Diagnostic asLoss(Diagnostic said);

/// SQLSTATEs that say that there is no connection any more.
bool isLossState(std::string_view sqlState);

/// A driver's text without the names of those it came through, "[Vendor][Driver][Server]".
std::string withoutPrefixes(std::string_view text);

/// The text with the password, and whatever is said to be one, blotted out.
std::string withoutPassword(std::string text, std::string_view password);

} // namespace velcro::sql::odbc

// What the server says when a row's key is taken already: which key it is, and which value of it.
#pragma once

#include "tsql/catalogue/FaultSlot.h"

#include <sqlite3.h>
#include <string_view>

namespace velcro::sql::tsql {

class Catalogue;

/// 2627 for a constraint, 2601 for an index, from SQLite's "UNIQUE constraint failed: T.A, T.B".
/// With `failed`, the statement that met it, the words name the value too, as the server's do: the
/// statement is run once more, inside a savepoint that takes everything back.
Fault uniqueFault(std::string_view sqliteText, const Catalogue& catalogue,
                  sqlite3_stmt* failed = nullptr, FaultSlot* slot = nullptr);

} // namespace velcro::sql::tsql

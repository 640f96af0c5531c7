// What goes into a batch and what comes out of it: bound values, and the result of each statement.
#pragma once

#include "tsql/values/RowSet.h"
#include "tsql/values/SqlError.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace velcro::sql {

struct Blob
{
    std::string bytes;
};

/// A value bound to a :Name in the text. Text goes as nvarchar(max), Blob as varbinary(max).
struct Parameter
{
    std::string name; // without the colon; case does not count
    std::variant<std::monostate, std::int64_t, double, std::string, Blob> value;
};

/// What one statement of a batch gave: rows, or how many rows it touched (-1 where the server does
/// not say, such as for DDL).
struct StatementResult
{
    std::optional<RowSet> rows;
    std::int64_t affected = -1;
    /// What a real server said beside it: what PRINT prints, warnings, and, in the place of a failed
    /// statement, its errors. The first error of a batch is thrown as well, at the batch's end.
    std::vector<SqlMessage> messages;
};

/// Takes the result of each statement of a batch, in order.
using OnResult = std::function<void(StatementResult&&)>;

} // namespace velcro::sql

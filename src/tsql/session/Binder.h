// Fills the ?n of a prepared statement: fetches each value from where its plan says, converts it,
// binds it.
#pragma once

#include "tsql/session/Frame.h"
#include "tsql/syntax/Shape.h"
#include "tsql/translate/Translation.h"
#include "tsql/values/Exchange.h"

#include <functional>
#include <span>

namespace velcro::sql::tsql {

/// Where values come from in one run. Whatever it points to must outlive the run.
struct BindSources
{
    std::span<const LiftedLiteral> literals;
    std::span<const Parameter> parameters;
    const Frame* frame = nullptr;
    const std::function<Value(std::string_view)>* sessionValue = nullptr;
    std::span<const Value> given;
};

/// Throws Fault where a value does not convert.
void bindAll(sqlite3_stmt* statement, std::span<const Bind> binds, const BindSources& sources);

/// The type that a parameter's value is sent as: int, bigint, float, nvarchar(max), varbinary(max).
Type parameterType(const Parameter& parameter);
Value parameterValue(const Parameter& parameter);

/// The cell of the row the statement stands on.
Value cellValue(sqlite3_stmt* statement, int column);

} // namespace velcro::sql::tsql

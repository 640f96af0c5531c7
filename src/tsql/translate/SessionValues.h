// The values a statement asks the session for: @@ROWCOUNT and its kin, and the functions that tell
// of a caught error.
#pragma once

#include "tsql/values/Values.h"

#include <string_view>

namespace velcro::sql::tsql {

/// The type of a @@NAME; null when there is none of that name.
const Type* sessionValueType(std::string_view name);

/// "@@ERROR_NUMBER" for ERROR_NUMBER and so on: the functions that are bound like @@ names; blank for
/// other functions.
std::string_view sessionFunction(std::string_view upperName);

} // namespace velcro::sql::tsql

// How deep an expression goes below one node, so that the parser can bound what others walk.
#pragma once

#include "tsql/syntax/AstQuery.h"

namespace velcro::sql::tsql {

/// The greatest height among the node's own children, 0 when it has none.
int heightBelow(const ExprNode& node);

} // namespace velcro::sql::tsql

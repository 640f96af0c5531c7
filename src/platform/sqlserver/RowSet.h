// The result sets of the seam, for those who need no connection. They are the engine's own, which
// the rooms above do not know.
#pragma once

#include "tsql/values/RowSet.h"

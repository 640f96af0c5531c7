// The T-SQL tree written as text again, one spelling for each tree, so that tests can show it.
#pragma once

#include "tsql/syntax/Parser.h"

#include <string>

namespace velcro::sql::tsql {

/// Every operator in brackets, names as they are needed (bracketed when they are no plain words),
/// keywords in capitals, one blank between words. Parsing the text gives the same tree again, but for
/// places. Every statement ends with a semicolon.
std::string treeText(const Batch& batch);

} // namespace velcro::sql::tsql

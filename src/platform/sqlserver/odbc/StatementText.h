// A batch made ready for a driver: named parameters as markers, national literals marked as such.
#pragma once

#include "platform/sqlserver/SqlConnection.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velcro::sql::odbc {

struct StatementText
{
    std::string text;
    std::vector<const Parameter*> markers; // one for each "?" in the order of the text
};

/// Outside quotes and comments each :Name that is one of the parameters becomes "?", or NULL where
/// its value is none: a bare NULL takes whatever type is wanted, a bound one has a type that the
/// server may refuse to convert. Other words behind a colon stay as they are. With nationalLiterals
/// a literal that holds a character outside ASCII gets its N, without which the server would send it
/// through the database's code page and lose what that lacks.
StatementText prepareText(std::string_view batch, std::span<const Parameter> parameters,
                          bool nationalLiterals);

} // namespace velcro::sql::odbc

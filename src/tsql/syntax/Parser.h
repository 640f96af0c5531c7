// Turns T-SQL text into a tree by recursive descent, and refuses what it does not know.
#pragma once

#include "tsql/syntax/AstStatement.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace velcro::sql::tsql {

/// A parsed text. Trees hold no views into the text.
struct Batch
{
    std::vector<StatementPtr> statements;
    /// Literals that the tree holds by value because they shape it: lengths of types, styles of
    /// CONVERT, positions in ORDER BY, arguments of EXEC that are bare words. What is compiled from
    /// the tree holds for other literals only if these are the same.
    std::vector<std::uint32_t> structuralLiterals;
    /// False when the batch defines objects: such texts are not worth keeping.
    bool reusable = true;
};

/// Throws a Fault: 102 and 156 near what is not understood, 105 and 113 for what is not closed, 191
/// when nested too deeply, 4145 for a value where a condition must stand, each with line and column.
/// firstLine is the line of the text's first character within its batch; beginsBatch tells that no
/// statement stands before it there, which is where EXEC may be left out and CREATE PROCEDURE stand.
Batch parse(std::string_view text, std::uint32_t firstLine = 1, bool beginsBatch = true);

} // namespace velcro::sql::tsql

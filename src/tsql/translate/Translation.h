// A T-SQL statement turned into SQLite text: the text, where each of its bound values comes from, and
// what its rows hold.
#pragma once

#include "tsql/catalogue/SqliteHandle.h"
#include "tsql/syntax/Ast.h"
#include "tsql/values/Values.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velcro::sql::tsql {

/// The table and column an assignment stores to, in the words of messages.
struct StoreTarget
{
    std::string table;
    std::string column;
};

/// The value of one ?n of the text, fetched and converted anew for every run.
struct Bind
{
    enum class Source : std::uint8_t {
        Constant,  // value
        Literal,   // of the shape, by index
        Variable,  // @name of the batch or procedure
        Parameter, // :name of the seam
        Session,   // @@NAME and the functions that ask the session
        Given,     // a cell of another statement, by index
    };
    Source source = Source::Constant;
    LiteralKind kind = LiteralKind::String;
    bool negated = false; // a minus stood before the literal
    std::uint32_t index = 0;
    std::string name;
    Value value;
    Type from;
    Type to; // Null: as it comes
    std::optional<StoreTarget> store;
};

struct ResultColumn
{
    std::string name;
    Type type;
    std::string variable; // "@x": the cell goes there and not to the caller
};

/// What happens after the statement has run.
struct Translation
{
    std::string text;
    std::vector<Bind> binds;
    std::vector<ResultColumn> columns; // empty: the statement gives no rows
    std::string verb;                  // "INSERT", "UPDATE", ...; blank for a SELECT
    bool setsIdentity = false;         // inserts into a table with an identity column
    bool assigns = false;              // columns go to variables
    bool manyRows = false;             // can fail after it has changed a row

    bool writes() const { return !verb.empty(); }
};

/// The value a literal's own text stands for, and its type: 'x' varchar, N'x' nvarchar, 1 int,
/// 3000000000 and 1.5 decimal, 1e0 float, $1 money, 0x01 varbinary. text is without quotes.
Value literalValue(LiteralKind kind, std::string_view text, bool negated);
/// Text counts as 4000 long, since another literal may stand in its place at the next run.
Type literalType(LiteralKind kind, std::string_view text);

/// A text of "?1", "?2" ... with each a plain "?", and their binds in the order they then stand in; one
/// that stands twice is bound twice. SQLite searches the list of all numbers for each number it reads,
/// and a statement of many values would take the square of their count.
std::string withoutNumbers(std::string_view text, const std::vector<Bind>& binds,
                           std::vector<Bind>& ordered);

/// The type that a declaration names. 2715 for a name that is none.
Type declaredType(const DataType& type, int line, bool inCast = false);

} // namespace velcro::sql::tsql

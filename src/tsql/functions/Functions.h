// T-SQL's scalar functions: which there are, what they take and give, and their SQLite names.
#pragma once

#include "tsql/catalogue/FaultSlot.h"
#include "tsql/catalogue/SqliteHandle.h"
#include "tsql/values/Errors.h"
#include "tsql/values/Values.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

struct sqlite3;

namespace velcro::sql::tsql {

class Catalogue;

/// How a function's type follows from its arguments.
enum class ResultRule {
    Fixed,         // FunctionInfo::type
    SameAsFirst,   // ISNULL (first argument's type), LTRIM, ...
    Common,        // COALESCE, IIF, CHOOSE: by precedence over the value arguments
    TextOfFirst,   // UPPER, SUBSTRING, REPLACE: varchar or nvarchar as the first argument is
    NumberOfFirst, // ABS, ROUND, CEILING: int, decimal or float as the first; text becomes float
    DateOfLast,    // DATEADD: the last argument's type; text becomes datetime
};

/// What an argument is converted to before the call; the emitter does it.
enum class ArgumentKind : char {
    Any = 'a',      // as it comes
    Text = 't',     // to text; text, ntext and image are refused (8116)
    LongText = 'l', // to text, those too
    Integer = 'i',  // to int
    Number = 'n',   // text becomes float, numbers stay
    Float = 'f',    // to float
    DateTime = 'd', // text and numbers become datetime, date types stay
    DatePart = 'p', // a bare word such as day or mi; sent as a text constant, see datePartName()
    // Converted likewise, from their own kind alone; all else is refused (8116).
    OnlyText = 'T',     // text and binary but the long ones
    OnlyLongText = 'L', // text and binary
    OnlyNumber = 'I',   // to int; text is refused
};

/// Whether the server takes an argument of that type there.
bool accepts(ArgumentKind kind, const Type& type);

struct FunctionInfo
{
    std::string_view name;       // upper case
    std::string_view sqliteName; // blank: the emitter writes it itself (CASE for IIF, NULLIF, ...)
    int minArguments = 0;
    int maxArguments = 0; // -1: any number
    ResultRule rule = ResultRule::Fixed;
    Type type;                  // for ResultRule::Fixed
    std::string_view arguments; // ArgumentKind letters; the last one holds for all that follow
    bool passesTypes = false;   // a type code is sent behind each argument, as DATALENGTH wants it
};

/// std::nullptr for a name that is no built-in function (195).
const FunctionInfo* functionByName(std::string_view name);
/// Fault 174 (one fixed count) or 189 (a range of counts) when the count is wrong.
void requireArgumentCount(const FunctionInfo& function, std::size_t count);
Type resultType(const FunctionInfo& function, std::span<const Type> arguments);
/// "year", "quarter", "month", ... for yyyy, qq, mm and the other names; blank for none (155).
std::string_view datePartName(std::string_view word);

// What the emitter calls besides T-SQL's own functions. All give NULL for NULL.
//   ts_cast(value, fromCode, toCode, style)                     CAST, CONVERT
//   ts_try_cast(value, fromCode, toCode, style)                 TRY_CAST: NULL instead of an error
//   ts_store(value, fromCode, toCode, 'table', 'column')        conversion for an assignment
//   ts_not_null(value, 'table', 'column', 'INSERT'|'UPDATE')    515 for NULL
//   ts_divide(a, b), ts_modulo(a, b)                            8134 for 0; integers stay integers
//   ts_add(a, b, code), ts_subtract, ts_multiply                8115 when the type overflows
//   ts_like(pattern, text[, escape])                            1 or 0
//   ts_row_count(count, least, number)                          the count; the error for less
//   ts_raise(number, argument...)                               the error itself
//   ts_part('SELECT ...', value...)                             the one cell of that statement
//   ts_values(value...)                                         several values as one of ts_part's

/// What functions need to know of the session that calls them.
struct SessionFacts
{
    std::string userName = "sa";
    std::string hostName;
    std::string applicationName;
    std::string serverName;
    int spid = 51;
    std::function<std::optional<std::int64_t>()> scopeIdentity; // none: NULL
    /// Local time of the statement, milliseconds since 1970-01-01 00:00 local; one for a statement.
    std::function<std::int64_t()> now;
};

/// The functions on one connection and the way their faults come back: SQLite passes only text, so
/// the numbered fault waits here.
class FunctionHost : public FaultSlot
{
public:
    FunctionHost(const Catalogue& catalogue, SessionFacts facts);

    SessionFacts& facts() { return facts_; }
    const SessionFacts& facts() const { return facts_; }
    const Catalogue& catalogue() const { return catalogue_; }

    /// The statement of that text, prepared before; null when there is none or it is being run.
    StatementHandle takePart(std::string_view text);
    /// Gives it back for the next time.
    void keepPart(std::string_view text, StatementHandle statement);

private:
    const Catalogue& catalogue_;
    SessionFacts facts_;
    std::unordered_map<std::string, StatementHandle> parts_;
};

/// Makes the collation and all functions known on the host's connection. Call once; the host must
/// outlive the connection's statements.
void registerFunctions(sqlite3* database, FunctionHost& host);

/// What SQLite says of a failed statement, in the server's terms: 515, 2627, 2601, 1205, 1222, 9002,
/// 3906, ... `verb` is INSERT, UPDATE or MERGE.
Fault faultFromSqlite(sqlite3* database, int code, const Catalogue& catalogue,
                      std::string_view verb);

} // namespace velcro::sql::tsql

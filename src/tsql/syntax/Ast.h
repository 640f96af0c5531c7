// The tree that the parser makes of T-SQL text, first half: names, types and expressions, plain
// values that know the place they were read from.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace velcro::sql::tsql {

struct Expr;
struct Query;
struct QueryBody;
struct TableSource;
struct Statement;
using ExprPtr = std::unique_ptr<Expr>;
using QueryPtr = std::unique_ptr<Query>;
using QueryBodyPtr = std::unique_ptr<QueryBody>;
using TableSourcePtr = std::unique_ptr<TableSource>;
using StatementPtr = std::unique_ptr<Statement>;

/// Half-open byte range of the parsed text, for definitions that are kept as they were written.
struct SourceRange
{
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
};

/// server.database.schema.name; parts that were left out are blank (db..table has a blank schema).
/// Names are without brackets and quotes, in the case they were written in. A name may begin with
/// # (temporary table) or be a table variable (@t).
struct ObjectName
{
    std::string server;
    std::string database;
    std::string schema;
    std::string name;
    std::uint32_t offset = 0;
};

/// A type as written: name in lower case ("nvarchar", "double precision" as "float"), the numbers in
/// brackets or -1. (max) sets max.
struct DataType
{
    std::string name;
    int first = -1;  // length or precision
    int second = -1; // scale
    bool max = false;
    std::string schema; // sys.nvarchar, dbo.MyType
    std::uint32_t offset = 0;
};

// ---- expressions ---------------------------------------------------------------------------------

enum class LiteralKind : std::uint8_t {
    String,
    NationalString,
    Integer,
    Decimal,
    Float,
    Money,
    Binary
};

/// index counts the literals of the parsed text from 0, in the order they stand; the Shape of the
/// same text holds their values under the same index; noLiteral marks a bare word that stands for its
/// own text. text is the value: quotes stripped and
/// undoubled for strings, digits for numbers (no sign, no $), the 0x form for binary.
inline constexpr std::uint32_t noLiteral = 0xFFFFFFFF;
struct Literal
{
    LiteralKind kind = LiteralKind::String;
    std::uint32_t index = 0;
    std::string text;
};
struct NullLiteral
{
};
/// DEFAULT in a VALUES row, in SET column = DEFAULT and in an argument of EXEC.
struct DefaultValue
{
};
struct Variable
{
    std::string name; // "@CO"
};
struct GlobalVariable
{
    std::string name; // "@@SPID"
};
/// A :Name of the seam.
struct NamedParameter
{
    std::string name; // without the colon
};
/// name, t.name, schema.t.name or database.schema.t.name, outermost part first.
struct ColumnRef
{
    std::vector<std::string> parts;
};
/// * or t.*; only in a select list, in COUNT(*) as the one argument and in OUTPUT.
struct Star
{
    std::vector<std::string> qualifier;
};
enum class UnaryOp : std::uint8_t { Plus, Minus, BitNot };
struct Unary
{
    UnaryOp op = UnaryOp::Minus;
    ExprPtr operand;
};
enum class BinaryOp : std::uint8_t {
    Add,
    Subtract,
    Multiply,
    Divide,
    Modulo,
    BitAnd,
    BitOr,
    BitXor
};
struct Binary
{
    BinaryOp op = BinaryOp::Add;
    ExprPtr left;
    ExprPtr right;
};
enum class CompareOp : std::uint8_t { Equal, NotEqual, Less, LessEqual, Greater, GreaterEqual };
struct Comparison
{
    CompareOp op = CompareOp::Equal;
    ExprPtr left;
    ExprPtr right;
};
/// a AND b AND c as one node of two operands or more.
struct Logical
{
    bool isAnd = true;
    std::vector<ExprPtr> operands;
};
struct Not
{
    ExprPtr operand;
};
struct IsNull
{
    ExprPtr operand;
    bool negated = false;
};
struct Between
{
    ExprPtr operand;
    ExprPtr low;
    ExprPtr high;
    bool negated = false;
};
struct InList
{
    ExprPtr operand;
    std::vector<ExprPtr> values;
    bool negated = false;
};
struct InQuery
{
    ExprPtr operand;
    QueryPtr query;
    bool negated = false;
};
struct Like
{
    ExprPtr operand;
    ExprPtr pattern;
    ExprPtr escape; // may be null
    bool negated = false;
};
struct Exists
{
    QueryPtr query;
};
/// a = ANY (query), a > ALL (query).
struct Quantified
{
    CompareOp op = CompareOp::Equal;
    bool all = false;
    ExprPtr operand;
    QueryPtr query;
};
struct ScalarQuery
{
    QueryPtr query;
};
/// With an operand: CASE operand WHEN value THEN ...; without: CASE WHEN condition THEN ...
struct Case
{
    struct Branch
    {
        ExprPtr when;
        ExprPtr then;
    };
    ExprPtr operand; // may be null
    std::vector<Branch> branches;
    ExprPtr otherwise; // may be null
};
struct Cast
{
    ExprPtr operand;
    DataType type;
    bool isTry = false;
};
/// CONVERT(type, operand [, style]).
struct Convert
{
    DataType type;
    ExprPtr operand;
    ExprPtr style; // may be null
    bool isTry = false;
};
struct Collate
{
    ExprPtr operand;
    std::string collation;
};
struct OrderItem
{
    ExprPtr expr; // an Integer literal is the position of a column
    bool descending = false;
};
struct FrameBound
{
    enum class Kind : std::uint8_t {
        UnboundedPreceding,
        Preceding,
        CurrentRow,
        Following,
        UnboundedFollowing
    };
    Kind kind = Kind::UnboundedPreceding;
    ExprPtr count; // of Preceding and Following
};
struct Window
{
    std::vector<ExprPtr> partitionBy;
    std::vector<OrderItem> orderBy;
    bool hasFrame = false;
    bool frameIsRows = true; // else RANGE
    FrameBound from;
    FrameBound to;
};
/// A call of a function, also of an aggregate (COUNT(*) has one Star argument) and of those without
/// brackets (current_timestamp). The first argument of DATEADD, DATEDIFF, DATENAME and DATEPART is a
/// ColumnRef of one part that names the date part. IIF's first argument is a condition.
struct FunctionCall
{
    ObjectName name;
    std::vector<ExprPtr> arguments;
    bool distinct = false;
    std::optional<Window> over;
};

using ExprNode = std::variant<Literal, NullLiteral, DefaultValue, Variable, GlobalVariable,
                              NamedParameter, ColumnRef, Star, Unary, Binary, Comparison, Logical,
                              Not, IsNull, Between, InList, InQuery, Like, Exists, Quantified,
                              ScalarQuery, Case, Cast, Convert, Collate, FunctionCall>;

struct Expr
{
    ExprNode node;
    std::uint32_t offset = 0;
    std::uint32_t line = 0;
    std::uint16_t height = 1; // longest way down; the parser bounds it, so walking it may recurse
};

} // namespace velcro::sql::tsql

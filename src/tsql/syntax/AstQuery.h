// The queries of the T-SQL tree and the statements that read and write rows.
#pragma once

#include "tsql/syntax/Ast.h"

namespace velcro::sql::tsql {

/// One entry of a select list: expr [AS alias], alias = expr, * or @variable = expr.
struct SelectItem
{
    ExprPtr expr;
    std::string alias;
    std::string variable; // "@x" when the entry assigns
};

struct TableHints
{
    std::vector<std::string> names; // upper case: "NOLOCK", "HOLDLOCK", "INDEX"
};
struct NamedTable
{
    ObjectName name; // table, view, cte, #temporary or @variable
    std::string alias;
    TableHints hints;
};
struct DerivedTable
{
    QueryPtr query;
    std::string alias;
    std::vector<std::string> columns;
};
/// (VALUES (1, 'a'), (2, 'b')) AS t (x, y)
struct ValuesTable
{
    std::vector<std::vector<ExprPtr>> rows;
    std::string alias;
    std::vector<std::string> columns;
};
enum class JoinKind : std::uint8_t { Inner, Left, Right, Full, Cross };
struct Join
{
    JoinKind kind = JoinKind::Inner;
    TableSourcePtr left;
    TableSourcePtr right;
    ExprPtr on; // null for Cross
};
struct TableSource
{
    std::variant<NamedTable, DerivedTable, ValuesTable, Join> node;
    std::uint32_t offset = 0;
    std::uint16_t height = 1;
};

struct SelectCore
{
    bool distinct = false;
    ExprPtr top; // may be null
    std::vector<SelectItem> items;
    std::optional<ObjectName> into;
    std::vector<TableSourcePtr> from; // separated by commas; empty without FROM
    ExprPtr where;
    std::vector<ExprPtr> groupBy;
    ExprPtr having;
};
enum class SetOperator : std::uint8_t { Union, UnionAll, Except, Intersect };
struct SetOperation
{
    SetOperator op = SetOperator::Union;
    QueryBodyPtr left;
    QueryBodyPtr right;
};
struct QueryBody
{
    std::variant<SelectCore, SetOperation> node;
    std::uint32_t offset = 0;
    std::uint32_t line = 0;
    std::uint16_t height = 1;
};
/// name [(columns)] AS (query); it is recursive when its query names it.
struct CommonTable
{
    std::string name;
    std::vector<std::string> columns;
    QueryPtr query;
    std::uint32_t offset = 0;
};
struct Query
{
    QueryBodyPtr body;
    std::vector<OrderItem> orderBy;
    ExprPtr offset; // OFFSET n ROWS, may be null
    ExprPtr fetch;  // FETCH NEXT n ROWS ONLY, may be null
    std::uint16_t height = 1;
};
/// OPTION (...): "RECOMPILE", "OPTIMIZE FOR UNKNOWN", "MAXRECURSION 100", upper case.
using QueryHints = std::vector<std::string>;

// ---- statements on rows --------------------------------------------------------------------------

struct Select
{
    std::vector<CommonTable> with;
    QueryPtr query;
    QueryHints hints;
};
/// An argument of EXEC: by position when name is blank.
struct Argument
{
    std::string name; // "@CO"
    ExprPtr
        value; // Literal, Unary minus on one, Variable, NamedParameter, NullLiteral, DefaultValue
    bool output = false;
};
/// EXEC [@result =] procedure arguments. value of an argument that is a bare word is a String
/// literal, as on the server.
struct Execute
{
    std::string result; // "@r"
    ObjectName procedure;
    std::vector<Argument> arguments;
};
/// EXEC ('text' + @more).
struct ExecuteText
{
    ExprPtr text;
};
struct Insert
{
    std::vector<CommonTable> with;
    ObjectName table;
    std::vector<std::string> columns;
    std::vector<SelectItem> output; // OUTPUT inserted.x
    // Exactly one of these four; an empty rows is DEFAULT VALUES when no other is there.
    std::vector<std::vector<ExprPtr>> rows;
    QueryPtr query;
    std::unique_ptr<Execute> execute;
    std::unique_ptr<ExecuteText> executeText;
    QueryHints hints;
};
enum class AssignOp : std::uint8_t {
    Set,
    Add,
    Subtract,
    Multiply,
    Divide,
    Modulo,
    BitAnd,
    BitOr,
    BitXor
};
/// column = value, @variable = value or @variable = column = value.
struct Assignment
{
    std::string variable;
    std::vector<std::string> column; // parts, outermost first; empty when only a variable is set
    AssignOp op = AssignOp::Set;
    ExprPtr value;
    std::uint32_t offset = 0;
};
struct Update
{
    std::vector<CommonTable> with;
    ExprPtr top;       // may be null
    ObjectName target; // a table, or an alias or cte that FROM or WITH names
    TableHints targetHints;
    std::vector<Assignment> set;
    std::vector<SelectItem> output; // OUTPUT inserted.x, deleted.y
    std::vector<TableSourcePtr> from;
    ExprPtr where;
    QueryHints hints;
};
struct Delete
{
    std::vector<CommonTable> with;
    ExprPtr top; // may be null
    ObjectName target;
    TableHints targetHints;
    std::vector<SelectItem> output;   // OUTPUT inserted.x, deleted.y
    std::vector<TableSourcePtr> from; // the second FROM
    ExprPtr where;
    QueryHints hints;
};
struct MergeWhen
{
    enum class Match : std::uint8_t { Matched, NotMatchedByTarget, NotMatchedBySource };
    enum class Action : std::uint8_t { Update, Delete, Insert };
    Match match = Match::Matched;
    ExprPtr condition; // AND ..., may be null
    Action action = Action::Update;
    std::vector<Assignment> set;
    std::vector<std::string> columns; // of Insert
    std::vector<ExprPtr> values;      // of Insert; empty for DEFAULT VALUES
};
struct Merge
{
    std::vector<CommonTable> with;
    NamedTable target;
    TableSourcePtr source;
    ExprPtr on;
    std::vector<MergeWhen> when;
    QueryHints hints;
};
struct TruncateTable
{
    ObjectName table;
};

} // namespace velcro::sql::tsql

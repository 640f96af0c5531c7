// The statements of the T-SQL tree: definitions, control flow, and the variant over all of them.
#pragma once

#include "tsql/syntax/AstQuery.h"

namespace velcro::sql::tsql {

// ---- definitions ---------------------------------------------------------------------------------

struct IndexColumn
{
    std::string name;
    bool descending = false;
};
/// An entry of WITH (...): PAD_INDEX = OFF; both sides upper case.
struct IndexOption
{
    std::string name;
    std::string value;
};
struct Identity
{
    std::int64_t seed = 1;
    std::int64_t increment = 1;
};
/// An expression that is kept both as a tree and as it was written.
struct KeptExpr
{
    ExprPtr expr;
    SourceRange source;
};
/// A constraint of a table or of one column; name is blank when the server has to make one.
struct Constraint
{
    enum class Kind : std::uint8_t { PrimaryKey, Unique, Default };
    Kind kind = Kind::PrimaryKey;
    std::string name;
    std::optional<bool> clustered;    // as written
    std::vector<IndexColumn> columns; // keys; empty inside a column's definition
    std::vector<IndexOption> options;
    std::string filegroup;
    KeptExpr expr;         // of Default
    std::string forColumn; // DEFAULT ... FOR column
    std::uint32_t offset = 0;
};
struct ColumnDefinition
{
    std::string name;
    DataType type;
    std::string collation;
    std::optional<bool> nullable; // as written
    std::optional<Identity> identity;
    bool rowGuid = false;
    std::vector<Constraint> constraints; // Default, PrimaryKey, Unique
    std::uint32_t offset = 0;
};
struct CreateTable
{
    ObjectName name;
    std::vector<ColumnDefinition> columns;
    std::vector<Constraint> constraints;
    std::string filegroup;     // ON [PRIMARY]
    std::string textFilegroup; // TEXTIMAGE_ON [PRIMARY]
};
struct AlterTableAdd
{
    std::vector<ColumnDefinition> columns;
    std::vector<Constraint> constraints;
    bool withValues = false;
};
struct AlterTableAlterColumn
{
    std::string column;
    DataType type;
    std::string collation;
    std::optional<bool> nullable; // as written; a real server takes NULL when it is left out
    std::uint32_t offset = 0;
};
/// DROP [COLUMN | CONSTRAINT] name, ...
struct AlterTableDrop
{
    struct Item
    {
        bool isColumn = false; // else a constraint
        std::string name;
        bool ifExists = false;
        std::uint32_t offset = 0;
    };
    std::vector<Item> items;
};
/// CHECK/NOCHECK CONSTRAINT ALL or names (none for ALL).
struct AlterTableCheck
{
    bool check = true;
    std::vector<std::string> constraints;
};
struct AlterTable
{
    ObjectName table;
    std::variant<AlterTableAdd, AlterTableAlterColumn, AlterTableDrop, AlterTableCheck> action;
};
struct CreateIndex
{
    bool unique = false;
    std::optional<bool> clustered;
    std::string name;
    ObjectName table;
    std::vector<IndexColumn> columns;
    std::vector<std::string> included;
    std::vector<IndexOption> options;
    std::string filegroup;
    std::uint32_t nameOffset = 0;
};
/// DROP INDEX name ON table, or DROP INDEX table.name.
struct DropIndex
{
    struct Item
    {
        std::string name;
        ObjectName table;
        std::uint32_t offset = 0;
    };
    bool ifExists = false;
    std::vector<Item> items;
};
struct DropObject
{
    enum class Kind : std::uint8_t { Table, View, Procedure };
    Kind kind = Kind::Table;
    bool ifExists = false;
    std::vector<ObjectName> names;
};
struct ProcedureParameter
{
    std::string name; // "@CO"
    DataType type;
    ExprPtr defaultValue; // constant, may be null
    bool output = false;
};
enum class DefineMode : std::uint8_t { Create, Alter, CreateOrAlter };
/// The definition is kept as text: a procedure lives longer than the batch it was read from. source is
/// the whole statement, body what follows AS. statements is the parsed body.
struct CreateProcedure
{
    DefineMode mode = DefineMode::Create;
    ObjectName name;
    std::vector<ProcedureParameter> parameters;
    std::vector<StatementPtr> statements;
    SourceRange source;
    SourceRange body;
};
struct CreateView
{
    DefineMode mode = DefineMode::Create;
    ObjectName name;
    std::vector<std::string> columns;
    Select select;
    SourceRange source;
    SourceRange body; // the query
};
// ---- control flow --------------------------------------------------------------------------------

struct Declare
{
    struct Item
    {
        std::string name;
        DataType type;                      // of a scalar variable
        ExprPtr value;                      // may be null
        std::unique_ptr<CreateTable> table; // DECLARE @t TABLE (...); its name is @t
        std::uint32_t offset = 0;
    };
    std::vector<Item> items;
};
/// SET @x = value, SET @x += value.
struct SetVariable
{
    std::string name;
    AssignOp op = AssignOp::Set;
    ExprPtr value;
};
/// SET NOCOUNT ON, SET IDENTITY_INSERT t ON, SET TRANSACTION ISOLATION LEVEL ..., SET DATEFORMAT ymd.
/// names and value are upper case.
struct SetOption
{
    std::vector<std::string> names;
    ObjectName table; // of IDENTITY_INSERT
    std::string value;
};
struct If
{
    ExprPtr condition;
    StatementPtr then;
    StatementPtr otherwise; // may be null
};
/// BEGIN ... END
struct Block
{
    std::vector<StatementPtr> statements;
};
struct While
{
    ExprPtr condition;
    StatementPtr body;
};
struct Break
{
};
struct Continue
{
};
struct Return
{
    ExprPtr value; // may be null
};
struct Print
{
    ExprPtr value;
};
/// RAISERROR (message, severity, state, arguments ...) WITH NOWAIT, ...
struct RaiseError
{
    ExprPtr message;
    ExprPtr severity;
    ExprPtr state;
    std::vector<ExprPtr> arguments;
    std::vector<std::string> options;
};
/// THROW number, message, state; all null when the caught error is thrown again.
struct Throw
{
    ExprPtr number;
    ExprPtr message;
    ExprPtr state;
};
struct TryCatch
{
    std::vector<StatementPtr> tried;
    std::vector<StatementPtr> caught;
};
struct Transaction
{
    enum class Kind : std::uint8_t { Begin, Commit, Rollback, Save };
    Kind kind = Kind::Begin;
    std::string name; // of the transaction or save point, or @variable, or blank
};
struct Use
{
    std::string database;
};

using StatementNode =
    std::variant<Select, Insert, Update, Delete, Merge, TruncateTable, CreateTable, AlterTable,
                 CreateIndex, DropIndex, DropObject, CreateProcedure, CreateView, Execute,
                 ExecuteText, Declare, SetVariable, SetOption, If, Block, While, Break, Continue,
                 Return, Print, RaiseError, Throw, TryCatch, Transaction, Use>;

struct Statement
{
    StatementNode node;
    SourceRange source; // its text, without the semicolon
    std::uint32_t line = 1;
};

} // namespace velcro::sql::tsql

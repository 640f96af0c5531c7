#include "tsql/values/Errors.h"

#include <algorithm>
#include <iterator>

namespace velcro::sql::tsql {

namespace {

struct Row
{
    int number;
    int level;
    int state;
    std::string_view wording;
};

// By number. The wordings are the server's; %1 to %4 stand for the names and values.
constexpr Row rows[] = {
    {102, 15, 1, "Incorrect syntax near '%1'."},
    {103, 15, 4, "The identifier that starts with '%1' is too long. Maximum length is 128."},
    {104, 15, 1,
     "ORDER BY items must appear in the select list if the statement contains a UNION, INTERSECT "
     "or "
     "EXCEPT operator."},
    {105, 15, 1, "Unclosed quotation mark after the character string '%1'."},
    {107, 15, 1,
     "The column prefix '%1' does not match with a table name or alias name used in the query."},
    {108, 15, 1,
     "The ORDER BY position number %1 is out of range of the number of items in the "
     "select list."},
    {109, 15, 1,
     "There are more columns in the INSERT statement than values specified in the VALUES clause. "
     "The "
     "number of values in the VALUES clause must match the number of columns specified in the "
     "INSERT "
     "statement."},
    {110, 15, 1,
     "There are fewer columns in the INSERT statement than values specified in the VALUES clause. "
     "The "
     "number of values in the VALUES clause must match the number of columns specified in the "
     "INSERT "
     "statement."},
    {111, 15, 1, "'%1' must be the first statement in a query batch."},
    {113, 15, 1, "Missing end comment mark '*/'."},
    {116, 16, 1,
     "Only one expression can be specified in the select list when the subquery is not introduced "
     "with EXISTS."},
    {119, 15, 1,
     "Must pass parameter number %1 and subsequent parameters as '@name = value'. After the form "
     "'@name = value' has been used, all subsequent parameters must be passed in the form '@name = "
     "value'."},
    {120, 15, 1,
     "The select list for the INSERT statement contains fewer items than the insert list. The "
     "number "
     "of SELECT values must match the number of INSERT columns."},
    {121, 15, 1,
     "The select list for the INSERT statement contains more items than the insert list. The "
     "number "
     "of SELECT values must match the number of INSERT columns."},
    {127, 15, 1, "A TOP N or FETCH rowcount value may not be negative."},
    {128, 15, 1,
     "The name \"%1\" is not permitted in this context. Valid expressions are constants, constant "
     "expressions, and (in some contexts) variables. Column names are not permitted."},
    {130, 16, 1,
     "Cannot perform an aggregate function on an expression containing an aggregate or a "
     "subquery."},
    {131, 15, 2,
     "The size (%1) given to the %2 '%3' exceeds the maximum allowed for any data type (8000)."},
    {134, 15, 2,
     "The variable name '%1' has already been declared. Variable names must be unique within a "
     "query "
     "batch or stored procedure."},
    {135, 15, 1, "Cannot use a BREAK statement outside the scope of a WHILE statement."},
    {136, 15, 1, "Cannot use a CONTINUE statement outside the scope of a WHILE statement."},
    {137, 15, 2, "Must declare the scalar variable \"%1\"."},
    {139, 15, 1, "Cannot assign a default value to a local variable."},
    {141, 15, 1,
     "A SELECT statement that assigns a value to a variable must not be combined with "
     "data-retrieval "
     "operations."},
    {145, 15, 1, "ORDER BY items must appear in the select list if SELECT DISTINCT is specified."},
    {147, 15, 1,
     "An aggregate may not appear in the WHERE clause unless it is in a subquery contained in a "
     "HAVING clause or a select list, and the column being aggregated is an outer reference."},
    {148, 15, 1, "Incorrect time syntax in time string '%1' used with WAITFOR."},
    {155, 15, 1, "'%1' is not a recognized %2 option."},
    {156, 15, 1, "Incorrect syntax near the keyword '%1'."},
    {157, 15, 1, "An aggregate may not appear in the set list of an UPDATE statement."},
    {174, 15, 1, "The %1 function requires %2 argument(s)."},
    {178, 15, 1, "A RETURN statement with a return value cannot be used in this context."},
    {189, 15, 1, "The %1 function requires %2 to %3 arguments."},
    {191, 15, 1,
     "Some part of your SQL statement is nested too deeply. Rewrite the query or break it up into "
     "smaller queries."},
    {195, 15, 10, "'%1' is not a recognized built-in function name."},
    {201, 16, 4, "Procedure or function '%1' expects parameter '%2', which was not supplied."},
    {205, 16, 1,
     "All queries combined using a UNION, INTERSECT or EXCEPT operator must have an equal number "
     "of "
     "expressions in their target lists."},
    {206, 16, 2, "Operand type clash: %1 is incompatible with %2"},
    {207, 16, 1, "Invalid column name '%1'."},
    {208, 16, 1, "Invalid object name '%1'."},
    {209, 16, 1, "Ambiguous column name '%1'."},
    {213, 16, 1, "Column name or number of supplied values does not match table definition."},
    {214, 16, 2, "Procedure expects parameter '%1' of type '%2'."},
    {216, 16, 1, "Parameters were not supplied for the function '%1'."},
    {217, 16, 1,
     "Maximum stored procedure, function, trigger, or view nesting level exceeded (limit 32)."},
    {220, 16, 2, "Arithmetic overflow error for data type %1, value = %2."},
    {232, 16, 3, "Arithmetic overflow error for type %1, value = %2."},
    {235, 16, 0, "Cannot convert a char value to money. The char value has incorrect syntax."},
    {237, 16, 1, "There is insufficient result space to convert a money value to %1."},
    {241, 16, 1, "Conversion failed when converting date and/or time from character string."},
    {242, 16, 3,
     "The conversion of a %1 data type to a %2 data type resulted in an out-of-range value."},
    {244, 16, 1,
     "The conversion of the %1 value '%2' overflowed an %3 column. Use a larger integer column."},
    {245, 16, 1, "Conversion failed when converting the %1 value '%2' to data type %3."},
    {248, 16, 1, "The conversion of the %1 value '%2' overflowed an int column."},
    {252, 16, 1,
     "Recursive common table expression '%1' does not contain a top-level UNION ALL operator."},
    {256, 16, 1,
     "The data type %1 is invalid for the %2 function. Allowed types are: char/varchar, "
     "nchar/nvarchar, and binary/varbinary."},
    {257, 16, 3,
     "Implicit conversion from data type %1 to %2 is not allowed. Use the CONVERT function to run "
     "this query."},
    {263, 16, 1, "Must specify table to select from."},
    {264, 16, 1,
     "The column name '%1' is specified more than once in the SET clause or column list of an "
     "INSERT. "
     "A column cannot be assigned more than one value in the same clause. Modify the clause to "
     "make "
     "sure that a column is updated only once. If this statement updates or inserts columns into a "
     "view, column aliasing can conceal the duplication in your code."},
    {266, 16, 2,
     "Transaction count after EXECUTE indicates a mismatching number of BEGIN and COMMIT "
     "statements. "
     "Previous count = %1, current count = %2."},
    {271, 16, 1,
     "The column \"%1\" cannot be modified because it is either a computed column or is "
     "the result of a UNION operator."},
    {281, 16, 1, "%1 is not a valid style number when converting from %2 to a character string."},
    {306, 16, 2,
     "The text, ntext, and image data types cannot be compared or sorted, except when using IS "
     "NULL "
     "or LIKE operator."},
    {310, 15, 1,
     "The value %1 specified for the MAXRECURSION option exceeds the allowed maximum of 32767."},
    {321, 15, 1,
     "\"%1\" is not a recognized table hints option. If it is intended as a parameter to a "
     "table-valued function or to the CHANGETABLE function, ensure that your database "
     "compatibility mode is set to 90."},
    {402, 16, 1, "The data types %1 and %2 are incompatible in the %3 operator."},
    {403, 16, 1, "Invalid operator for data type. Operator equals %1, type equals %2."},
    {421, 16, 1, "The %1 data type cannot be selected as DISTINCT because it is not comparable."},
    {461, 16, 1,
     "The TOP or OFFSET operator is not allowed in the recursive part of a recursive common table "
     "expression '%1'."},
    {512, 16, 1,
     "Subquery returned more than 1 value. This is not permitted when the subquery follows =, !=, "
     "<, "
     "<= , >, >= or when the subquery is used as an expression."},
    {515, 16, 2,
     "Cannot insert the value NULL into column '%1', table '%2'; column does not allow nulls. %3 "
     "fails."},
    {517, 16, 1, "Adding a value to a '%1' column caused an overflow."},
    {529, 16, 2, "Explicit conversion from data type %1 to %2 is not allowed."},
    {530, 16, 1,
     "The statement terminated. The maximum recursion %1 has been exhausted before statement "
     "completion."},
    {535, 16, 0,
     "The %1 function resulted in an overflow. The number of dateparts separating two date/time "
     "instances is too large. Try to use %1 with a less precise datepart."},
    {536, 16, 4, "Invalid length parameter passed to the %1 function."},
    {537, 16, 3, "Invalid length parameter passed to the LEFT or SUBSTRING function."},
    {544, 16, 1,
     "Cannot insert explicit value for identity column in table '%1' when IDENTITY_INSERT is set "
     "to "
     "OFF."},
    {545, 16, 1,
     "Explicit value must be specified for identity column in table '%1' either when "
     "IDENTITY_INSERT "
     "is set to ON or when a replication user is inserting into a NOT FOR REPLICATION identity "
     "column."},
    {547, 16, 0, "The %1 statement conflicted with the %2 constraint \"%3\"."},
    {628, 16, 0, "Cannot issue SAVE TRANSACTION when there is no active transaction."},
    {911, 16, 1, "Database '%1' does not exist. Make sure that the name is entered correctly."},
    {916, 14, 1,
     "The server principal \"%1\" is not able to access the database \"%2\" under the current "
     "security context."},
    {1001, 15, 1, "Line %1: Length or precision specification %2 is invalid."},
    {1002, 15, 1, "Line %1: Specified scale %2 is invalid."},
    {1007, 15, 1,
     "The number '%1' is out of the range for numeric representation (maximum precision 38)."},
    {1011, 16, 1, "The correlation name '%1' is specified multiple times in a FROM clause."},
    {1013, 16, 1,
     "The objects \"%1\" and \"%2\" in the FROM clause have the same exposed names. Use "
     "correlation "
     "names to distinguish them."},
    {1014, 15, 1, "A TOP or FETCH clause contains an invalid value."},
    {1023, 15, 1, "Invalid parameter %1 specified for %2."},
    {1033, 15, 1,
     "The ORDER BY clause is invalid in views, inline functions, derived tables, subqueries, and "
     "common table expressions, unless TOP, OFFSET or FOR XML is also specified."},
    {1038, 15, 4,
     "An object or column name is missing or empty. For SELECT INTO statements, verify each column "
     "has a name. For other statements, look for empty alias names. Aliases defined as \"\" or [] "
     "are "
     "not allowed. Change the alias to a valid name."},
    {1060, 15, 1,
     "The number of rows provided for a TOP or FETCH clauses row count parameter must be "
     "an integer."},
    {1088, 16, 12,
     "Cannot find the object \"%1\" because it does not exist or you do not have permissions."},
    {1105, 17, 2,
     "Could not allocate space for object '%1' in database '%2' because the 'PRIMARY' filegroup is "
     "full."},
    {1205, 13, 51,
     "Transaction (Process ID %1) was deadlocked on lock resources with another process and has "
     "been "
     "chosen as the deadlock victim. Rerun the transaction."},
    {1222, 16, 51, "Lock request time out period exceeded."},
    {1505, 16, 1,
     "The CREATE UNIQUE INDEX statement terminated because a duplicate key was found for the "
     "object "
     "name 'dbo.%1' and the index name '%2'. The duplicate key value is (%3)."},
    {1750, 16, 0, "Could not create constraint or index. See previous errors."},
    {1752, 16, 0, "Column '%1' in table '%2' is invalid for creating a default constraint."},
    {1754, 16, 0,
     "Defaults cannot be created on columns with an IDENTITY attribute. Table '%1', "
     "column '%2'."},
    {1779, 16, 0, "Table '%1' already has a primary key defined on it."},
    {1781, 16, 1, "Column already has a DEFAULT bound to it."},
    {1801, 16, 3, "Database '%1' already exists. Choose a different database name."},
    {1902, 16, 3,
     "Cannot create more than one clustered index on table '%1'. Drop the existing clustered index "
     "'%2' before creating another."},
    {1904, 16, 1,
     "The index '%1' on table '%2' has %3 columns in the key list. The maximum limit for index key "
     "column list is 32."},
    {1907, 16, 1,
     "Cannot recreate index '%1'. The new index definition does not match the constraint being "
     "enforced by the existing index."},
    {1909, 16, 1,
     "Cannot use duplicate column names in index. Column name '%1' listed more than once."},
    {1911, 16, 1, "Column name '%1' does not exist in the target table or view."},
    {1913, 16, 1,
     "The operation failed because an index or statistics with name '%1' already exists on table "
     "'%2'."},
    {1919, 16, 1,
     "Column '%1' in table '%2' is of a type that is invalid for use as a key column in an index."},
    {2601, 14, 1, "Cannot insert duplicate key row in object 'dbo.%1' with unique index '%2'.%3"},
    {2627, 14, 1,
     "Violation of %1 constraint '%2'. Cannot insert duplicate key in object 'dbo.%3'.%4"},
    {2628, 16, 1,
     "String or binary data would be truncated in table '%1', column '%2'. Truncated value: '%3'."},
    {2705, 16, 4,
     "Column names in each table must be unique. Column name '%1' in table '%2' is specified more "
     "than once."},
    {2714, 16, 6, "There is already an object named '%1' in the database."},
    {2715, 16, 6, "Column, parameter, or variable #%1: Cannot find data type %2."},
    {2716, 16, 1,
     "Column, parameter, or variable #%1: Cannot specify a column width on data type "
     "%2."},
    {2717, 16, 2, "The size (%1) given to the %2 '%3' exceeds the maximum allowed (4000)."},
    {2732, 16, 1,
     "Error number %1 is invalid. The number must be from 13000 through 2147483647 and it cannot "
     "be "
     "50000."},
    {2744, 16, 2,
     "Multiple identity columns specified for table '%1'. Only one identity column per table is "
     "allowed."},
    {2749, 16, 2,
     "Identity column '%1' must be of data type int, bigint, smallint, tinyint, or decimal or "
     "numeric "
     "with a scale of 0, unencrypted, and constrained to be nonnullable."},
    {2750, 16, 1,
     "Column or parameter #%1: Specified column precision %2 is greater than the maximum precision "
     "of "
     "38."},
    {2751, 16, 1,
     "Column or parameter #%1: Specified column scale %2 is greater than the specified precision "
     "of "
     "%3."},
    {2812, 16, 62, "Could not find stored procedure '%1'."},
    {3604, 10, 1, "Duplicate key was ignored."},
    {3609, 16, 1, "The transaction ended in the trigger. The batch has been aborted."},
    {3701, 11, 5,
     "Cannot drop the %1 '%2', because it does not exist or you do not have permission."},
    {3702, 16, 3, "Cannot drop database \"%1\" because it is currently in use."},
    {3705, 16, 1, "Cannot use DROP %1 with '%2' because '%2' is a %3. Use DROP %4."},
    {3723, 16, 4,
     "An explicit DROP INDEX is not allowed on index '%1'. It is being used for %2 constraint "
     "enforcement."},
    {3727, 10, 0, "Could not drop constraint. See previous errors."},
    {3728, 16, 1, "'%1' is not a constraint."},
    {3733, 16, 2, "Constraint '%1' does not belong to table '%2'."},
    {3902, 16, 1, "The COMMIT TRANSACTION request has no corresponding BEGIN TRANSACTION."},
    {3903, 16, 1, "The ROLLBACK TRANSACTION request has no corresponding BEGIN TRANSACTION."},
    {3906, 16, 1, "Failed to update database \"%1\" because the database is read-only."},
    {3930, 16, 1,
     "The current transaction cannot be committed and cannot support operations that write to the "
     "log "
     "file. Roll back the transaction."},
    {4060, 11, 1, "Cannot open database \"%1\" requested by the login. The login failed."},
    {4104, 16, 1, "The multi-part identifier \"%1\" could not be bound."},
    {4108, 15, 1, "Windowed functions can only appear in the SELECT or ORDER BY clauses."},
    {4112, 15, 1, "The function '%1' must have an OVER clause with ORDER BY."},
    {4113, 15, 1,
     "The function '%1' is not a valid windowing function, and cannot be used with the "
     "OVER clause."},
    {4121, 16, 1,
     "Cannot find either column \"%1\" or the user-defined function or aggregate \"%2\", or the "
     "name "
     "is ambiguous."},
    {4145, 15, 1,
     "An expression of non-boolean type specified in a context where a condition is expected, near "
     "'%1'."},
    {4403, 16, 1,
     "Cannot update the view or function '%1' because it contains aggregates, or a DISTINCT or "
     "GROUP "
     "BY clause, or PIVOT or UNPIVOT operator."},
    {4405, 16, 1,
     "View or function '%1' is not updatable because the modification affects multiple base "
     "tables."},
    {4406, 16, 1,
     "Update or insert of view or function '%1' failed because it contains a derived or constant "
     "field."},
    {4426, 16, 1, "View '%1' is not updatable because the definition contains a UNION operator."},
    {4436, 16, 1,
     "UNION ALL view '%1' is not updatable because a partitioning column was not found."},
    {4701, 16, 1,
     "Cannot find the object \"%1\" because it does not exist or you do not have permissions."},
    {4901, 16, 1,
     "ALTER TABLE only allows columns to be added that can contain nulls, or have a DEFAULT "
     "definition specified, or the column being added is an identity or timestamp column, or "
     "alternatively if none of the previous conditions are satisfied the table must be empty to "
     "allow "
     "addition of this column. Column '%1' cannot be added to non-empty table '%2' because it does "
     "not satisfy these conditions."},
    {4902, 16, 1,
     "Cannot find the object \"%1\" because it does not exist or you do not have permissions."},
    {4909, 16, 1, "Cannot alter '%1' because it is not a table."},
    {4922, 16, 9, "%1 %2 failed because one or more objects access this column."},
    {4923, 16, 1,
     "ALTER TABLE DROP COLUMN failed because '%1' is the only data column in table '%2'. A table "
     "must "
     "have at least one data column."},
    {4924, 16, 1, "%1 failed because column '%2' does not exist in table '%3'."},
    {4928, 16, 1, "Cannot alter column '%1' because it is '%2'."},
    {5074, 16, 1, "The %1 '%2' is dependent on column '%3'."},
    {5324, 15, 1,
     "In a MERGE statement, a '%1' clause with a search condition cannot appear after a '%1' "
     "clause "
     "with no search condition."},
    {6401, 16, 1, "Cannot roll back %1. No transaction or savepoint of that name was found."},
    {7119, 16, 1, "Attempting to grow LOB beyond maximum allowed size of %1 bytes."},
    {8101, 16, 1,
     "An explicit value for the identity column in table '%1' can only be specified when a column "
     "list is used and IDENTITY_INSERT is ON."},
    {8102, 16, 1, "Cannot update identity column '%1'."},
    {8106, 16, 1, "Table '%1' does not have the identity property. Cannot perform SET operation."},
    {8107, 16, 1,
     "IDENTITY_INSERT is already ON for table '%1'. Cannot perform SET operation for table '%2'."},
    {8110, 16, 0, "Cannot add multiple PRIMARY KEY constraints to table '%1'."},
    {8111, 16, 1, "Cannot define PRIMARY KEY constraint on nullable column in table '%1'."},
    {8112, 16, 0, "Cannot add more than one clustered index for constraints on table '%1'."},
    {8114, 16, 5, "Error converting data type %1 to %2."},
    {8115, 16, 2, "Arithmetic overflow error converting %1 to data type %2."},
    {8116, 16, 1, "Argument data type %1 is invalid for argument %2 of %3 function."},
    {8117, 16, 1, "Operand data type %1 is invalid for %2 operator."},
    {8120, 16, 1,
     "Column '%1' is invalid in the select list because it is not contained in either an aggregate "
     "function or the GROUP BY clause."},
    {8121, 16, 1,
     "Column '%1' is invalid in the HAVING clause because it is not contained in either an "
     "aggregate "
     "function or the GROUP BY clause."},
    {8127, 16, 1,
     "Column \"%1\" is invalid in the ORDER BY clause because it is not contained in either an "
     "aggregate function or the GROUP BY clause."},
    {8133, 16, 1,
     "At least one of the result expressions in a CASE specification must be an expression other "
     "than "
     "the NULL constant."},
    {8134, 16, 1, "Divide by zero error encountered."},
    {8143, 16, 1, "Parameter '%1' was supplied multiple times."},
    {8144, 16, 2, "Procedure or function %1 has too many arguments specified."},
    {8145, 16, 1, "%1 is not a parameter for procedure %2."},
    {8146, 16, 1, "Procedure %1 has no parameters and arguments were supplied."},
    {8147, 16, 1, "Could not create IDENTITY attribute on nullable column '%1', table '%2'."},
    {8152, 16, 30, "String or binary data would be truncated."},
    {8155, 16, 2, "No column name was specified for column %1 of '%2'."},
    {8156, 16, 1, "The column '%1' was specified multiple times for '%2'."},
    {8158, 16, 1, "'%1' has more columns than were specified in the column list."},
    {8159, 16, 1, "'%1' has fewer columns than were specified in the column list."},
    {8162, 16, 2,
     "The formal parameter \"%1\" was not declared as an OUTPUT parameter, but the actual "
     "parameter "
     "passed in requested output."},
    {8169, 16, 2, "Conversion failed when converting from a character string to uniqueidentifier."},
    {8170, 16, 2, "Insufficient result space to convert uniqueidentifier value to char."},
    {8180, 16, 1, "Statement(s) could not be prepared."},
    {8672, 16, 1,
     "The MERGE statement attempted to UPDATE or DELETE the same row more than once. This happens "
     "when a target row matches more than one source row. A MERGE statement cannot UPDATE/DELETE "
     "the "
     "same row of the target table multiple times. Refine the ON clause to ensure a target row "
     "matches at most one source row, or use the GROUP BY clause to group the source rows."},
    {9002, 17, 2, "The transaction log for database '%1' is full due to '%2'."},
    {10704, 15, 1,
     "To rethrow an error, a THROW statement must be used inside a CATCH block. Insert the THROW "
     "statement inside a CATCH block, or add error parameters to the THROW statement."},
    {10713, 15, 1, "A MERGE statement must be terminated by a semi-colon (;)."},
    {10714, 15, 1,
     "An action of type '%1' cannot appear more than once in a '%2' clause of a MERGE statement."},
    {10742, 15, 1, "The offset specified in a OFFSET clause may not be negative."},
    {10744, 15, 1, "The number of rows provided for a FETCH clause must be greater then zero."},
    {10753, 15, 1, "The function '%1' must have an OVER clause."},
    {15225, 11, 1,
     "No item by the name of '%1' could be found in the current database '%2', given that "
     "@itemtype "
     "was input as '%3'."},
    {15335, 11, 1,
     "Error: The new name '%1' is already in use as a %2 name and would cause a duplicate that is "
     "not "
     "permitted."},
    {35100, 16, 10,
     "Error number %1 in the THROW statement is outside the valid range. Specify an error number "
     "in "
     "the valid range of 50000 to 2147483647."},
    {40000, 16, 1, "Not supported by the embedded database: %1."},
};

struct State
{
    int number;
    std::string_view sqlState;
};

// By number; what is not here is 42000.
constexpr State states[] = {
    {109, "21S01"},  {110, "21S01"},  {120, "21S01"},  {121, "21S01"},  {207, "42S22"},
    {208, "42S02"},  {213, "21S01"},  {220, "22003"},  {232, "22003"},  {241, "22007"},
    {242, "22007"},  {244, "22003"},  {245, "22018"},  {248, "22003"},  {512, "21000"},
    {515, "23000"},  {535, "22008"},  {544, "23000"},  {547, "23000"},  {1205, "40001"},
    {1222, "HYT00"}, {1505, "23000"}, {1913, "42S11"}, {2601, "23000"}, {2627, "23000"},
    {2628, "22001"}, {2705, "42S21"}, {2714, "42S01"}, {3701, "42S02"}, {3902, "25000"},
    {3903, "25000"}, {4701, "42S02"}, {4902, "42S02"}, {4924, "42S22"}, {8114, "22018"},
    {8115, "22003"}, {8134, "22012"}, {8152, "22001"}, {8169, "22018"}};

constexpr auto byNumber = [](const auto& a, const auto& b) { return a.number < b.number; };
static_assert(std::is_sorted(std::begin(rows), std::end(rows), byNumber));
static_assert(std::is_sorted(std::begin(states), std::end(states), byNumber));

template <class Table>
auto findNumber(const Table& table, int number)
    -> const std::remove_reference_t<decltype(table[0])>* {
    const auto found = std::lower_bound(std::begin(table), std::end(table), number,
                                        [](const auto& row, int n) { return row.number < n; });
    return found != std::end(table) && found->number == number ? &*found : nullptr;
}

std::string filled(std::string_view wording, std::initializer_list<std::string_view> arguments) {
    std::string text;
    for (std::size_t i = 0; i < wording.size(); ++i) {
        const bool placeHolder = wording[i] == '%' && i + 1 < wording.size() &&
                                 wording[i + 1] >= '1' && wording[i + 1] <= '4';
        if (!placeHolder) {
            text += wording[i];
            continue;
        }
        const auto index = static_cast<std::size_t>(wording[++i] - '1');
        if (index < arguments.size()) {
            text += arguments.begin()[index];
        }
    }
    return text;
}

} // namespace

SqlMessage serverMessage(int number, std::initializer_list<std::string_view> arguments, int line) {
    if (const auto* row = findNumber(rows, number)) {
        return {number, row->level, row->state, line, filled(row->wording, arguments)};
    }
    std::string text;
    for (const auto argument : arguments) {
        text += text.empty() ? "" : " ";
        text += argument;
    }
    return {number, 16, 1, line, text};
}

void raise(int number, std::initializer_list<std::string_view> arguments, int line) {
    throw Fault(serverMessage(number, arguments, line));
}

void raiseUnsupported(std::string_view construct, int line, int column) {
    std::string what(construct);
    if (line > 0) {
        what += " (line " + std::to_string(line) + ", column " + std::to_string(column) + ")";
    }
    SqlMessage message = serverMessage(unsupportedNumber, {what}, line);
    message.column = column;
    throw Fault(std::move(message));
}

std::string_view sqlStateOf(int number) {
    const auto* row = findNumber(states, number);
    return row ? row->sqlState : "42000";
}

SqlError statementError(const SqlMessage& message, std::string statement) {
    return {SqlErrorKind::Statement, std::string(sqlStateOf(message.number)), message,
            std::move(statement)};
}

} // namespace velcro::sql::tsql

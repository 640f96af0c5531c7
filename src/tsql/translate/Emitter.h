// Turns the tree of a T-SQL statement into SQLite text. Types are inferred on the way up: each piece
// knows its T-SQL type, and whoever combines two pieces converts them as the server would. A literal
// or variable is placed only then, so that it is converted once, when it is bound, and an index on
// the column it meets can be used.
#pragma once

#include "tsql/functions/Functions.h"
#include "tsql/syntax/AstQuery.h"
#include "tsql/translate/Names.h"
#include "tsql/translate/Scope.h"
#include "tsql/translate/Translation.h"

#include <span>
#include <string>
#include <utility>
#include <vector>

namespace velcro::sql::tsql {

/// What becomes of literals.
enum class Literals : std::uint8_t {
    Open,   // bound anew at every run from the shape
    Kept,   // bound, always the same
    Inline, // written into the text, which stays in the file
};

/// One for a statement. Refusals are Faults with the line set.
class Emitter
{
public:
    Emitter(const Names& names, Literals literals)
        : names_(names)
        , literals_(literals) {}

    Translation select(const Select& statement);
    /// The SELECT of a view, its columns named.
    Translation view(const Select& statement, std::span<const std::string> names);
    Translation insert(const Insert& statement);
    Translation update(const Update& statement);
    Translation remove(const Delete& statement);
    /// The parts of a MERGE in the order they are to run, to be kept together by a savepoint.
    static std::vector<Translation> merge(const Merge& statement, const Names& names,
                                          Literals literals);
    /// INSERT of one row whose values are bound by position, for INSERT ... EXEC.
    Translation insertBound(const Insert& statement, std::span<const ResultColumn> given);

    /// One row with one cell: the value, converted when target is given.
    Translation value(const Expr& expr, const Type& target = {});
    /// One row with one cell: 1, 0 or NULL.
    Translation condition(const Expr& expr);
    /// The text of a value without any bind, converted to the type: for DEFAULT clauses.
    std::string constantText(const Expr& expr, const Type& target);

private:
    /// A value on its way: text, or a bind that is not yet placed.
    struct Fragment
    {
        std::string text;
        Type type;
        bool collated = false; // carries the collation by itself
        std::optional<Bind> bind;
    };
    struct Item
    {
        std::string name;
        Fragment value;
        std::string variable;
    };
    /// SELECT <head> <items> <tail>: kept apart until the items' final types are known.
    struct Core
    {
        std::string head;
        std::vector<Item> items;
        std::string tail;
    };
    struct QueryText
    {
        std::string text;
        std::vector<ResultColumn> columns;
    };
    struct GroupCheck
    {
        const Scope* scope;
        std::vector<std::string> columns;
        bool strict;
    };

    // EmitterValues.cpp
    Fragment valueOf(const Expr& expr, const Scope& scope);
    Fragment emit(const Literal& literal, const Scope& scope);
    Fragment emit(const NullLiteral&, const Scope&) { return {"NULL", {}, false, {}}; }
    Fragment emit(const Variable& variable, const Scope& scope);
    Fragment emit(const GlobalVariable& variable, const Scope& scope);
    Fragment emit(const NamedParameter& parameter, const Scope& scope);
    Fragment emit(const ColumnRef& reference, const Scope& scope);
    Fragment emit(const Unary& unary, const Scope& scope);
    Fragment emit(const velcro::sql::tsql::Binary& binary, const Scope& scope);
    Fragment emit(const Case& value, const Scope& scope);
    Fragment emit(const Cast& cast, const Scope& scope);
    Fragment emit(const Convert& convert, const Scope& scope);
    Fragment emit(const Collate& collate, const Scope& scope);
    Fragment emit(const ScalarQuery& query, const Scope& scope);
    Fragment scalarQuery(const ScalarQuery& query, const Scope& scope);
    Fragment emit(const FunctionCall& call, const Scope& scope);
    template <class Node>
    Fragment emit(const Node&, const Scope&);
    Fragment arithmetic(BinaryOp op, Fragment left, Fragment right);
    Fragment cast(Fragment operand, const DataType& type, bool isTry, int style);
    Fragment columnFragment(const Source& source, const SourceColumn& column);
    void checkGrouping(const Fragment& column, const Source& source, const std::string& name);

    // EmitterFunctions.cpp
    Fragment ownFunction(const std::string& name, const FunctionCall& call, const Scope& scope);
    Fragment aggregate(const std::string& name, const FunctionCall& call, const Scope& scope);
    Fragment ranking(const std::string& name, const FunctionCall& call, const Scope& scope);
    Fragment plainFunction(const FunctionInfo& info, const FunctionCall& call, const Scope& scope);
    std::string argument(ArgumentKind kind, const Expr& expr, const Scope& scope, Type& type);
    std::string windowText(const Window& window, const Scope& scope);
    std::string frameBound(const FrameBound& bound, const Scope& scope);
    Fragment combined(std::vector<Fragment> values, const char* function);

    // EmitterConditions.cpp
    std::string conditionOf(const Expr& expr, const Scope& scope);
    std::string test(const Comparison& comparison, const Scope& scope);
    std::string test(const Logical& logical, const Scope& scope);
    std::string test(const Not& negation, const Scope& scope);
    std::string test(const IsNull& isNull, const Scope& scope);
    std::string test(const Between& between, const Scope& scope);
    std::string test(const InList& list, const Scope& scope);
    std::string test(const InQuery& query, const Scope& scope);
    std::string test(const Like& like, const Scope& scope);
    std::string test(const Exists& exists, const Scope& scope);
    std::string test(const Quantified& quantified, const Scope& scope);
    template <class Node>
    std::string test(const Node&, const Scope&);
    std::string rowsTest(const InQuery& query, const Scope& scope);
    std::string rowsTest(const Exists& exists, const Scope& scope);
    std::string rowsTest(const Quantified& quantified, const Scope& scope);
    std::string compare(CompareOp op, Fragment left, Fragment right);

    // EmitterParts.cpp
    /// The values that the statement around a part hands to it, as that statement's text has them.
    struct Part
    {
        std::vector<std::string> values;
    };
    /// One expression more around what is emitted while it lives.
    struct Level
    {
        explicit Level(Emitter& emitter)
            : count(emitter.level_) {
            ++count;
        }
        ~Level() { --count; }
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;
        int& count;
    };
    bool standsTooDeep(const Expr& expr) const;
    template <class Emit>
    Fragment part(Emit emit);
    Fragment partOf(const Expr& expr, const Scope& scope);
    std::string conditionPartOf(const Expr& expr, const Scope& scope);
    std::string fromOutside(std::string text);
    template <class Emit>
    auto outside(Emit emit) {
        Part* const inner = std::exchange(part_, nullptr);
        const int level = std::exchange(level_, 0);
        auto result = emit();
        part_ = inner;
        level_ = level;
        return fromOutside(std::move(result));
    }
    Fragment fromOutside(Fragment fragment);

    // EmitterPlacing.cpp
    std::string place(Bind bind);
    std::string placed(Fragment fragment);
    std::string as(Fragment fragment, const Type& target);
    std::string asText(Fragment fragment);
    std::string asReal(Fragment fragment);
    std::string stored(Fragment fragment, const TableDef& table, const ColumnDef& column);
    static std::string collatedText(const Fragment& fragment, std::string text);

    // EmitterQuery.cpp
    /// names: what the columns are called instead of their own names; may be empty. nested: the rows
    /// stand inside another statement, so columns carry names and the collation.
    QueryText query(const Query& query, const Scope* outer, bool nested,
                    std::span<const std::string> names = {});
    Core core(const SelectCore& select, const Scope* outer, const Query* whole,
              std::string& orderText);
    std::string groupText(const SelectCore& select, const Scope& scope, GroupCheck& check);
    void addItem(const SelectItem& item, const Scope& scope, Core& core);
    void addStar(const Star& star, const Scope& scope, Core& core);
    QueryText joined(Core core, bool nested, std::span<const Type> types,
                     std::span<const std::string> names);
    std::string orderText(const std::vector<OrderItem>& order, const Core& core,
                          const Scope& scope);
    void requireSortable(const Type& type) const;
    /// Never more than one: an aggregate over all rows, or no table at all.
    static bool givesOneRow(const QueryBody& body);
    /// Its rows are groups of rows.
    static bool groups(const SelectCore& select);
    std::string orderKey(const Expr& expr, const Core& core, const Scope& scope);
    std::string limitText(const SelectCore* select, const Query& query, const Scope& scope);
    std::string topText(const Expr& top, const Scope& scope);
    std::string rowCount(const Expr& count, int least, int error, const Scope& scope);

    // EmitterCompound.cpp
    QueryText compound(const Query& query, const Scope* outer, bool nested,
                       std::span<const std::string> names);
    void flatten(const QueryBody& body, const Scope* outer, const char* sign,
                 std::vector<std::pair<const char*, Core>>& parts, const Recursion& recursion);
    static Core wrapped(QueryText rows);
    std::string compoundOrder(const std::vector<OrderItem>& order,
                              const std::vector<ResultColumn>& columns);
    std::string withText(const std::vector<CommonTable>& tables, const QueryHints& hints);
    std::vector<SourceColumn> anchorColumns(const CommonTable& table);

    // EmitterFrom.cpp
    std::string fromText(const std::vector<TableSourcePtr>& from, Scope& scope);
    std::string sourceText(const TableSource& source, Scope& scope);
    std::string emitSource(const NamedTable& table, Scope& scope);
    std::string emitSource(const DerivedTable& table, Scope& scope);
    std::string emitSource(const ValuesTable& table, Scope& scope);
    std::string emitSource(const Join& join, Scope& scope);
    const TableDef& requireTable(const ObjectName& name) const;
    static Source tableSource(const TableDef& table, std::string alias);

    // EmitterInsert.cpp
    Translation finish(std::string text, std::string verb, std::vector<ResultColumn> columns = {});
    std::vector<const ColumnDef*> insertColumns(const std::vector<std::string>& names,
                                                const TableDef& table);
    static std::string insertHead(const TableDef& table,
                                  const std::vector<const ColumnDef*>& columns);
    std::string insertRows(const Insert& statement, const TableDef& table,
                           const std::vector<const ColumnDef*>& columns);
    std::string insertQuery(const Query& rows, const TableDef& table,
                            const std::vector<const ColumnDef*>& columns);
    std::string rowValue(const Expr& expr, const TableDef& table, const ColumnDef& column,
                         const Scope& scope);
    std::string returning(const std::vector<SelectItem>& output, const TableDef& table,
                          std::string_view pseudoTable, std::vector<ResultColumn>& columns);

    // EmitterUpdate.cpp
    /// What a SET list makes: columns with their new values, and variables that take one of them.
    struct Changes
    {
        std::vector<std::pair<const ColumnDef*, std::string>> columns;
        std::vector<ResultColumn> variables;
    };
    Changes changes(const std::vector<Assignment>& set, const Source& target, const Scope& scope);
    std::string assignedValue(const Assignment& assignment, const ColumnDef& column,
                              const Source& target, const Scope& scope);
    Translation updatePlain(const Update& statement, const TableDef& table);
    /// UPDATE over the rows of a join: from is " FROM ..." with its conditions.
    Translation updateJoined(const Source& target, const Changes& changes, const std::string& with,
                             const std::string& from);
    std::string removeText(const TableDef& table, const std::string& alias,
                           const std::string& from);
    std::string changedText(const std::vector<TableSourcePtr>& from, const std::string& target,
                            Scope& scope);
    /// Adds the target to a FROM that does not name it.
    const Source& targetOf(const ObjectName& target, Scope& scope, std::string& from);
    static std::string returningVariables(const std::vector<ResultColumn>& variables);

    // EmitterViews.cpp
    std::string emitView(const RoutineDef& view, const TableDef& shown, std::string alias,
                         Scope& scope);
    Source changedView(const RoutineDef& view, const TableDef& shown, std::string alias,
                       std::string& rows);
    const SelectCore& changeableRows(const Select& select, const std::string& view) const;
    const ColumnDef& changedColumn(const Source& target, const std::string& name) const;
    /// The table that rows are inserted into, and its columns for those named.
    const TableDef& insertTarget(const Insert& statement, std::vector<std::string>& names);

    // EmitterMerge.cpp
    Translation mergePart(const Merge& statement, const MergeWhen& when);
    Translation mergeMatched(const Merge& statement, const MergeWhen& when);
    Translation mergeBySource(const Merge& statement, const MergeWhen& when);
    Translation mergeInsert(const Merge& statement, const MergeWhen& when);
    Translation mergeChange(const MergeWhen& when, const Source& target, const Scope& scope,
                            const std::string& with, const std::string& from);

    const Names& names_;
    Literals literals_;
    std::vector<Bind> binds_;
    std::vector<CommonTableInfo> commonTables_;
    std::vector<GroupCheck> groups_;
    std::string changed_;  // the table of the FROM at hand whose rows are changed, as it is called
    Recursion recursion_;  // of the common table whose query comes next
    Part* part_ = nullptr; // that the text at hand is in
    int level_ = 0;        // how many expressions stand around it there
    int aggregateDepth_ = 0;
    int line_ = 0;
};

} // namespace velcro::sql::tsql

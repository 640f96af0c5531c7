// The recursive descent behind parse(): one function a rule, its grammar line above it where it is
// defined. Lists are comma-separated; [x] may be left out; {x} repeats.
#pragma once

#include "tsql/syntax/AstStatement.h"
#include "tsql/syntax/Parser.h"
#include "tsql/syntax/TokenStream.h"

namespace velcro::sql::tsql {

/// How deep brackets, sub-selects and blocks may stand in each other, and how high a chain of
/// operators may grow: what walks the tree by recursion stays far from the end of the stack.
inline constexpr int maximumNesting = 200;
inline constexpr int maximumHeight = 500;

class Descent
{
public:
    Descent(std::string_view text, std::uint32_t firstLine, bool beginsBatch)
        : in_(text, firstLine)
        , first_(beginsBatch) {}

    Batch batch();

private:
    /// Counts one level of nesting while it lives; refuses with 191 when there are too many.
    class Level
    {
    public:
        explicit Level(Descent& descent);
        ~Level() { --depth_; }
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;

    private:
        int& depth_;
    };
    template <class Function>
    void list(Function&& entry) {
        do {
            entry();
        } while (in_.accept(Op::Comma));
    }
    /// '(' list ')'
    template <class Function>
    void bracketedList(Function&& entry) {
        in_.expect(Op::Open);
        list(entry);
        in_.expect(Op::Close);
    }
    std::vector<std::string> bracketedNames();
    [[noreturn]] void refuseDepth() const;
    std::uint16_t heightAbove(int below);
    struct Place
    {
        std::uint32_t offset;
        std::uint32_t line;
    };
    Place here() const { return {in_.offset(), in_.line()}; }
    static Place placeOf(const Expr& expr) { return {expr.offset, expr.line}; }

    // Names, types and constants: ParserNames.cpp
    ObjectName objectName();
    ObjectName objectNameOf(std::vector<std::string> parts, std::uint32_t offset);
    std::vector<std::string> nameParts();
    DataType dataType();
    void typeArguments(DataType& type);
    int structuralInteger();
    std::int64_t signedInteger();
    /// Marks the literal at hand as one that shapes the tree.
    void markStructural() { structural_.push_back(in_.current().literal); }
    std::string optionalAlias(bool allowString);

    // Expressions: ParserExpression.cpp
    ExprPtr value();
    ExprPtr condition();
    ExprPtr anyExpression();
    ExprPtr conjunction();
    ExprPtr negation();
    ExprPtr predicate();
    ExprPtr comparison(ExprPtr left, CompareOp op);
    ExprPtr membership(ExprPtr left, bool negated);
    ExprPtr like(ExprPtr left, bool negated);
    ExprPtr between(ExprPtr left, bool negated);
    ExprPtr sum();
    ExprPtr product();
    ExprPtr binary(ExprPtr left, BinaryOp op, ExprPtr right);
    ExprPtr unary();
    ExprPtr postfix();
    ExprPtr logical(bool isAnd, std::vector<ExprPtr> operands);
    void requireValue(const Expr& expr) const;
    void requireCondition(const Expr& expr) const;
    ExprPtr node(ExprNode content, Place place);

    // Operands of expressions and calls: ParserOperand.cpp
    ExprPtr operand();
    ExprPtr bracketed();
    ExprPtr literal();
    ExprPtr wordOperand();
    ExprPtr caseExpression();
    ExprPtr castCall(bool isTry);
    ExprPtr convertCall(bool isTry);
    ExprPtr nameOperand();
    ExprPtr callOf(ObjectName name, Place place);
    void callArguments(FunctionCall& call);
    std::optional<Window> over();
    void frame(Window& window);
    FrameBound frameBound();

    // Queries: ParserSelect.cpp, ParserFrom.cpp
    QueryPtr query();
    QueryPtr bracketedQuery();
    bool atQuery(std::size_t ahead = 0) const;
    QueryBodyPtr queryBody();
    QueryBodyPtr intersection();
    QueryBodyPtr queryTerm();
    QueryBodyPtr setOperation(SetOperator op, QueryBodyPtr left, QueryBodyPtr right);
    SelectCore selectCore();
    ExprPtr top();
    SelectItem selectItem();
    std::optional<Star> qualifiedStar();
    std::vector<OrderItem> orderBy();
    void offsetFetch(Query& query);
    std::vector<CommonTable> commonTables();
    CommonTable commonTable();
    QueryHints queryHints();
    std::string queryHint();
    std::vector<TableSourcePtr> fromClause();
    TableSourcePtr joinedTable();
    TableSourcePtr joinedRight();
    std::optional<JoinKind> joinKind();
    TableSourcePtr tablePrimary();
    TableSourcePtr bracketedTable();
    TableSourcePtr namedTable();
    TableSourcePtr source(decltype(TableSource::node) content, std::uint32_t offset);
    std::vector<std::vector<ExprPtr>> valuesRows();
    std::vector<ExprPtr> valuesRow();
    ExprPtr valueOrDefault();
    TableHints withHints();
    TableHints bareHints();
    void hintList(TableHints& hints);
    void indexHint();
    static void hintsInto(TableHints& hints, TableHints more);
    void derivedAlias(std::string& alias, std::vector<std::string>& columns);

    // Statements on rows: ParserRows.cpp, ParserMerge.cpp
    StatementNode rowsStatement();
    Select select(std::vector<CommonTable> with);
    Insert insert(std::vector<CommonTable> with);
    void insertSource(Insert& insert);
    Update update(std::vector<CommonTable> with);
    Delete deleteRows(std::vector<CommonTable> with);
    Merge merge(std::vector<CommonTable> with);
    MergeWhen mergeWhen();
    void mergeAction(MergeWhen& when);
    std::vector<Assignment> assignments();
    Assignment assignment();
    AssignOp assignOp();
    std::vector<SelectItem> output();
    ExprPtr where();
    TableHints targetHints();
    std::vector<std::string> columnList();
    bool columnIsAssigned() const;

    // Definitions: ParserTable.cpp, ParserObjects.cpp
    StatementNode create();
    StatementNode alter();
    StatementNode drop();
    [[noreturn]] void refuseOtherObject(const std::string& verb) const;
    CreateTable createTable();
    void tableElements(std::vector<ColumnDefinition>& columns,
                       std::vector<Constraint>& constraints);
    ColumnDefinition columnDefinition();
    bool columnOption(ColumnDefinition& column);
    bool atConstraint() const;
    Constraint constraint(bool ofTable);
    void keyConstraint(Constraint& constraint, bool ofTable);
    void defaultConstraint(Constraint& constraint, bool ofTable);
    Identity identity();
    KeptExpr kept();
    std::optional<bool> clustering();
    std::vector<IndexColumn> indexColumns();
    std::vector<IndexOption> indexOptions();
    std::string filegroup();
    AlterTable alterTable();
    AlterTableAdd alterTableAdd();
    AlterTableAlterColumn alterColumn();
    AlterTableDrop alterTableDrop();
    AlterTableCheck alterTableCheck(bool check);
    CreateIndex createIndex();
    DropIndex dropIndex();
    DropObject dropObject();
    CreateView createView(DefineMode mode, std::uint32_t begin);
    CreateProcedure createProcedure(DefineMode mode, std::uint32_t begin);
    ProcedureParameter procedureParameter();
    ExprPtr constant();
    bool ifExists();
    void requireFirst(std::string_view what);

    // Control flow: ParserControl.cpp, ParserExecute.cpp
    StatementPtr statement();
    StatementNode statementNode();
    StatementNode flowStatement();
    StatementNode otherStatement();
    template <class Ends>
    std::vector<StatementPtr> statementsUntil(Ends&& ends) {
        std::vector<StatementPtr> statements;
        while (in_.accept(Op::Semicolon)) {
        }
        while (!ends()) {
            statements.push_back(statement());
        }
        return statements;
    }
    StatementNode begin();
    TryCatch tryCatch();
    If ifStatement();
    While whileStatement();
    StatementNode loopExit();
    Return returnStatement();
    Declare declare();
    Declare::Item declareItem();
    StatementNode set();
    SetOption setOption();
    std::string optionWord();
    std::string isolationLevel();
    std::string optionValue();
    std::string onOff();
    Throw throwStatement();
    ExprPtr throwArgument();
    RaiseError raiseError();
    Transaction transaction(Transaction::Kind kind);
    StatementNode execute();
    Execute call(std::string result);
    Argument argument();
    bool atArgument() const;

    TokenStream in_;
    int depth_ = 0;
    std::uint16_t tallest_ = 0; // among the nodes of the query being read
    int loops_ = 0;
    bool first_; // no statement was read yet
    bool inProcedure_ = false;
    bool reusable_ = true;
    std::vector<std::uint32_t> structural_;
};

} // namespace velcro::sql::tsql

// One connection to an embedded database: runs batches of T-SQL statement by statement, each
// translated once and kept prepared.
#pragma once

#include "tsql/catalogue/Catalogue.h"
#include "tsql/catalogue/DatabaseFile.h"
#include "tsql/catalogue/Ddl.h"
#include "tsql/functions/Functions.h"
#include "tsql/session/Binder.h"
#include "tsql/session/Frame.h"
#include "tsql/session/NativeProcedure.h"
#include "tsql/session/TemporaryTables.h"
#include "tsql/session/Transactions.h"
#include "tsql/syntax/AstStatement.h"
#include "tsql/syntax/Parser.h"
#include "tsql/syntax/Shape.h"
#include "tsql/syntax/TextPattern.h"
#include "tsql/translate/Emitter.h"

#include <atomic>
#include <deque>
#include <map>
#include <optional>
#include <unordered_map>

namespace velcro::sql::tsql {

/// A statement that is ready to run.
struct Prepared
{
    Translation translation;
    StatementHandle statement;
};

/// A piece of a batch, or the body of a procedure, and what was translated of it so far. Translations
/// hold for one version of the catalogue.
struct Program
{
    Batch batch;
    Literals literals = Literals::Open;
    bool cutsExpressions = false; // one of its statements was too deep for SQLite's parser
    std::int64_t version = -1;
    std::unordered_map<const void*, std::deque<Prepared>> prepared;
};

class Session
{
public:
    static constexpr std::size_t shapesKept = 400;

    /// Throws SqlError of kind NotConnected.
    explicit Session(const DatabaseSettings& settings, NativeProcedures natives = {});

    /// Everything throws SqlError.
    void run(std::string_view batch, std::span<const Parameter> parameters,
             const OnResult& onResult);
    /// Ends the batch that runs, from any thread.
    void cancel() noexcept;
    void begin();
    void commit();
    void rollback();

private:
    /// Where the statements that run belong to.
    struct Place
    {
        Program& program;
        std::string_view text; // what the program was parsed from
        Frame& frame;
        std::span<const LiftedLiteral> literals;
        std::span<const Parameter> parameters;
        const OnResult& onResult;
    };
    enum class Flow : std::uint8_t { Normal, Break, Continue, Return };
    struct Piece
    {
        std::shared_ptr<Program> program;
        std::string_view text;
        std::vector<LiftedLiteral> literals;
    };
    class PlaceNames;
    class Caller;

    // Session.cpp
    void runPieces(std::string_view batch, std::span<const Parameter> parameters,
                   const OnResult& onResult);
    std::vector<Piece> piecesOf(std::string_view batch, std::span<const Parameter> parameters);
    std::shared_ptr<Program> programOf(Shape& shape, std::span<const Parameter> parameters);
    SessionFacts facts();
    template <class Work>
    void told(std::string_view text, Work work);
    Value sessionValue(std::string_view name) const;
    std::int64_t versionNow() const;

    // SessionRows.cpp
    using Translator = std::function<std::vector<Translation>(const PlaceNames&)>;
    std::deque<Prepared>& prepare(const void* node, Place& place, const Translator& translate);
    class TooDeep;
    std::deque<Prepared> compiled(Place& place, const Translator& translate);
    /// The translation of what will stand inside another statement, after SQLite has taken it once.
    using OneTranslator = std::function<Translation(const PlaceNames&)>;
    Translation translated(Place& place, const OneTranslator& translate);
    [[noreturn]] void refuseText(std::string_view said) const;
    StatementHandle compile(const std::string& text);
    void bind(Prepared& prepared, const Place& place, std::span<const Value> given = {});
    std::int64_t step(Prepared& prepared, Place& place, RowSetBuilder* rows);
    std::int64_t runOne(Prepared& prepared, Place& place);
    void keepVariables(Prepared& prepared, Place& place);
    [[noreturn]] void failStep(Prepared& prepared, int code);
    void report(Place& place, std::int64_t affected);
    template <class Translate, class Read>
    auto oneCell(const Expr& expr, Place& place, Translate translate, Read read);
    Value evaluate(const Expr& expr, Place& place, Type* type = nullptr);
    bool holds(const Expr& expr, Place& place);

    // SessionStatements.cpp
    Flow runAll(const std::vector<StatementPtr>& statements, Place& place);
    Flow runStatement(const Statement& statement, Place& place);
    Flow visitStatement(const Statement& statement, Place& place);
    Flow execute(const Select& select, Place& place);
    Flow execute(const Insert& insert, Place& place);
    Flow execute(const Update& update, Place& place);
    Flow execute(const Delete& remove, Place& place);
    Flow execute(const Merge& merge, Place& place);
    Flow execute(const TruncateTable& truncate, Place& place);
    Flow insertResults(const Insert& insert, Place& place);
    std::int64_t insertRows(const Insert& insert, const RowSet& rows, Place& place);
    void selectInto(const Select& select, const ObjectName& into, Place& place);

    // SessionControl.cpp
    Flow execute(const Declare& declare, Place& place);
    Flow execute(const SetVariable& set, Place& place);
    Flow execute(const SetOption& set, Place& place);
    Flow execute(const If& branch, Place& place);
    Flow execute(const Block& block, Place& place);
    Flow execute(const While& loop, Place& place);
    Flow execute(const Break&, Place&) { return Flow::Break; }
    Flow execute(const Continue&, Place&) { return Flow::Continue; }
    Flow execute(const Return& value, Place& place);
    Flow execute(const Print& print, Place& place);
    void say(Place& place, SqlMessage message);
    Flow execute(const RaiseError& error, Place& place);
    Flow execute(const Throw& error, Place& place);
    Flow execute(const TryCatch& tried, Place& place);
    Flow execute(const Transaction& transaction, Place& place);
    Flow execute(const Use& use, Place& place);

    // SessionProcedures.cpp
    struct Given
    {
        std::string name;
        Value value;
        Type type;
        bool isDefault = false;
        std::string outputTo; // "@x" of the caller
    };
    struct Formal
    {
        std::string name;
        Type type;
        const Expr* defaultValue = nullptr;
    };
    struct Procedure
    {
        std::string name;
        std::string text;
        Program program;
        const CreateProcedure* definition = nullptr;
    };
    Flow execute(const Execute& call, Place& place);
    Flow execute(const ExecuteText& text, Place& place);
    std::vector<Given> given(const Execute& call, Place& place);
    std::shared_ptr<Procedure> procedure(const ObjectName& name);
    std::vector<Formal> formalParameters(const CreateProcedure& definition) const;
    void declareParameters(const std::string& procedure, const std::vector<Formal>& formals,
                           const std::vector<Given>& given, Frame& frame, Place& place);
    void passArgument(const std::string& name, const Given& given, Frame& frame);
    Value evaluateKept(const Expr& expr, Place& place, Type& type);
    void callProcedure(const std::shared_ptr<Procedure>& procedure, const std::vector<Given>& given,
                       const std::string& result, Place& place);
    void runText(const std::string& text, Frame& frame, const OnResult& onResult);
    void executeSql(const std::vector<Given>& given, Place& place);

    // SessionNative.cpp
    NativeProcedure* nativeProcedure(const ObjectName& name) const;
    void callNative(NativeProcedure& native, const std::vector<Given>& given,
                    const std::string& result, Place& place);
    TransactionWatch watchTransactions();

    // SessionDefinitions.cpp
    template <class Work>
    Flow define(Place& place, Work work);
    ColumnSpec columnSpec(const ColumnDefinition& column, Place& place, std::vector<KeySpec>& keys);
    DefaultSpec defaultSpec(const Constraint& constraint, const Type& type, Place& place);
    std::vector<ColumnSpec> columnSpecs(const std::vector<ColumnDefinition>& columns, Place& place,
                                        std::vector<KeySpec>& keys);
    KeySpec keySpec(const Constraint& constraint, const std::string& column);
    void makeTable(const std::string& name, const std::vector<ColumnSpec>& columns,
                   const std::vector<KeySpec>& keys);
    Flow execute(const CreateTable& create, Place& place);
    Flow execute(const AlterTable& alter, Place& place);
    void alter(const std::string& table, const AlterTableAdd& add, Place& place);
    void alter(const std::string& table, const AlterTableAlterColumn& column, Place& place);
    void alter(const std::string& table, const AlterTableDrop& drop, Place& place);
    void alter(const std::string& table, const AlterTableCheck& check, Place& place);
    Flow execute(const CreateIndex& create, Place& place);
    Flow execute(const DropIndex& drop, Place& place);
    Flow execute(const DropObject& drop, Place& place);
    Flow execute(const CreateProcedure& create, Place& place);
    Flow execute(const CreateView& create, Place& place);

    DatabaseFile file_;
    Catalogue catalogue_;
    FunctionHost host_;
    Ddl ddl_;
    TemporaryTables temporary_;
    NativeProcedures natives_;
    Transactions transactions_;
    ShapeCache<std::shared_ptr<Program>> cache_{shapesKept};
    PatternCache<std::shared_ptr<Program>> patterns_{shapesKept};
    std::map<std::string, std::shared_ptr<Procedure>> procedures_;
    std::function<Value(std::string_view)> sessionValue_;
    std::optional<std::int64_t> statementTime_; // asked for by the running statement

    std::atomic<bool> cancelled_ = false;
    std::string identityInsert_;       // the table it is on for
    std::int64_t settingsVersion_ = 0; // goes up when a setting changes what is translated
    bool noCount_ = false;
    int line_ = 0;
    int callDepth_ = 0;
    int lastError_ = 0;
    std::int64_t rowCount_ = 0;
    std::optional<std::int64_t> identity_;
    std::optional<SqlMessage> caught_;
    int lockTimeout_ = lockTimeoutMilliseconds;
};

} // namespace velcro::sql::tsql

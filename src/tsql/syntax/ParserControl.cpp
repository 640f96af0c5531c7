// Statements as such: which one begins here, blocks, branches, loops, variables and transactions.
#include "tsql/syntax/Descent.h"

#include <algorithm>
#include <array>

namespace velcro::sql::tsql {

Batch parse(std::string_view text, std::uint32_t firstLine, bool beginsBatch) {
    return Descent(text, firstLine, beginsBatch).batch();
}

// batch := {statement [';']}
Batch Descent::batch() {
    Batch batch;
    batch.statements = statementsUntil([this] { return in_.atEnd(); });
    batch.structuralLiterals = std::move(structural_);
    batch.reusable = reusable_;
    return batch;
}

// statement := ... {';'}
StatementPtr Descent::statement() {
    const Level level(*this);
    auto result = std::make_unique<Statement>();
    result->line = in_.line();
    result->source.begin = in_.offset();
    result->node = statementNode();
    result->source.end = in_.endOfLast();
    first_ = false;
    while (in_.accept(Op::Semicolon)) {
    }
    return result;
}

StatementNode Descent::statementNode() {
    switch (in_.current().keyword) {
    case Keyword::With:
    case Keyword::Select:
    case Keyword::Insert:
    case Keyword::Update:
    case Keyword::Delete:
    case Keyword::Merge:
        return rowsStatement();
    case Keyword::Create:
        return create();
    case Keyword::Alter:
        return alter();
    case Keyword::Drop:
        return drop();
    case Keyword::Truncate:
        in_.take();
        in_.expect(Keyword::Table);
        return TruncateTable{objectName()};
    case Keyword::Exec:
    case Keyword::Execute:
        return execute();
    case Keyword::Declare:
        return declare();
    case Keyword::Set:
        return set();
    case Keyword::Use:
        in_.take();
        return Use{in_.expectName()};
    default:
        return flowStatement();
    }
}

StatementNode Descent::flowStatement() {
    switch (in_.current().keyword) {
    case Keyword::If:
        return ifStatement();
    case Keyword::Begin:
        return begin();
    case Keyword::While:
        return whileStatement();
    case Keyword::Break:
    case Keyword::Continue:
        return loopExit();
    case Keyword::Return:
        return returnStatement();
    case Keyword::Print:
        in_.take();
        return Print{value()};
    case Keyword::Raiserror:
        return raiseError();
    case Keyword::Commit:
        return transaction(Transaction::Kind::Commit);
    case Keyword::Rollback:
        return transaction(Transaction::Kind::Rollback);
    case Keyword::Save:
        return transaction(Transaction::Kind::Save);
    default:
        return otherStatement();
    }
}

// other := THROW ... | '(' query ... | procedure arguments, as the batch's first statement
StatementNode Descent::otherStatement() {
    if (in_.isWordNow("THROW")) {
        return throwStatement();
    }
    if (in_.is(Op::Open)) {
        return select({});
    }
    if (first_ && depth_ == 1 && in_.isName() && !in_.isAt(1, Op::Colon)) {
        return call({});
    }
    in_.refuseHere();
}

// begin := BEGIN {statement} END | BEGIN TRY ... | BEGIN (TRAN | TRANSACTION) ...
StatementNode Descent::begin() {
    if (in_.isAt(1, Keyword::Tran) || in_.isAt(1, Keyword::Transaction)) {
        return transaction(Transaction::Kind::Begin);
    }
    if (in_.isWordAt(1, "TRY")) {
        return tryCatch();
    }
    in_.expect(Keyword::Begin);
    Block block;
    block.statements = statementsUntil([this] { return in_.is(Keyword::End); });
    if (block.statements.empty()) {
        in_.refuseHere(); // the server wants at least one
    }
    in_.expect(Keyword::End);
    return block;
}

// try := BEGIN TRY {statement} END TRY [';'] BEGIN CATCH {statement} END CATCH
TryCatch Descent::tryCatch() {
    TryCatch result;
    const auto atEnd = [this] { return in_.is(Keyword::End); };
    in_.expect(Keyword::Begin);
    in_.expectWord("TRY");
    result.tried = statementsUntil(atEnd);
    in_.expect(Keyword::End);
    in_.expectWord("TRY");
    while (in_.accept(Op::Semicolon)) {
    }
    in_.expect(Keyword::Begin);
    in_.expectWord("CATCH");
    result.caught = statementsUntil(atEnd);
    in_.expect(Keyword::End);
    in_.expectWord("CATCH");
    return result;
}

// if := IF condition statement [ELSE statement]
If Descent::ifStatement() {
    If result;
    in_.expect(Keyword::If);
    result.condition = condition();
    result.then = statement();
    if (in_.accept(Keyword::Else)) {
        result.otherwise = statement();
    }
    return result;
}

// while := WHILE condition statement
While Descent::whileStatement() {
    While result;
    in_.expect(Keyword::While);
    result.condition = condition();
    ++loops_;
    result.body = statement();
    --loops_;
    return result;
}

// exit := BREAK | CONTINUE
StatementNode Descent::loopExit() {
    const bool isBreak = in_.is(Keyword::Break);
    if (loops_ == 0) {
        in_.refuseWith(isBreak ? 135 : 136, {});
    }
    in_.take();
    return isBreak ? StatementNode(Break()) : StatementNode(Continue());
}

// return := RETURN [value], the value only in procedures
Return Descent::returnStatement() {
    in_.expect(Keyword::Return);
    Return result;
    const bool hasValue = in_.is(Op::Open) || in_.is(Op::Minus) || in_.is(TokenKind::Variable) ||
                          in_.is(TokenKind::GlobalVariable) || isLiteral(in_.token().kind);
    if (hasValue && !inProcedure_) {
        in_.refuseWith(178, {});
    }
    if (hasValue) {
        result.value = value();
    }
    return result;
}

// declare := DECLARE item {',' item}
Declare Descent::declare() {
    Declare result;
    in_.expect(Keyword::Declare);
    list([&] { result.items.push_back(declareItem()); });
    return result;
}

// item := @name [AS] (type ['=' value] | TABLE '(' elements ')')
Declare::Item Descent::declareItem() {
    Declare::Item item;
    item.offset = in_.offset();
    item.name = in_.expectVariable();
    in_.accept(Keyword::As);
    if (in_.accept(Keyword::Table)) {
        item.table = std::make_unique<CreateTable>();
        item.table->name.name = item.name;
        item.table->name.offset = item.offset;
        in_.expect(Op::Open);
        tableElements(item.table->columns, item.table->constraints);
        in_.expect(Op::Close);
        return item;
    }
    item.type = dataType();
    if (in_.accept(Op::Equal)) {
        item.value = value();
    }
    return item;
}

// set := SET (@name op value | option)
StatementNode Descent::set() {
    in_.expect(Keyword::Set);
    if (!in_.is(TokenKind::Variable)) {
        return setOption();
    }
    SetVariable result;
    result.name = in_.expectVariable();
    result.op = assignOp();
    result.value = value();
    return result;
}

// option := name {',' name} (ON | OFF) | IDENTITY_INSERT object (ON | OFF)
//         | TRANSACTION ISOLATION LEVEL level | name value | STATISTICS name (ON | OFF)
SetOption Descent::setOption() {
    static constexpr std::array<std::string_view, 7> valued = {
        "DATEFORMAT",   "DATEFIRST", "DEADLOCK_PRIORITY", "LANGUAGE",
        "LOCK_TIMEOUT", "ROWCOUNT",  "TEXTSIZE"};
    SetOption option;
    if (in_.accept(Keyword::Transaction)) {
        in_.expectWord("ISOLATION");
        in_.expectWord("LEVEL");
        option.names.push_back("TRANSACTION ISOLATION LEVEL");
        option.value = isolationLevel();
        return option;
    }
    if (in_.accept(Keyword::IdentityInsert)) {
        option.names.push_back("IDENTITY_INSERT");
        option.table = objectName();
        option.value = onOff();
        return option;
    }
    if (in_.accept(Keyword::Statistics)) {
        option.names.push_back("STATISTICS " + optionWord());
        option.value = onOff();
        return option;
    }
    list([&] { option.names.push_back(optionWord()); });
    for (const std::string_view name : valued) {
        if (option.names.front() == name) {
            option.value = optionValue();
            return option;
        }
    }
    option.value = onOff();
    return option;
}

// level := READ (COMMITTED | UNCOMMITTED) | REPEATABLE READ | SNAPSHOT | SERIALIZABLE
std::string Descent::isolationLevel() {
    static constexpr std::array<std::string_view, 5> levels = {
        "READ COMMITTED", "READ UNCOMMITTED", "REPEATABLE READ", "SNAPSHOT", "SERIALIZABLE"};
    std::string level = optionWord();
    if (level == "READ" || level == "REPEATABLE") {
        level += ' ' + optionWord();
    }
    if (std::find(levels.begin(), levels.end(), level) == levels.end()) {
        in_.refuseHere();
    }
    return level;
}

std::string Descent::optionWord() {
    if (!in_.is(TokenKind::Identifier)) {
        in_.refuseHere();
    }
    return upper(in_.take().token.text);
}

// value := ['-'] integer | word | 'text' | @variable
std::string Descent::optionValue() {
    if (in_.is(TokenKind::Integer) || in_.is(Op::Minus)) {
        return std::to_string(signedInteger());
    }
    if (in_.is(TokenKind::String) || in_.is(TokenKind::NationalString)) {
        markStructural();
        return tokenValue(in_.take().token);
    }
    return in_.is(TokenKind::Variable) ? in_.expectVariable() : optionWord();
}

std::string Descent::onOff() {
    if (in_.accept(Keyword::On)) {
        return "ON";
    }
    in_.expect(Keyword::Off);
    return "OFF";
}

// argument of throw := literal | @variable
ExprPtr Descent::throwArgument() {
    if (!isLiteral(in_.token().kind) && !in_.is(TokenKind::Variable)) {
        in_.refuseHere();
    }
    return operand();
}

// throw := THROW [argument ',' argument ',' argument]
Throw Descent::throwStatement() {
    Throw result;
    in_.expectWord("THROW");
    if (in_.is(TokenKind::Integer) || in_.is(TokenKind::Variable)) {
        result.number = throwArgument();
        in_.expect(Op::Comma);
        result.message = throwArgument();
        in_.expect(Op::Comma);
        result.state = throwArgument();
    }
    return result;
}

// raiserror := RAISERROR '(' value ',' value ',' value {',' value} ')' [WITH word {',' word}]
RaiseError Descent::raiseError() {
    RaiseError result;
    in_.expect(Keyword::Raiserror);
    in_.expect(Op::Open);
    result.message = value();
    in_.expect(Op::Comma);
    result.severity = value();
    in_.expect(Op::Comma);
    result.state = value();
    while (in_.accept(Op::Comma)) {
        result.arguments.push_back(value());
    }
    in_.expect(Op::Close);
    if (in_.accept(Keyword::With)) {
        list([&] { result.options.push_back(optionWord()); });
    }
    return result;
}

// transaction := (BEGIN | COMMIT | ROLLBACK | SAVE) [TRAN | TRANSACTION | WORK] [name | @variable]
Transaction Descent::transaction(Transaction::Kind kind) {
    using Kind = Transaction::Kind;
    Transaction result;
    result.kind = kind;
    in_.take();
    const bool word = in_.accept(Keyword::Tran) || in_.accept(Keyword::Transaction);
    if (!word && (kind == Kind::Begin || kind == Kind::Save)) {
        in_.refuseHere();
    }
    if (!word) {
        in_.acceptWord("WORK");
    } else if (in_.is(TokenKind::Variable)) {
        result.name = in_.expectVariable();
    } else if (in_.isName() && !in_.isWordNow("THROW")) {
        result.name = in_.expectName();
    }
    if (kind == Kind::Save && result.name.empty()) {
        in_.refuseHere();
    }
    return result;
}

} // namespace velcro::sql::tsql

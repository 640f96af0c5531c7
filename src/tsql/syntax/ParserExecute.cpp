// EXEC of procedures and of text.
#include "tsql/syntax/Descent.h"

namespace velcro::sql::tsql {

// execute := (EXEC | EXECUTE) ('(' value ')' | [@result '='] procedure arguments)
StatementNode Descent::execute() {
    in_.take();
    if (in_.accept(Op::Open)) {
        ExecuteText text{value()};
        in_.expect(Op::Close);
        return text;
    }
    std::string result;
    if (in_.is(TokenKind::Variable) && in_.isAt(1, Op::Equal)) {
        result = in_.expectVariable();
        in_.expect(Op::Equal);
    }
    return call(std::move(result));
}

// call := object [argument {',' argument}] [WITH RECOMPILE]
Execute Descent::call(std::string result) {
    Execute execute;
    execute.result = std::move(result);
    execute.procedure = objectName();
    if (atArgument()) {
        list([&] { execute.arguments.push_back(argument()); });
    }
    if (in_.is(Keyword::With) && in_.isWordAt(1, "RECOMPILE")) {
        in_.take();
        in_.take();
    }
    return execute;
}

bool Descent::atArgument() const {
    const TokenKind kind = in_.token().kind;
    return isLiteral(kind) || kind == TokenKind::Variable || kind == TokenKind::GlobalVariable ||
           kind == TokenKind::Parameter || in_.is(Op::Minus) || in_.is(Op::Plus) ||
           in_.is(Keyword::Null) || in_.is(Keyword::Default) || in_.isName();
}

// argument := [@name '='] (@variable [OUT | OUTPUT] | @@global | :Parameter | DEFAULT | constant)
Argument Descent::argument() {
    Argument argument;
    if (in_.is(TokenKind::Variable) && in_.isAt(1, Op::Equal)) {
        argument.name = in_.expectVariable();
        in_.expect(Op::Equal);
    }
    const Place place = here();
    if (in_.is(TokenKind::Variable) || in_.is(TokenKind::GlobalVariable) ||
        in_.is(TokenKind::Parameter)) {
        argument.value = operand();
        argument.output = in_.acceptWord("OUTPUT") || in_.acceptWord("OUT");
    } else if (in_.accept(Keyword::Default)) {
        argument.value = node(DefaultValue(), place);
    } else {
        argument.value = constant();
    }
    return argument;
}

} // namespace velcro::sql::tsql

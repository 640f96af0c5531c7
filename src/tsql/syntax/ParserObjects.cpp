// CREATE, ALTER and DROP: which object, and indexes, views and procedures.
#include "tsql/syntax/Descent.h"

namespace velcro::sql::tsql {

// create := CREATE (TABLE | [UNIQUE] [clustering] INDEX | [OR ALTER] (PROCEDURE | VIEW)) ...
StatementNode Descent::create() {
    reusable_ = false;
    const std::uint32_t begin = in_.offset();
    in_.expect(Keyword::Create);
    DefineMode mode = DefineMode::Create;
    if (in_.accept(Keyword::Or)) {
        in_.expect(Keyword::Alter);
        mode = DefineMode::CreateOrAlter;
    }
    if (in_.is(Keyword::Procedure) || in_.is(Keyword::Proc)) {
        return createProcedure(mode, begin);
    }
    if (in_.is(Keyword::View)) {
        return createView(mode, begin);
    }
    if (mode != DefineMode::Create) {
        in_.refuseHere();
    }
    switch (in_.current().keyword) {
    case Keyword::Table:
        return createTable();
    case Keyword::Unique:
    case Keyword::Clustered:
    case Keyword::Nonclustered:
    case Keyword::Index:
        return createIndex();
    default:
        refuseOtherObject("CREATE ");
    }
}

/// Objects that a server knows and this engine does not are told from words that are no object.
void Descent::refuseOtherObject(const std::string& verb) const {
    switch (in_.current().keyword) {
    case Keyword::Database:
    case Keyword::Schema:
    case Keyword::Index:
    case Keyword::Function:
    case Keyword::Trigger:
        in_.refuseUnsupported(verb + upper(in_.token().text));
    default:
        if (in_.isWordNow("SEQUENCE")) {
            in_.refuseUnsupported(verb + "SEQUENCE");
        }
        in_.refuseHere();
    }
}

// alter := ALTER (TABLE | PROCEDURE | VIEW) ...
StatementNode Descent::alter() {
    reusable_ = false;
    const std::uint32_t begin = in_.offset();
    in_.expect(Keyword::Alter);
    switch (in_.current().keyword) {
    case Keyword::Table:
        return alterTable();
    case Keyword::Procedure:
    case Keyword::Proc:
        return createProcedure(DefineMode::Alter, begin);
    case Keyword::View:
        return createView(DefineMode::Alter, begin);
    default:
        refuseOtherObject("ALTER ");
    }
}

// drop := DROP (INDEX | TABLE | VIEW | PROCEDURE) [IF EXISTS] objects
StatementNode Descent::drop() {
    reusable_ = false;
    in_.expect(Keyword::Drop);
    if (in_.accept(Keyword::Index)) {
        return dropIndex();
    }
    return dropObject();
}

DropObject Descent::dropObject() {
    using Kind = DropObject::Kind;
    DropObject result;
    switch (in_.current().keyword) {
    case Keyword::Table:
        result.kind = Kind::Table;
        break;
    case Keyword::View:
        result.kind = Kind::View;
        break;
    case Keyword::Procedure:
    case Keyword::Proc:
        result.kind = Kind::Procedure;
        break;
    default:
        refuseOtherObject("DROP ");
    }
    in_.take();
    result.ifExists = ifExists();
    list([&] { result.names.push_back(objectName()); });
    return result;
}

// if exists := [IF EXISTS]
bool Descent::ifExists() {
    if (!in_.accept(Keyword::If)) {
        return false;
    }
    in_.expect(Keyword::Exists);
    return true;
}

// drop index := [IF EXISTS] (name ON object | object '.' name) {',' ...}
DropIndex Descent::dropIndex() {
    DropIndex result;
    result.ifExists = ifExists();
    list([&] {
        DropIndex::Item item;
        item.offset = in_.offset();
        std::vector<std::string> parts = nameParts();
        item.name = std::move(parts.back());
        parts.pop_back();
        if (parts.empty()) {
            in_.expect(Keyword::On);
            item.table = objectName();
        } else if (parts.back().empty()) {
            in_.refuseAt(item.offset); // t..ix
        } else {
            item.table = objectNameOf(std::move(parts), item.offset);
        }
        indexOptions();
        result.items.push_back(std::move(item));
    });
    return result;
}

// create index := [UNIQUE] [clustering] INDEX name ON object columns [INCLUDE '(' names ')']
//                 [WITH options] [ON filegroup]
CreateIndex Descent::createIndex() {
    CreateIndex index;
    index.unique = in_.accept(Keyword::Unique);
    index.clustered = clustering();
    in_.expect(Keyword::Index);
    index.nameOffset = in_.offset();
    index.name = in_.expectName();
    in_.expect(Keyword::On);
    index.table = objectName();
    index.columns = indexColumns();
    if (in_.acceptWord("INCLUDE")) {
        index.included = bracketedNames();
    }
    if (in_.is(Keyword::Where)) {
        in_.refuseUnsupported("an index with WHERE");
    }
    index.options = indexOptions();
    index.filegroup = filegroup();
    return index;
}

void Descent::requireFirst(std::string_view what) {
    if (!first_ || depth_ > 1) {
        in_.refuseWith(111, {what});
    }
}

// view := VIEW object ['(' names ')'] AS select
CreateView Descent::createView(DefineMode mode, std::uint32_t begin) {
    requireFirst("CREATE VIEW");
    CreateView view;
    view.mode = mode;
    view.source.begin = begin;
    in_.expect(Keyword::View);
    view.name = objectName();
    if (in_.is(Op::Open)) {
        view.columns = bracketedNames();
    }
    in_.expect(Keyword::As);
    view.body.begin = in_.offset();
    view.select = select(commonTables());
    view.body.end = view.source.end = in_.endOfLast();
    in_.accept(Op::Semicolon);
    if (!in_.atEnd()) {
        in_.refuseHere();
    }
    return view;
}

// procedure := (PROCEDURE | PROC) object [['('] parameters [')']] [WITH RECOMPILE] AS statements
CreateProcedure Descent::createProcedure(DefineMode mode, std::uint32_t begin) {
    requireFirst("CREATE/ALTER PROCEDURE");
    CreateProcedure procedure;
    procedure.mode = mode;
    procedure.source.begin = begin;
    in_.take();
    procedure.name = objectName();
    const bool bracketed = in_.accept(Op::Open);
    if (in_.is(TokenKind::Variable)) {
        list([&] { procedure.parameters.push_back(procedureParameter()); });
    }
    if (bracketed) {
        in_.expect(Op::Close);
    }
    if (in_.accept(Keyword::With)) {
        in_.expectWord("RECOMPILE");
    }
    in_.expect(Keyword::As);
    procedure.body.begin = in_.offset();
    inProcedure_ = true;
    first_ = false;
    procedure.statements = statementsUntil([this] { return in_.atEnd(); });
    procedure.body.end = procedure.source.end = in_.endOfLast();
    return procedure;
}

// parameter := @name [AS] type ['=' constant] [OUT | OUTPUT]
ProcedureParameter Descent::procedureParameter() {
    ProcedureParameter parameter;
    parameter.name = in_.expectVariable();
    in_.accept(Keyword::As);
    parameter.type = dataType();
    if (in_.is(Keyword::Null)) {
        in_.take(); // @p int NULL, which only a compiled procedure minds
    }
    if (in_.accept(Op::Equal)) {
        parameter.defaultValue = constant();
    }
    parameter.output = in_.acceptWord("OUTPUT") || in_.acceptWord("OUT");
    if (in_.isWordNow("READONLY")) {
        in_.refuseUnsupported("READONLY");
    }
    return parameter;
}

// constant := ['+' | '-'] literal | NULL | word, which stands for its own text
ExprPtr Descent::constant() {
    const Place place = here();
    if (in_.isName()) {
        return node(Literal{LiteralKind::String, noLiteral, in_.expectName()}, place);
    }
    if (in_.is(Op::Minus) || in_.is(Op::Plus)) {
        const bool minus = in_.take().token.op == Op::Minus;
        const bool number = in_.token().kind >= TokenKind::Integer && isLiteral(in_.token().kind);
        if (!number) {
            in_.refuseHere();
        }
        return node(Unary{minus ? UnaryOp::Minus : UnaryOp::Plus, literal()}, place);
    }
    if (in_.accept(Keyword::Null)) {
        return node(NullLiteral(), place);
    }
    if (!isLiteral(in_.token().kind)) {
        in_.refuseHere();
    }
    return literal();
}

} // namespace velcro::sql::tsql

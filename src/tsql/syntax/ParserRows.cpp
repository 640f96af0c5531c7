// Statements that write rows: INSERT, UPDATE, DELETE, and the WITH that may stand before them.
#include "tsql/syntax/Descent.h"

namespace velcro::sql::tsql {

// rows statement := [WITH ctes] (select | insert | update | delete | merge)
StatementNode Descent::rowsStatement() {
    std::vector<CommonTable> with = commonTables();
    switch (in_.current().keyword) {
    case Keyword::Insert:
        return insert(std::move(with));
    case Keyword::Update:
        return update(std::move(with));
    case Keyword::Delete:
        return deleteRows(std::move(with));
    case Keyword::Merge:
        return merge(std::move(with));
    default:
        return select(std::move(with));
    }
}

// insert := INSERT [INTO] object [hints] ['(' names ')'] [OUTPUT ...] source [OPTION ...]
Insert Descent::insert(std::vector<CommonTable> with) {
    Insert insert;
    insert.with = std::move(with);
    in_.expect(Keyword::Insert);
    if (in_.is(Keyword::Top)) {
        in_.refuseUnsupported("INSERT TOP");
    }
    in_.accept(Keyword::Into);
    insert.table = objectName();
    withHints();
    if (in_.is(Op::Open) && !in_.isAt(1, Keyword::Select) && !in_.isAt(1, Op::Open)) {
        insert.columns = columnList();
    }
    insert.output = output();
    insertSource(insert);
    insert.hints = queryHints();
    return insert;
}

// columns := '(' parts {',' parts} ')'; a name may carry its table, which changes nothing
std::vector<std::string> Descent::columnList() {
    std::vector<std::string> columns;
    bracketedList([&] { columns.push_back(nameParts().back()); });
    return columns;
}

// source := VALUES rows | DEFAULT VALUES | query | EXEC ...
void Descent::insertSource(Insert& insert) {
    if (in_.accept(Keyword::Values)) {
        insert.rows = valuesRows();
    } else if (in_.accept(Keyword::Default)) {
        in_.expect(Keyword::Values);
    } else if (in_.is(Keyword::Exec) || in_.is(Keyword::Execute)) {
        StatementNode node = execute();
        if (auto* call = std::get_if<Execute>(&node)) {
            insert.execute = std::make_unique<Execute>(std::move(*call));
        } else {
            insert.executeText =
                std::make_unique<ExecuteText>(std::move(std::get<ExecuteText>(node)));
        }
    } else {
        insert.query = query();
    }
}

// update := UPDATE [TOP ...] target [hints] SET assignments [OUTPUT ...] [FROM sources]
//           [WHERE condition] [OPTION ...]
Update Descent::update(std::vector<CommonTable> with) {
    Update update;
    update.with = std::move(with);
    in_.expect(Keyword::Update);
    update.top = top();
    update.target = objectName();
    update.targetHints = targetHints();
    in_.expect(Keyword::Set);
    update.set = assignments();
    update.output = output();
    update.from = fromClause();
    update.where = where();
    update.hints = queryHints();
    return update;
}

// delete := DELETE [TOP ...] [FROM] target [hints] [OUTPUT ...] [FROM sources] [WHERE condition]
//           [OPTION ...]
Delete Descent::deleteRows(std::vector<CommonTable> with) {
    Delete result;
    result.with = std::move(with);
    in_.expect(Keyword::Delete);
    result.top = top();
    in_.accept(Keyword::From);
    result.target = objectName();
    result.targetHints = targetHints();
    result.output = output();
    result.from = fromClause();
    result.where = where();
    result.hints = queryHints();
    return result;
}

TableHints Descent::targetHints() {
    TableHints hints = bareHints();
    hintsInto(hints, withHints());
    return hints;
}

// assignments := assignment {',' assignment}
std::vector<Assignment> Descent::assignments() {
    std::vector<Assignment> result;
    list([&] { result.push_back(assignment()); });
    return result;
}

// assignment := [@variable '='] parts op (value | DEFAULT) | @variable op value
Assignment Descent::assignment() {
    Assignment result;
    result.offset = in_.offset();
    if (in_.is(TokenKind::Variable)) {
        result.variable = in_.expectVariable();
        result.op = assignOp();
        const bool column = result.op == AssignOp::Set && in_.isName() && columnIsAssigned();
        if (!column) {
            result.value = value();
            return result;
        }
    }
    result.column = nameParts();
    result.op = assignOp();
    result.value = valueOrDefault();
    return result;
}

/// Whether names follow that have an equals sign behind them.
bool Descent::columnIsAssigned() const {
    std::size_t ahead = 1;
    while (in_.isAt(ahead, Op::Dot)) {
        ahead += 2;
    }
    return in_.isAt(ahead, Op::Equal);
}

// op := '=' | '+=' | '-=' | '*=' | '/=' | '%=' | '&=' | '|=' | '^='
AssignOp Descent::assignOp() {
    const Op op = in_.token().op;
    switch (op) {
    case Op::Equal:
        in_.take();
        return AssignOp::Set;
    case Op::PlusEqual:
    case Op::MinusEqual:
    case Op::StarEqual:
    case Op::SlashEqual:
    case Op::PercentEqual:
    case Op::AmpersandEqual:
    case Op::PipeEqual:
    case Op::CaretEqual:
        in_.take();
        return static_cast<AssignOp>(static_cast<int>(AssignOp::Add) + static_cast<int>(op) -
                                     static_cast<int>(Op::PlusEqual));
    default:
        in_.refuseHere();
    }
}

// output := [OUTPUT items]
std::vector<SelectItem> Descent::output() {
    std::vector<SelectItem> items;
    if (in_.acceptWord("OUTPUT")) {
        list([&] { items.push_back(selectItem()); });
        if (in_.is(Keyword::Into)) {
            in_.refuseUnsupported("OUTPUT INTO");
        }
    }
    return items;
}

} // namespace velcro::sql::tsql

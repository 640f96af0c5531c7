// Queries: select lists, set operators, common tables, order and paging.
#include "tsql/syntax/Descent.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velcro::sql::tsql {

// select := [WITH ctes] query [OPTION hints]
Select Descent::select(std::vector<CommonTable> with) {
    Select select;
    select.with = std::move(with);
    select.query = query();
    select.hints = queryHints();
    return select;
}

// query := body [ORDER BY items [OFFSET ...]]
QueryPtr Descent::query() {
    const Level level(*this);
    const std::uint16_t outside = std::exchange(tallest_, std::uint16_t{0});
    auto result = std::make_unique<Query>();
    result->body = queryBody();
    if (in_.is(Keyword::Order)) {
        result->orderBy = orderBy();
        offsetFetch(*result);
    }
    if (in_.is(Keyword::For)) {
        in_.refuseUnsupported("SELECT ... FOR");
    }
    result->height = heightAbove(tallest_);
    tallest_ = std::max(outside, result->height);
    return result;
}

// bracketed query := '(' query ')'
QueryPtr Descent::bracketedQuery() {
    in_.expect(Op::Open);
    QueryPtr inner = query();
    in_.expect(Op::Close);
    return inner;
}

/// A query may begin with a bracket, as a value may; then a set operator behind it tells.
bool Descent::atQuery(std::size_t ahead) const {
    std::size_t first = ahead;
    while (in_.isAt(first, Op::Open)) {
        ++first;
    }
    if (first == ahead || !in_.isAt(first, Keyword::Select)) {
        return in_.isAt(ahead, Keyword::Select);
    }
    const std::size_t behind = in_.behindBracket(ahead);
    return in_.isAt(behind, Keyword::Union) || in_.isAt(behind, Keyword::Except) ||
           in_.isAt(behind, Keyword::Intersect);
}

// body := intersection {(UNION [ALL] | EXCEPT) intersection}
QueryBodyPtr Descent::queryBody() {
    QueryBodyPtr left = intersection();
    while (in_.is(Keyword::Union) || in_.is(Keyword::Except)) {
        SetOperator op = SetOperator::Except;
        if (in_.take().keyword == Keyword::Union) {
            op = in_.accept(Keyword::All) ? SetOperator::UnionAll : SetOperator::Union;
        }
        left = setOperation(op, std::move(left), intersection());
    }
    return left;
}

// intersection := term {INTERSECT term}
QueryBodyPtr Descent::intersection() {
    QueryBodyPtr left = queryTerm();
    while (in_.accept(Keyword::Intersect)) {
        left = setOperation(SetOperator::Intersect, std::move(left), queryTerm());
    }
    return left;
}

QueryBodyPtr Descent::setOperation(SetOperator op, QueryBodyPtr left, QueryBodyPtr right) {
    auto body = std::make_unique<QueryBody>();
    body->offset = left->offset;
    body->line = left->line;
    body->height = heightAbove(std::max(left->height, right->height));
    body->node = SetOperation{op, std::move(left), std::move(right)};
    return body;
}

// term := SELECT ... | '(' body ')'
QueryBodyPtr Descent::queryTerm() {
    const Level level(*this);
    if (in_.accept(Op::Open)) {
        QueryBodyPtr body = queryBody();
        in_.expect(Op::Close);
        return body;
    }
    auto body = std::make_unique<QueryBody>();
    body->offset = in_.offset();
    body->line = in_.line();
    body->node = selectCore();
    return body;
}

// core := SELECT [ALL | DISTINCT] [TOP ...] items [INTO object] [FROM sources] [WHERE condition]
//         [GROUP BY values] [HAVING condition]
SelectCore Descent::selectCore() {
    SelectCore core;
    in_.expect(Keyword::Select);
    core.distinct = in_.accept(Keyword::Distinct);
    if (!core.distinct) {
        in_.accept(Keyword::All);
    }
    core.top = top();
    list([&] { core.items.push_back(selectItem()); });
    if (in_.accept(Keyword::Into)) {
        core.into = objectName();
        reusable_ = false;
    }
    core.from = fromClause();
    core.where = where();
    if (in_.accept(Keyword::Group)) {
        in_.expect(Keyword::By);
        list([&] { core.groupBy.push_back(value()); });
    }
    if (in_.accept(Keyword::Having)) {
        core.having = condition();
    }
    return core;
}

// where := [WHERE condition]
ExprPtr Descent::where() {
    if (!in_.accept(Keyword::Where)) {
        return nullptr;
    }
    if (in_.is(Keyword::Current)) {
        in_.refuseUnsupported("WHERE CURRENT OF");
    }
    return condition();
}

// top := [TOP (number | '(' value ')')]
ExprPtr Descent::top() {
    if (!in_.accept(Keyword::Top)) {
        return nullptr;
    }
    ExprPtr count;
    if (in_.accept(Op::Open)) {
        count = value();
        in_.expect(Op::Close);
    } else if (in_.is(TokenKind::Integer) || in_.is(TokenKind::Float) ||
               in_.is(TokenKind::Decimal)) {
        count = literal();
    } else {
        in_.refuseHere();
    }
    if (in_.is(Keyword::Percent)) {
        in_.refuseUnsupported("TOP PERCENT");
    }
    if (in_.is(Keyword::With) && in_.isWordAt(1, "TIES")) {
        in_.refuseUnsupported("TOP WITH TIES");
    }
    return count;
}

// item := '*' | parts '.' '*' | @variable '=' value | name '=' value | value [alias]
SelectItem Descent::selectItem() {
    SelectItem item;
    const Place place = here();
    if (in_.accept(Op::Star)) {
        item.expr = node(Star(), place);
        return item;
    }
    if (in_.isName()) {
        if (std::optional<Star> star = qualifiedStar()) {
            item.expr = node(std::move(*star), place);
            return item;
        }
    }
    const bool assigns = in_.isAt(1, Op::Equal);
    if (assigns && in_.is(TokenKind::Variable)) {
        item.variable = in_.expectVariable();
    } else if (assigns && (in_.isName() || in_.is(TokenKind::String))) {
        if (in_.is(TokenKind::String)) {
            markStructural();
        }
        item.alias = tokenValue(in_.take().token);
    }
    if (assigns) {
        in_.expect(Op::Equal);
        item.expr = value();
        return item;
    }
    item.expr = value();
    item.alias = optionalAlias(true);
    return item;
}

// qualified star := name {'.' name} '.' '*'
std::optional<Star> Descent::qualifiedStar() {
    std::size_t ahead = 1;
    while (in_.isAt(ahead, Op::Dot)) {
        if (in_.isAt(ahead + 1, Op::Star)) {
            Star star{nameParts()};
            in_.expect(Op::Dot);
            in_.expect(Op::Star);
            return star;
        }
        ahead += in_.isAt(ahead + 1, Op::Dot) ? 1 : 2;
    }
    return std::nullopt;
}

// order := ORDER BY value [ASC | DESC] {',' ...}
std::vector<OrderItem> Descent::orderBy() {
    std::vector<OrderItem> items;
    in_.expect(Keyword::Order);
    in_.expect(Keyword::By);
    list([&] {
        if (in_.is(TokenKind::Integer)) {
            markStructural(); // the position of a column
        }
        OrderItem item{value(), in_.accept(Keyword::Desc)};
        if (!item.descending) {
            in_.accept(Keyword::Asc);
        }
        items.push_back(std::move(item));
    });
    return items;
}

// paging := [OFFSET value (ROW | ROWS) [FETCH (FIRST | NEXT) value (ROW | ROWS) ONLY]]
void Descent::offsetFetch(Query& query) {
    const auto rows = [this] {
        if (!in_.acceptWord("ROWS")) {
            in_.expectWord("ROW");
        }
    };
    if (!in_.acceptWord("OFFSET")) {
        return;
    }
    query.offset = value();
    rows();
    if (in_.accept(Keyword::Fetch)) {
        if (!in_.acceptWord("NEXT")) {
            in_.expectWord("FIRST");
        }
        query.fetch = value();
        rows();
        in_.expectWord("ONLY");
    }
}

// ctes := [WITH cte {',' cte}]
std::vector<CommonTable> Descent::commonTables() {
    std::vector<CommonTable> tables;
    if (in_.accept(Keyword::With)) {
        list([&] { tables.push_back(commonTable()); });
    }
    return tables;
}

// cte := name ['(' names ')'] AS '(' query ')'
CommonTable Descent::commonTable() {
    CommonTable table;
    table.offset = in_.offset();
    table.name = in_.expectName();
    if (in_.is(Op::Open)) {
        table.columns = bracketedNames();
    }
    in_.expect(Keyword::As);
    table.query = bracketedQuery();
    return table;
}

// option := [OPTION '(' hint {',' hint} ')']
QueryHints Descent::queryHints() {
    QueryHints hints;
    if (in_.accept(Keyword::Option)) {
        bracketedList([&] { hints.push_back(queryHint()); });
    }
    return hints;
}

// hint := word {word | number | '(' ... ')'}, beginning with one the server knows
std::string Descent::queryHint() {
    static constexpr std::array<std::string_view, 19> known = {"CONCAT",
                                                               "EXPAND",
                                                               "FAST",
                                                               "FORCE",
                                                               "HASH",
                                                               "KEEP",
                                                               "KEEPFIXED",
                                                               "LABEL",
                                                               "LOOP",
                                                               "MAXDOP",
                                                               "MAXRECURSION",
                                                               "MERGE",
                                                               "MAX_GRANT_PERCENT",
                                                               "OPTIMIZE",
                                                               "ORDER",
                                                               "QUERYTRACEON",
                                                               "RECOMPILE",
                                                               "ROBUST",
                                                               "USE"};
    std::string hint = upper(in_.token().text);
    if (!in_.is(TokenKind::Identifier) ||
        std::find(known.begin(), known.end(), hint) == known.end()) {
        in_.refuseHere();
    }
    in_.take();
    int open = 0;
    while (!in_.atEnd() && (open > 0 || (!in_.is(Op::Comma) && !in_.is(Op::Close)))) {
        open += in_.is(Op::Open) ? 1 : in_.is(Op::Close) ? -1 : 0;
        if (isLiteral(in_.token().kind)) {
            markStructural();
        }
        hint += ' ' + upper(in_.take().token.text);
    }
    return hint;
}

} // namespace velcro::sql::tsql

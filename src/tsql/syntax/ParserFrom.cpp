// What stands behind FROM: tables, their hints, derived tables and joins.
#include "tsql/syntax/Descent.h"

#include <algorithm>
#include <array>

namespace velcro::sql::tsql {

namespace {

constexpr std::array<std::string_view, 24> knownHints = {"FORCESCAN",       "FORCESEEK",
                                                         "HOLDLOCK",        "IGNORE_CONSTRAINTS",
                                                         "IGNORE_TRIGGERS", "INDEX",
                                                         "KEEPDEFAULTS",    "KEEPIDENTITY",
                                                         "NOEXPAND",        "NOLOCK",
                                                         "NOWAIT",          "PAGLOCK",
                                                         "READCOMMITTED",   "READCOMMITTEDLOCK",
                                                         "READPAST",        "READUNCOMMITTED",
                                                         "REPEATABLEREAD",  "ROWLOCK",
                                                         "SERIALIZABLE",    "SNAPSHOT",
                                                         "TABLOCK",         "TABLOCKX",
                                                         "UPDLOCK",         "XLOCK"};

bool isKnownHint(const Token& token) {
    const std::string name = upper(token.text);
    return token.kind == TokenKind::Identifier &&
           std::binary_search(knownHints.begin(), knownHints.end(), name);
}

std::uint16_t heightOf(const NamedTable&) {
    return 0;
}
std::uint16_t heightOf(const ValuesTable&) {
    return 0;
}
std::uint16_t heightOf(const DerivedTable& table) {
    return table.query->height;
}
std::uint16_t heightOf(const Join& join) {
    const std::uint16_t on = join.on ? join.on->height : 0;
    return std::max({on, join.left->height, join.right->height});
}

} // namespace

TableSourcePtr Descent::source(decltype(TableSource::node) content, std::uint32_t offset) {
    const std::uint16_t below =
        std::visit([](const auto& table) { return heightOf(table); }, content);
    return std::make_unique<TableSource>(
        TableSource{std::move(content), offset, heightAbove(below)});
}

// from := [FROM joined {',' joined}]
std::vector<TableSourcePtr> Descent::fromClause() {
    std::vector<TableSourcePtr> sources;
    if (in_.accept(Keyword::From)) {
        list([&] { sources.push_back(joinedTable()); });
    }
    return sources;
}

// joined := table {join kind table [ON condition]}
TableSourcePtr Descent::joinedTable() {
    TableSourcePtr left = tablePrimary();
    while (const auto kind = joinKind()) {
        Join join;
        join.kind = *kind;
        join.left = std::move(left);
        const bool conditional = *kind != JoinKind::Cross;
        join.right = conditional ? joinedRight() : tablePrimary();
        if (conditional) {
            in_.expect(Keyword::On);
            join.on = condition();
        }
        const std::uint32_t offset = join.left->offset;
        left = source(std::move(join), offset);
    }
    return left;
}

// right := table, or a nested join when its ON comes first: a JOIN b JOIN c ON ... ON ...
TableSourcePtr Descent::joinedRight() {
    const Level level(*this);
    TableSourcePtr right = tablePrimary();
    while (!in_.is(Keyword::On)) {
        const auto kind = joinKind();
        if (!kind) {
            in_.refuseHere();
        }
        Join join;
        join.kind = *kind;
        join.left = std::move(right);
        join.right = *kind == JoinKind::Cross ? tablePrimary() : joinedRight();
        if (*kind != JoinKind::Cross) {
            in_.expect(Keyword::On);
            join.on = condition();
        }
        const std::uint32_t offset = join.left->offset;
        right = source(std::move(join), offset);
    }
    return right;
}

// join kind := [INNER | (LEFT | RIGHT | FULL) [OUTER]] [HASH | LOOP | MERGE] JOIN | CROSS JOIN
std::optional<JoinKind> Descent::joinKind() {
    if ((in_.is(Keyword::Cross) || in_.is(Keyword::Outer)) && in_.isWordAt(1, "APPLY")) {
        in_.refuseUnsupported("APPLY");
    }
    if (in_.accept(Keyword::Cross)) {
        in_.expect(Keyword::Join);
        return JoinKind::Cross;
    }
    if (in_.accept(Keyword::Join)) {
        return JoinKind::Inner;
    }
    JoinKind kind = JoinKind::Inner;
    if (in_.is(Keyword::Left) || in_.is(Keyword::Right) || in_.is(Keyword::Full)) {
        kind = in_.is(Keyword::Left)    ? JoinKind::Left
               : in_.is(Keyword::Right) ? JoinKind::Right
                                        : JoinKind::Full;
        in_.take();
        in_.accept(Keyword::Outer);
    } else if (!in_.accept(Keyword::Inner)) {
        return std::nullopt;
    }
    if (!in_.acceptWord("HASH") && !in_.acceptWord("LOOP")) {
        in_.accept(Keyword::Merge);
    }
    in_.expect(Keyword::Join);
    return kind;
}

// table := '(' ... ')' | object ...
TableSourcePtr Descent::tablePrimary() {
    const Level level(*this);
    return in_.is(Op::Open) ? bracketedTable() : namedTable();
}

// bracketed := '(' query ')' alias | '(' VALUES rows ')' alias | '(' joined ')'
TableSourcePtr Descent::bracketedTable() {
    const std::uint32_t offset = in_.offset();
    in_.expect(Op::Open);
    if (in_.accept(Keyword::Values)) {
        ValuesTable table;
        table.rows = valuesRows();
        in_.expect(Op::Close);
        derivedAlias(table.alias, table.columns);
        return source(std::move(table), offset);
    }
    if (atQuery()) {
        DerivedTable table;
        table.query = query();
        in_.expect(Op::Close);
        derivedAlias(table.alias, table.columns);
        return source(std::move(table), offset);
    }
    TableSourcePtr joined = joinedTable();
    in_.expect(Op::Close);
    return joined;
}

// alias := [AS] name ['(' names ')']
void Descent::derivedAlias(std::string& alias, std::vector<std::string>& columns) {
    in_.accept(Keyword::As);
    alias = in_.expectName();
    if (in_.is(Op::Open)) {
        columns = bracketedNames();
    }
}

// named := object [hints] [[AS] alias] [hints]
TableSourcePtr Descent::namedTable() {
    const std::uint32_t offset = in_.offset();
    ObjectName name = objectName();
    if (in_.is(Op::Open) && !isKnownHint(in_.tokenAt(1))) {
        in_.refuseUnsupported("the table function " + name.name);
    }
    NamedTable table;
    table.name = std::move(name);
    table.hints = bareHints();
    table.alias = optionalAlias(false);
    hintsInto(table.hints, bareHints());
    hintsInto(table.hints, withHints());
    return source(std::move(table), offset);
}

void Descent::hintsInto(TableHints& hints, TableHints more) {
    hints.names.insert(hints.names.end(), more.names.begin(), more.names.end());
}

// with := [WITH '(' hints ')']
TableHints Descent::withHints() {
    TableHints hints;
    if (in_.is(Keyword::With) && in_.isAt(1, Op::Open)) {
        in_.take();
        hintList(hints);
    }
    return hints;
}

// bare := ['(' hints ')']
TableHints Descent::bareHints() {
    TableHints hints;
    if (in_.is(Op::Open) && isKnownHint(in_.tokenAt(1))) {
        hintList(hints);
    }
    return hints;
}

// hints := '(' hint {[','] hint} ')'; hint := word | INDEX (['='] '(' indexes ')' | '=' index)
void Descent::hintList(TableHints& hints) {
    in_.expect(Op::Open);
    do {
        if (!isKnownHint(in_.token())) {
            in_.refuseWith(321, {in_.nearText()});
        }
        hints.names.push_back(upper(in_.take().token.text));
        if (hints.names.back() == "INDEX") {
            indexHint();
        }
        in_.accept(Op::Comma);
    } while (!in_.is(Op::Close));
    in_.expect(Op::Close);
}

// Without brackets it is one index: a comma behind it belongs to the next hint.
void Descent::indexHint() {
    const auto index = [this] {
        if (in_.is(TokenKind::Integer)) {
            structuralInteger();
        } else {
            in_.expectName();
        }
    };
    const bool equal = in_.accept(Op::Equal);
    if (equal && !in_.is(Op::Open)) {
        index();
    } else {
        bracketedList(index);
    }
}

// rows := row {',' row}
std::vector<std::vector<ExprPtr>> Descent::valuesRows() {
    std::vector<std::vector<ExprPtr>> rows;
    list([&] { rows.push_back(valuesRow()); });
    return rows;
}

// row := '(' (value | DEFAULT) {',' ...} ')'
std::vector<ExprPtr> Descent::valuesRow() {
    std::vector<ExprPtr> row;
    bracketedList([&] { row.push_back(valueOrDefault()); });
    return row;
}

ExprPtr Descent::valueOrDefault() {
    const Place place = here();
    return in_.accept(Keyword::Default) ? node(DefaultValue(), place) : value();
}

} // namespace velcro::sql::tsql

// CREATE TABLE: columns, their options, and constraints.
#include "tsql/syntax/Descent.h"

namespace velcro::sql::tsql {

// table := TABLE object '(' elements ')' [ON filegroup] [TEXTIMAGE_ON filegroup] [WITH options]
CreateTable Descent::createTable() {
    CreateTable table;
    in_.expect(Keyword::Table);
    table.name = objectName();
    in_.expect(Op::Open);
    tableElements(table.columns, table.constraints);
    in_.expect(Op::Close);
    table.filegroup = filegroup();
    if (in_.acceptWord("TEXTIMAGE_ON")) {
        table.textFilegroup = in_.expectName();
    }
    if (in_.is(Keyword::With)) {
        in_.refuseUnsupported("CREATE TABLE ... WITH");
    }
    return table;
}

// elements := (column | constraint) {',' (column | constraint)}; a comma at the end is passed over
void Descent::tableElements(std::vector<ColumnDefinition>& columns,
                            std::vector<Constraint>& constraints) {
    do {
        if (in_.is(Op::Close) && !columns.empty()) {
            return;
        }
        if (atConstraint()) {
            constraints.push_back(constraint(true));
        } else {
            if (in_.is(Keyword::Index)) {
                in_.refuseUnsupported("CREATE TABLE (... INDEX ...)");
            }
            columns.push_back(columnDefinition());
        }
    } while (in_.accept(Op::Comma));
}

// column := name type {option}
ColumnDefinition Descent::columnDefinition() {
    ColumnDefinition column;
    column.offset = in_.offset();
    column.name = in_.expectName();
    if (in_.is(Keyword::As)) {
        in_.refuseUnsupported("a computed column");
    }
    column.type = dataType();
    while (columnOption(column)) {
    }
    return column;
}

// option := [NOT] NULL | IDENTITY [...] | COLLATE name | ROWGUIDCOL | constraint
bool Descent::columnOption(ColumnDefinition& column) {
    if (in_.accept(Keyword::Not)) {
        if (in_.accept(Keyword::For)) {
            in_.expect(Keyword::Replication);
            return true;
        }
        in_.expect(Keyword::Null);
        column.nullable = false;
    } else if (in_.accept(Keyword::Null)) {
        column.nullable = true;
    } else if (in_.accept(Keyword::Identity)) {
        column.identity = identity();
    } else if (in_.accept(Keyword::Collate)) {
        column.collation = in_.expectName();
    } else if (in_.accept(Keyword::Rowguidcol)) {
        column.rowGuid = true;
    } else if (in_.acceptWord("SPARSE")) {
        return true; // says how the server stores it
    } else if (atConstraint()) {
        column.constraints.push_back(constraint(false));
    } else {
        return false;
    }
    return true;
}

// identity := ['(' integer ',' integer ')']
Identity Descent::identity() {
    Identity result;
    if (in_.accept(Op::Open)) {
        result.seed = signedInteger();
        in_.expect(Op::Comma);
        result.increment = signedInteger();
        in_.expect(Op::Close);
    }
    return result;
}

bool Descent::atConstraint() const {
    switch (in_.current().keyword) {
    case Keyword::Constraint:
    case Keyword::Primary:
    case Keyword::Unique:
    case Keyword::Check:
    case Keyword::Default:
    case Keyword::Foreign:
    case Keyword::References:
        return true;
    default:
        return false;
    }
}

// constraint := [CONSTRAINT name] (PRIMARY KEY ... | UNIQUE ... | DEFAULT ...)
Constraint Descent::constraint(bool ofTable) {
    using Kind = Constraint::Kind;
    Constraint result;
    result.offset = in_.offset();
    if (in_.accept(Keyword::Constraint)) {
        result.name = in_.expectName();
    }
    if (in_.accept(Keyword::Primary)) {
        in_.expect(Keyword::Key);
        result.kind = Kind::PrimaryKey;
        keyConstraint(result, ofTable);
    } else if (in_.accept(Keyword::Unique)) {
        result.kind = Kind::Unique;
        keyConstraint(result, ofTable);
    } else if (in_.accept(Keyword::Default)) {
        result.kind = Kind::Default;
        defaultConstraint(result, ofTable);
    } else if (in_.is(Keyword::Check) || in_.is(Keyword::Foreign) || in_.is(Keyword::References)) {
        in_.refuseUnsupported("CHECK and FOREIGN KEY constraints");
    } else {
        in_.refuseHere();
    }
    return result;
}

// key := [CLUSTERED | NONCLUSTERED] ['(' index columns ')'] [WITH options] [ON filegroup]
void Descent::keyConstraint(Constraint& constraint, bool ofTable) {
    constraint.clustered = clustering();
    if (ofTable) {
        constraint.columns = indexColumns();
    }
    constraint.options = indexOptions();
    constraint.filegroup = filegroup();
}

// default := value [FOR name] [WITH VALUES]
void Descent::defaultConstraint(Constraint& constraint, bool ofTable) {
    constraint.expr = kept();
    if (ofTable) {
        in_.expect(Keyword::For);
        constraint.forColumn = in_.expectName();
    }
}

KeptExpr Descent::kept() {
    KeptExpr result;
    result.source.begin = in_.offset();
    result.expr = value();
    result.source.end = in_.endOfLast();
    return result;
}

// clustering := [CLUSTERED | NONCLUSTERED]
std::optional<bool> Descent::clustering() {
    if (in_.accept(Keyword::Clustered)) {
        return true;
    }
    return in_.accept(Keyword::Nonclustered) ? std::optional(false) : std::nullopt;
}

// index columns := '(' name [ASC | DESC] {',' ...} ')'
std::vector<IndexColumn> Descent::indexColumns() {
    std::vector<IndexColumn> columns;
    bracketedList([&] {
        IndexColumn column{in_.expectName(), in_.accept(Keyword::Desc)};
        if (!column.descending) {
            in_.accept(Keyword::Asc);
        }
        columns.push_back(std::move(column));
    });
    return columns;
}

// options := [WITH ('(' name '=' word {',' ...} ')' | FILLFACTOR '=' number)]
std::vector<IndexOption> Descent::indexOptions() {
    std::vector<IndexOption> options;
    const auto option = [&] {
        const bool known =
            in_.is(TokenKind::Identifier) && (in_.is(Keyword::None) || in_.isWordNow("FILLFACTOR"));
        if (!known) {
            in_.refuseHere();
        }
        IndexOption entry;
        entry.name = upper(tokenValue(in_.take().token));
        in_.expect(Op::Equal);
        if (!in_.is(TokenKind::Identifier) && !in_.is(TokenKind::Integer)) {
            in_.refuseHere();
        }
        entry.value = upper(tokenValue(in_.take().token));
        options.push_back(std::move(entry));
    };
    if (in_.is(Keyword::With) && (in_.isAt(1, Op::Open) || in_.isWordAt(1, "FILLFACTOR"))) {
        in_.take();
        if (in_.is(Op::Open)) {
            bracketedList(option);
        } else {
            option();
        }
    }
    return options;
}

// filegroup := [ON (name | DEFAULT)]
std::string Descent::filegroup() {
    const bool named = in_.is(Keyword::On) && (in_.isAt(1, TokenKind::QuotedIdentifier) ||
                                               in_.isAt(1, TokenKind::Identifier));
    if (!named) {
        return {};
    }
    in_.take();
    return tokenValue(in_.take().token);
}

} // namespace velcro::sql::tsql

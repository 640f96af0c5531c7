// MERGE.
#include "tsql/syntax/Descent.h"

namespace velcro::sql::tsql {

// merge := MERGE [INTO] object [hints] [[AS] alias] USING table ON condition {when} [OPTION ...] ';'
Merge Descent::merge(std::vector<CommonTable> with) {
    Merge merge;
    merge.with = std::move(with);
    in_.expect(Keyword::Merge);
    if (in_.is(Keyword::Top)) {
        in_.refuseUnsupported("MERGE TOP");
    }
    in_.accept(Keyword::Into);
    merge.target.name = objectName();
    merge.target.hints = targetHints();
    if (!in_.isWordNow("USING")) {
        merge.target.alias = optionalAlias(false);
    }
    in_.expectWord("USING");
    merge.source = joinedTable();
    in_.expect(Keyword::On);
    merge.on = condition();
    do {
        merge.when.push_back(mergeWhen());
    } while (in_.is(Keyword::When));
    if (in_.isWordNow("OUTPUT")) {
        in_.refuseUnsupported("OUTPUT in a MERGE");
    }
    merge.hints = queryHints();
    if (!in_.is(Op::Semicolon)) {
        in_.refuseWith(10713, {});
    }
    return merge;
}

// when := WHEN [NOT] MATCHED [BY (TARGET | SOURCE)] [AND condition] THEN action
MergeWhen Descent::mergeWhen() {
    using Match = MergeWhen::Match;
    MergeWhen when;
    in_.expect(Keyword::When);
    const bool negated = in_.accept(Keyword::Not);
    in_.expectWord("MATCHED");
    when.match = negated ? Match::NotMatchedByTarget : Match::Matched;
    if (negated && in_.accept(Keyword::By)) {
        if (in_.acceptWord("SOURCE")) {
            when.match = Match::NotMatchedBySource;
        } else {
            in_.expectWord("TARGET");
        }
    }
    if (in_.accept(Keyword::And)) {
        when.condition = condition();
    }
    in_.expect(Keyword::Then);
    mergeAction(when);
    return when;
}

// action := UPDATE SET assignments | DELETE | INSERT ['(' names ')'] (VALUES row | DEFAULT VALUES);
// rows that are not in the target are inserted, others are updated or deleted
void Descent::mergeAction(MergeWhen& when) {
    using Action = MergeWhen::Action;
    if (when.match == MergeWhen::Match::NotMatchedByTarget) {
        in_.expect(Keyword::Insert);
        when.action = Action::Insert;
        if (in_.is(Op::Open)) {
            when.columns = columnList();
        }
        if (in_.accept(Keyword::Default)) {
            in_.expect(Keyword::Values);
        } else {
            in_.expect(Keyword::Values);
            when.values = valuesRow();
        }
    } else if (in_.accept(Keyword::Delete)) {
        when.action = Action::Delete;
    } else {
        in_.expect(Keyword::Update);
        in_.expect(Keyword::Set);
        when.action = Action::Update;
        when.set = assignments();
    }
}

} // namespace velcro::sql::tsql

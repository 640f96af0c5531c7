// MERGE as the two or three statements it stands for: what is matched is changed first, so that rows
// just inserted are not met again.
#include "tsql/translate/Emitter.h"

#include "tsql/translate/SqliteText.h"
#include "tsql/values/Errors.h"

#include <algorithm>

namespace velcro::sql::tsql {

namespace {

std::string targetAlias(const Merge& statement) {
    return statement.target.alias.empty() ? statement.target.name.name : statement.target.alias;
}

} // namespace

std::vector<Translation> Emitter::merge(const Merge& statement, const Names& names,
                                        Literals literals) {
    std::vector<Translation> parts;
    using Match = MergeWhen::Match;
    for (const auto match :
         {Match::Matched, Match::NotMatchedBySource, Match::NotMatchedByTarget}) {
        const auto count = std::count_if(statement.when.begin(), statement.when.end(),
                                         [&](const auto& when) { return when.match == match; });
        if (count > 1) {
            raiseUnsupported("a MERGE with two clauses for the same match");
        }
        for (const auto& when : statement.when) {
            if (when.match == match) {
                parts.push_back(Emitter(names, literals).mergePart(statement, when));
            }
        }
    }
    return parts;
}

Translation Emitter::mergePart(const Merge& statement, const MergeWhen& when) {
    switch (when.match) {
    case MergeWhen::Match::Matched:
        return mergeMatched(statement, when);
    case MergeWhen::Match::NotMatchedBySource:
        return mergeBySource(statement, when);
    default:
        return mergeInsert(statement, when);
    }
}

Translation Emitter::mergeChange(const MergeWhen& when, const Source& target, const Scope& scope,
                                 const std::string& with, const std::string& from) {
    if (when.action == MergeWhen::Action::Delete) {
        Translation result = finish(with + removeText(*target.table, target.alias, from), "DELETE");
        result.manyRows = true;
        return result;
    }
    return updateJoined(target, changes(when.set, target, scope), with, from);
}

Translation Emitter::mergeMatched(const Merge& statement, const MergeWhen& when) {
    const std::string with = withText(statement.with, statement.hints);
    Scope scope;
    std::string from = " FROM " + emitSource(statement.target, scope);
    const Source& target = targetOf({{}, {}, {}, targetAlias(statement)}, scope, from);
    from += " JOIN " + sourceText(*statement.source, scope);
    from += " ON " + conditionOf(*statement.on, scope);
    if (when.condition) {
        from += " WHERE " + conditionOf(*when.condition, scope);
    }
    return mergeChange(when, target, scope, with, from);
}

Translation Emitter::mergeBySource(const Merge& statement, const MergeWhen& when) {
    const std::string with = withText(statement.with, statement.hints);
    Scope scope;
    std::string from = " FROM " + emitSource(statement.target, scope);
    const Source& target = targetOf({{}, {}, {}, targetAlias(statement)}, scope, from);
    Scope inner(&scope);
    const std::string source = sourceText(*statement.source, inner);
    from += " WHERE NOT EXISTS (SELECT 1 FROM " + source;
    from += " WHERE " + conditionOf(*statement.on, inner) + ")";
    if (when.condition) {
        from += " AND " + conditionOf(*when.condition, scope);
    }
    return mergeChange(when, target, scope, with, from);
}

Translation Emitter::mergeInsert(const Merge& statement, const MergeWhen& when) {
    const std::string with = withText(statement.with, statement.hints);
    const TableDef& table = requireTable(statement.target.name);
    const auto columns = insertColumns(when.columns, table);
    if (columns.size() != when.values.size()) {
        raise(when.values.size() < columns.size() ? 109 : 110, {}, line_);
    }
    Scope scope;
    const std::string source = sourceText(*statement.source, scope);
    std::string values;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        values += (i == 0 ? "" : ",") + rowValue(*when.values[i], table, *columns[i], scope);
    }
    Scope inner(&scope);
    const std::string target = emitSource(statement.target, inner);
    std::string text = with + insertHead(table, columns) + "SELECT " + values + " FROM " + source;
    text += " WHERE NOT EXISTS (SELECT 1 FROM " + target;
    text += " WHERE " + conditionOf(*statement.on, inner) + ")";
    if (when.condition) {
        text += " AND " + conditionOf(*when.condition, scope);
    }
    Translation result = finish(std::move(text), "INSERT");
    result.setsIdentity = table.identityColumn() != nullptr;
    result.manyRows = true;
    return result;
}

} // namespace velcro::sql::tsql

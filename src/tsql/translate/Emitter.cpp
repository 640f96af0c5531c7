// What a statement is translated as.
#include "tsql/translate/Emitter.h"

#include "tsql/translate/SqliteText.h"
#include "tsql/values/Errors.h"

namespace velcro::sql::tsql {

Translation Emitter::select(const Select& statement) {
    const std::string with = withText(statement.with, statement.hints);
    QueryText rows = query(*statement.query, nullptr, false);
    Translation result = finish(with + rows.text, {}, std::move(rows.columns));
    if (result.assigns) {
        for (const auto& column : result.columns) {
            if (column.variable.empty()) {
                raise(141, {}, line_);
            }
        }
    }
    return result;
}

Translation Emitter::view(const Select& statement, std::span<const std::string> names) {
    const std::string with = withText(statement.with, statement.hints);
    QueryText rows = query(*statement.query, nullptr, true, names);
    return finish(with + rows.text, {}, std::move(rows.columns));
}

Translation Emitter::value(const Expr& expr, const Type& target) {
    const Scope none;
    Fragment fragment = valueOf(expr, none);
    const Type type = target.isNull() ? fragment.type : target;
    const Type from = fragment.type;
    std::string text = "SELECT " + placed(std::move(fragment));
    return finish(std::move(text), {}, {{"", from.isNull() ? type : from, {}}});
}

Translation Emitter::condition(const Expr& expr) {
    const Scope none;
    return finish("SELECT " + conditionOf(expr, none), {}, {{"", bitType, {}}});
}

std::string Emitter::constantText(const Expr& expr, const Type& target) {
    const Scope none;
    Fragment fragment = valueOf(expr, none);
    if (fragment.type.isNull()) {
        return "NULL";
    }
    if (fragment.bind) {
        fragment.bind->to = target;
        return place(std::move(*fragment.bind));
    }
    return castText(fragment.text, fragment.type, target);
}

} // namespace velcro::sql::tsql

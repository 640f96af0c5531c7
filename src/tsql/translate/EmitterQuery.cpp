// A single SELECT: its list, grouping, order and limits.
#include "tsql/translate/Emitter.h"

#include "tsql/translate/SqliteText.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>

namespace velcro::sql::tsql {

namespace {

bool isAggregate(const Expr& expr) {
    const auto* call = std::get_if<FunctionCall>(&expr.node);
    if (call == nullptr || call->over) {
        return false;
    }
    const std::string name = upperName(call->name.name);
    return name == "COUNT" || name == "COUNT_BIG" || name == "SUM" || name == "AVG" ||
           name == "MIN" || name == "MAX" || name == "STRING_AGG";
}

std::string columnName(const SelectItem& item) {
    const auto* reference = std::get_if<ColumnRef>(&item.expr->node);
    if (!item.alias.empty() || reference == nullptr) {
        return item.alias;
    }
    return reference->parts.back();
}

} // namespace

bool Emitter::groups(const SelectCore& select) {
    return !select.groupBy.empty() || select.having ||
           std::any_of(select.items.begin(), select.items.end(),
                       [](const SelectItem& item) { return isAggregate(*item.expr); });
}

bool Emitter::givesOneRow(const QueryBody& body) {
    const auto* select = std::get_if<SelectCore>(&body.node);
    return select != nullptr && select->groupBy.empty() &&
           (select->from.empty() || groups(*select));
}

Emitter::QueryText Emitter::query(const Query& query, const Scope* outer, bool nested,
                                  std::span<const std::string> names) {
    const auto* select = std::get_if<SelectCore>(&query.body->node);
    if (select == nullptr) {
        return compound(query, outer, nested, names);
    }
    std::string order;
    Core single = core(*select, outer, &query, order);
    QueryText text = joined(std::move(single), nested, {}, names);
    text.text += order;
    return text;
}

Emitter::Core Emitter::core(const SelectCore& select, const Scope* outer, const Query* whole,
                            std::string& orderText) {
    Scope scope(outer);
    Core core;
    core.head = select.distinct ? "SELECT DISTINCT " : "SELECT ";
    core.tail = fromText(select.from, scope);
    if (select.where) {
        core.tail += " WHERE " + conditionOf(*select.where, scope);
    }
    GroupCheck check{&scope, {}, groups(select)};
    core.tail += groupText(select, scope, check);
    groups_.push_back(std::move(check));
    for (const auto& item : select.items) {
        addItem(item, scope, core);
    }
    if (select.having) {
        core.tail += " HAVING " + conditionOf(*select.having, scope);
    }
    if (whole != nullptr) {
        orderText = this->orderText(whole->orderBy, core, scope);
        orderText += limitText(&select, *whole, scope);
    }
    groups_.pop_back();
    return core;
}

std::string Emitter::groupText(const SelectCore& select, const Scope& scope, GroupCheck& check) {
    std::string text;
    for (const auto& expr : select.groupBy) {
        Fragment key = valueOf(*expr, scope);
        requireSortable(key.type);
        const Fragment shown = key;
        const std::string placedText = placed(std::move(key));
        // What is grouped by an expression is not told apart from what is not.
        check.strict = check.strict && std::holds_alternative<ColumnRef>(expr->node);
        check.columns.push_back(placedText);
        text += (text.empty() ? " GROUP BY " : ", ") + collatedText(shown, placedText);
    }
    return text;
}

void Emitter::addItem(const SelectItem& item, const Scope& scope, Core& core) {
    if (const auto* star = std::get_if<Star>(&item.expr->node)) {
        addStar(*star, scope, core);
        return;
    }
    core.items.push_back({columnName(item), valueOf(*item.expr, scope), item.variable});
}

void Emitter::addStar(const Star& star, const Scope& scope, Core& core) {
    const auto before = core.items.size();
    for (const auto& source : scope.sources()) {
        if (!star.qualifier.empty() && !sameName(source.alias, star.qualifier.back())) {
            continue;
        }
        for (const auto& column : source.columns) {
            Fragment value = columnFragment(source, column);
            checkGrouping(value, source, column.name);
            core.items.push_back({column.name, std::move(value), {}});
        }
    }
    if (core.items.size() == before && !star.qualifier.empty()) {
        raise(107, {star.qualifier.back()}, line_);
    }
    if (core.items.size() == before) {
        raise(263, {}, line_);
    }
}

Emitter::QueryText Emitter::joined(Core core, bool nested, std::span<const Type> types,
                                   std::span<const std::string> names) {
    const bool collates = nested || core.head == "SELECT DISTINCT ";
    QueryText result;
    result.text = core.head;
    for (std::size_t i = 0; i < core.items.size(); ++i) {
        Item& item = core.items[i];
        const Type type = types.empty() ? item.value.type : types[i];
        if (core.head == "SELECT DISTINCT " && !type.isComparable()) {
            raise(421, {baseTypeName(type.id)}, line_);
        }
        const std::string name = i < names.size() ? names[i] : item.name;
        const Fragment shown{{}, type, item.value.collated, {}};
        const std::string text = as(std::move(item.value), type);
        result.text += (i == 0 ? "" : ",") + (collates ? collatedText(shown, text) : text);
        if (nested && !name.empty()) {
            result.text += " AS " + quoteName(name);
        }
        result.columns.push_back({name, type, item.variable});
    }
    result.text += core.tail;
    return result;
}

std::string Emitter::orderText(const std::vector<OrderItem>& order, const Core& core,
                               const Scope& scope) {
    std::string text;
    for (const auto& item : order) {
        text += text.empty() ? " ORDER BY " : ", ";
        text += orderKey(*item.expr, core, scope);
        text += item.descending ? " DESC" : "";
    }
    return text;
}

void Emitter::requireSortable(const Type& type) const {
    if (!type.isComparable()) {
        raise(306, {}, line_);
    }
}

/// A position, the alias of a column of the list, or an expression over the tables.
std::string Emitter::orderKey(const Expr& expr, const Core& core, const Scope& scope) {
    const auto* position = std::get_if<Literal>(&expr.node);
    if (position != nullptr && position->kind == LiteralKind::Integer) {
        const auto wanted = std::stoull(position->text);
        if (wanted < 1 || wanted > core.items.size()) {
            raise(108, {position->text}, line_);
        }
        requireSortable(core.items[wanted - 1].value.type);
        return position->text;
    }
    const auto* reference = std::get_if<ColumnRef>(&expr.node);
    if (reference != nullptr && reference->parts.size() == 1) {
        const auto found =
            std::find_if(core.items.begin(), core.items.end(), [&](const Item& item) {
                return sameName(item.name, reference->parts[0]);
            });
        const auto again = found == core.items.end()
                               ? found
                               : std::find_if(found + 1, core.items.end(), [&](const Item& item) {
                                     return sameName(item.name, reference->parts[0]);
                                 });
        const bool isColumn =
            found != core.items.end() && !found->value.bind && !found->value.text.empty();
        if (isColumn && again == core.items.end()) {
            const Fragment& value = found->value;
            requireSortable(value.type);
            const auto ordinal = std::to_string(found - core.items.begin() + 1);
            return value.collated || !value.type.isCollated() ? ordinal
                                                              : collatedText(value, value.text);
        }
    }
    Fragment key = valueOf(expr, scope);
    requireSortable(key.type);
    const Fragment shown = key;
    return collatedText(shown, placed(std::move(key)));
}

std::string Emitter::limitText(const SelectCore* select, const Query& query, const Scope& scope) {
    if (select != nullptr && select->top) {
        return topText(*select->top, scope);
    }
    if (!query.offset && !query.fetch) {
        return {};
    }
    std::string text = " LIMIT ";
    text += query.fetch ? rowCount(*query.fetch, 1, 10744, scope) : "-1";
    if (query.offset) {
        text += " OFFSET " + rowCount(*query.offset, 0, 10742, scope);
    }
    return text;
}

std::string Emitter::topText(const Expr& top, const Scope& scope) {
    return " LIMIT " + rowCount(top, 0, 127, scope);
}

/// A negative number is no limit at all to SQLite, and an error to the server.
std::string Emitter::rowCount(const Expr& count, int least, int error, const Scope& scope) {
    Fragment value = valueOf(count, scope);
    if (value.type.isNull()) {
        raise(1060, {}, line_);
    }
    return "ts_row_count(" + as(std::move(value), bigIntType) + "," + std::to_string(least) + "," +
           std::to_string(error) + ")";
}

} // namespace velcro::sql::tsql

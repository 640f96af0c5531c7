// An expression that is too deep for SQLite's parser is cut: a part of it becomes a statement of its
// own, which the function ts_part runs when its turn comes, so that CASE and COALESCE still leave out
// what they do not reach. What a part needs of the rows (columns, aggregates, sub-selects) and all
// bound values are handed to it.
#include "tsql/translate/Emitter.h"

#include "tsql/translate/SqliteText.h"

#include <algorithm>

namespace velcro::sql::tsql {

namespace {

/// The parser has room for a hundred open symbols, of which one level takes up to ten.
constexpr int levelsOfAPart = 4;
/// A function takes 127 arguments; more values go in packets.
constexpr std::size_t valuesOfAPacket = 100;

std::string packed(const std::vector<std::string>& values) {
    if (values.size() <= valuesOfAPacket) {
        return joinTexts(values, ",");
    }
    std::string text;
    for (std::size_t from = 0; from < values.size(); from += valuesOfAPacket) {
        const std::span rest = std::span(values).subspan(from);
        text += from == 0 ? "ts_values(" : ",ts_values(";
        text += joinTexts(rest.first(std::min(valuesOfAPacket, rest.size())), ",") + ")";
    }
    return text;
}

} // namespace

bool Emitter::standsTooDeep(const Expr& expr) const {
    return names_.cutsExpressions() && level_ > levelsOfAPart && expr.height > 1;
}

/// Text of the statement around as the part at hand names it: one of the values handed to it.
std::string Emitter::fromOutside(std::string text) {
    if (part_ == nullptr) {
        return text;
    }
    auto& values = part_->values;
    auto found = std::find(values.begin(), values.end(), text);
    if (found == values.end()) {
        found = values.insert(found, std::move(text));
    }
    return "?" + std::to_string(found - values.begin() + 1);
}

Emitter::Fragment Emitter::fromOutside(Fragment fragment) {
    if (part_ != nullptr && !fragment.bind) {
        fragment.text = fromOutside(std::move(fragment.text));
        fragment.collated = false; // a value alone has no collation
    }
    return fragment;
}

template <class Emit>
Emitter::Fragment Emitter::part(Emit emit) {
    Part part;
    Part* const around = std::exchange(part_, &part);
    const int level = std::exchange(level_, 0);
    Fragment content = emit();
    part_ = around;
    level_ = level;
    if (content.bind) {
        return content;
    }
    std::vector<std::string> values;
    for (auto& value : part.values) {
        values.push_back(fromOutside(std::move(value)));
    }
    content.text = "ts_part(" + fromOutside(quoteText("SELECT " + content.text)) +
                   (values.empty() ? "" : ",") + packed(values) + ")";
    content.collated = false;
    return content;
}

Emitter::Fragment Emitter::partOf(const Expr& expr, const Scope& scope) {
    return part([&] { return valueOf(expr, scope); });
}

std::string Emitter::conditionPartOf(const Expr& expr, const Scope& scope) {
    return part([&] { return Fragment{conditionOf(expr, scope), bitType, false, {}}; }).text;
}

} // namespace velcro::sql::tsql

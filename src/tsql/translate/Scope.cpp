#include "tsql/translate/Scope.h"

#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>

namespace velcro::sql::tsql {

namespace {

const SourceColumn* columnOf(const Source& source, std::string_view name) {
    const auto found = std::find_if(source.columns.begin(), source.columns.end(),
                                    [&](const auto& c) { return sameName(c.name, name); });
    return found == source.columns.end() ? nullptr : &*found;
}

} // namespace

std::string referenceText(const ColumnRef& reference) {
    std::string text;
    for (const auto& part : reference.parts) {
        text += text.empty() ? "" : ".";
        text += part;
    }
    return text;
}

Source& Scope::add(Source source) {
    if (this->source(source.alias) != nullptr) {
        raise(1013, {source.alias, source.alias});
    }
    sources_.push_back(std::move(source));
    return sources_.back();
}

const Source* Scope::source(std::string_view alias) const {
    const auto found = std::find_if(sources_.begin(), sources_.end(),
                                    [&](const auto& s) { return sameName(s.alias, alias); });
    return found == sources_.end() ? nullptr : &*found;
}

Scope::Found Scope::find(const ColumnRef& reference, int line) const {
    return reference.parts.size() == 1 ? findPlain(reference.parts[0], line)
                                       : findQualified(reference, line);
}

Scope::Found Scope::findQualified(const ColumnRef& reference, int line) const {
    const auto& parts = reference.parts;
    for (const Scope* scope = this; scope != nullptr; scope = scope->outer_) {
        const Source* found = scope->source(parts[parts.size() - 2]);
        if (found == nullptr) {
            continue;
        }
        if (const SourceColumn* column = columnOf(*found, parts.back())) {
            return {found, column};
        }
        raise(207, {parts.back()}, line);
    }
    raise(4104, {referenceText(reference)}, line);
}

Scope::Found Scope::findPlain(const std::string& name, int line) const {
    for (const Scope* scope = this; scope != nullptr; scope = scope->outer_) {
        Found found;
        for (const auto& source : scope->sources_) {
            const SourceColumn* column = columnOf(source, name);
            if (column != nullptr && found.column != nullptr) {
                raise(209, {name}, line);
            }
            if (column != nullptr) {
                found = {&source, column};
            }
        }
        if (found.column != nullptr) {
            return found;
        }
    }
    raise(207, {name}, line);
}

} // namespace velcro::sql::tsql

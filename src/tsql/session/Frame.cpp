#include "tsql/session/Frame.h"

#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

namespace velcro::sql::tsql {

FrameVariable& Frame::declare(std::string_view name, const Type& type, int line) {
    const auto [place, isNew] = variables_.try_emplace(foldText(name), FrameVariable{type, {}});
    if (!isNew) {
        raise(134, {name}, line);
    }
    return place->second;
}

const FrameVariable* Frame::find(std::string_view name) const {
    const auto found = variables_.find(foldText(name));
    return found == variables_.end() ? nullptr : &found->second;
}

FrameVariable& Frame::require(std::string_view name, int line) {
    const auto found = variables_.find(foldText(name));
    if (found == variables_.end()) {
        raise(137, {name}, line);
    }
    return found->second;
}

void Frame::assign(std::string_view name, Value value, const Type& from, int line) {
    FrameVariable& variable = require(name, line);
    variable.value = from.isNull() ? Value() : convert(std::move(value), from, variable.type);
}

} // namespace velcro::sql::tsql

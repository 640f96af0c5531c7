#include "tsql/translate/SessionValues.h"

#include "tsql/values/Collation.h"

#include <algorithm>
#include <array>

namespace velcro::sql::tsql {

namespace {

struct Row
{
    std::string_view name;
    Type type;
};

constexpr std::array sessionValues{
    Row{"@@SPID", {TypeId::SmallInt}},
    Row{"@@ROWCOUNT", intType},
    Row{"@@ERROR", intType},
    Row{"@@TRANCOUNT", intType},
    Row{"@@IDENTITY", {TypeId::Numeric, 0, 38, 0}},
    Row{"@@SCOPE_IDENTITY", {TypeId::Numeric, 0, 38, 0}},
    Row{"@@VERSION", nvarcharType(300)},
    Row{"@@SERVERNAME", nvarcharType(128)},
    Row{"@@NESTLEVEL", intType},
    Row{"@@LOCK_TIMEOUT", intType},
    Row{"@@ERROR_NUMBER", intType},
    Row{"@@ERROR_SEVERITY", intType},
    Row{"@@ERROR_STATE", intType},
    Row{"@@ERROR_LINE", intType},
    Row{"@@ERROR_MESSAGE", nvarcharType(4000)},
    Row{"@@ERROR_PROCEDURE", nvarcharType(128)},
    Row{"@@XACT_STATE", {TypeId::SmallInt}},
};

} // namespace

const Type* sessionValueType(std::string_view name) {
    const auto found = std::find_if(sessionValues.begin(), sessionValues.end(),
                                    [&](const Row& row) { return sameName(row.name, name); });
    return found == sessionValues.end() ? nullptr : &found->type;
}

std::string_view sessionFunction(std::string_view upperName) {
    if (!upperName.starts_with("ERROR_") && upperName != "XACT_STATE" &&
        upperName != "SCOPE_IDENTITY") {
        return {};
    }
    const auto found =
        std::find_if(sessionValues.begin(), sessionValues.end(),
                     [&](const Row& row) { return row.name.substr(2) == upperName; });
    return found == sessionValues.end() ? std::string_view() : found->name;
}

} // namespace velcro::sql::tsql

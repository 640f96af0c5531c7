#include "tsql/session/PlaceNames.h"

#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

namespace velcro::sql::tsql {

Session::PlaceNames::PlaceNames(const Session& session, const Place& place)
    : session_(session)
    , place_(place) {
    for (const auto& parameter : place.parameters) {
        parameterTypes_.push_back(parameterType(parameter));
    }
}

const TableDef* Session::PlaceNames::table(const ObjectName& name) const {
    if (TemporaryTables::isTemporary(name.name)) {
        return session_.temporary_.find(name.name);
    }
    const bool elsewhere =
        !name.server.empty() ||
        (!name.database.empty() && !sameName(name.database, session_.catalogue_.databaseName()));
    const bool ownSchema = name.schema.empty() || sameName(name.schema, "dbo");
    return elsewhere || !ownSchema ? nullptr : session_.catalogue_.table(name.name);
}

const RoutineDef* Session::PlaceNames::view(const ObjectName& name) const {
    const TableDef* found = table(name);
    return found != nullptr && found->isView ? session_.catalogue_.view(found->name) : nullptr;
}

Type Session::PlaceNames::variable(std::string_view name) const {
    const FrameVariable* found = place_.frame.find(name);
    if (found == nullptr) {
        raise(137, {name});
    }
    return found->type;
}

const Type* Session::PlaceNames::parameter(std::string_view name) const {
    for (std::size_t i = 0; i < parameterTypes_.size(); ++i) {
        if (sameName(place_.parameters[i].name, name)) {
            return &parameterTypes_[i];
        }
    }
    return nullptr;
}

bool Session::PlaceNames::identityInsert(const TableDef& table) const {
    return !session_.identityInsert_.empty() && sameName(session_.identityInsert_, table.name);
}

std::string Session::PlaceNames::fullName(const TableDef& table) const {
    return TemporaryTables::isTemporary(table.name) ? "tempdb.dbo." + table.name
                                                    : session_.catalogue_.fullName(table.name);
}

} // namespace velcro::sql::tsql

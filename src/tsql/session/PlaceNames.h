// What a statement of a session can name: the catalogue's tables, the session's own, and the
// variables and parameters of the place it stands in.
#pragma once

#include "tsql/session/Session.h"
#include "tsql/translate/Names.h"

namespace velcro::sql::tsql {

class Session::PlaceNames : public Names
{
public:
    PlaceNames(const Session& session, const Place& place);

    const TableDef* table(const ObjectName& name) const override;
    const RoutineDef* view(const ObjectName& name) const override;
    Type variable(std::string_view name) const override;
    const Type* parameter(std::string_view name) const override;
    bool identityInsert(const TableDef& table) const override;
    std::string fullName(const TableDef& table) const override;
    bool cutsExpressions() const override { return place_.program.cutsExpressions; }

private:
    const Session& session_;
    const Place& place_;
    std::vector<Type> parameterTypes_;
};

} // namespace velcro::sql::tsql

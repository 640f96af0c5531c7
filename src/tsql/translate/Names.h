// What a statement can name outside its own text: tables, variables and parameters.
#pragma once

#include "tsql/catalogue/Catalogue.h"
#include "tsql/syntax/Ast.h"

#include <string>
#include <string_view>

namespace velcro::sql::tsql {

class Names
{
public:
    virtual ~Names() = default;

    /// Stored, temporary and variable tables and views; null when there is none. Names that point
    /// into another database are null too.
    virtual const TableDef* table(const ObjectName& name) const = 0;
    /// What a view was made from; null when the name is none of a view.
    virtual const RoutineDef* view(const ObjectName& name) const = 0;
    /// 137 when it is not declared.
    virtual Type variable(std::string_view name) const = 0;
    /// Null when the caller bound none of that name.
    virtual const Type* parameter(std::string_view name) const = 0;
    virtual bool identityInsert(const TableDef& table) const = 0;
    /// Whether expressions are to be cut into parts, because SQLite's parser took them for too deep.
    virtual bool cutsExpressions() const { return false; }
    /// database.dbo.Table, as messages about stored values have it.
    virtual std::string fullName(const TableDef& table) const = 0;
};

} // namespace velcro::sql::tsql

// The names that an expression can see: the tables of its FROM, those of the statements around it,
// and the common tables in front.
#pragma once

#include "tsql/catalogue/Catalogue.h"
#include "tsql/syntax/Ast.h"
#include "tsql/values/Values.h"

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace velcro::sql::tsql {

/// A column of a table, a derived table or a common table.
struct SourceColumn
{
    std::string name;
    Type type;
    std::string shown = {}; // of a view's column: the table's column that it shows
};

/// One table of a FROM.
struct Source
{
    std::string alias; // what qualifies its columns: the alias, else the table's own name
    std::vector<SourceColumn> columns;
    const TableDef* table = nullptr; // set for stored tables alone
    std::string view = {};           // of a view through which rows are changed: its name
};

/// A common table that names itself, and how often it may; blank for one that does not.
struct Recursion
{
    std::string table;
    int limit = 100; // 0: no limit
};

struct CommonTableInfo
{
    std::string name;
    std::vector<SourceColumn> columns;
};

/// Sources keep their places when more are added.
class Scope
{
public:
    explicit Scope(const Scope* outer = nullptr)
        : outer_(outer) {}

    /// 1013 when the alias is taken.
    Source& add(Source source);
    const std::deque<Source>& sources() const { return sources_; }

    struct Found
    {
        const Source* source = nullptr;
        const SourceColumn* column = nullptr;
    };
    /// Looks here and then outwards. 207 unknown, 209 ambiguous, 4104 unknown qualifier.
    Found find(const ColumnRef& reference, int line) const;
    /// The source of that alias in this scope alone; null when there is none.
    const Source* source(std::string_view alias) const;

private:
    Found findQualified(const ColumnRef& reference, int line) const;
    Found findPlain(const std::string& name, int line) const;

    const Scope* outer_;
    std::deque<Source> sources_;
};

/// "T0.CO": a reference as it stands in messages.
std::string referenceText(const ColumnRef& reference);

} // namespace velcro::sql::tsql

// Statements that change the shape of a database: each checks as the server does, then changes the
// SQLite file and the catalogue together.
#pragma once

#include "tsql/catalogue/Catalogue.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velcro::sql::tsql {

class FaultSlot;

/// A DEFAULT as it is written in a statement.
struct DefaultSpec
{
    std::string name;   // blank: the server makes one, DF__Table__Column__hex
    std::string text;   // the expression in T-SQL, as written
    std::string sqlite; // the same for SQLite, converted to the column's type
};

struct ColumnSpec
{
    std::string name;
    Type type;
    std::optional<bool> nullable; // none: the statement does not say
    std::optional<IdentityDef> identity;
    std::optional<DefaultSpec> defaultValue;
};

struct KeyColumnSpec
{
    std::string name;
    bool descending = false;
};

/// PRIMARY KEY or UNIQUE.
struct KeySpec
{
    std::string name; // blank: the server makes one, PK__Table__hex
    bool primaryKey = true;
    std::optional<bool> clustered; // none: a primary key is, a unique one is not
    std::vector<KeyColumnSpec> columns;
};

struct IndexSpec
{
    std::string name;
    bool unique = false;
    bool clustered = false;
    bool dropExisting = false;
    std::vector<KeyColumnSpec> columns;
    std::vector<std::string> included;
};

/// Runs inside the caller's transaction or its own; after a fault the caller rolls back to where the
/// statement began (a savepoint) and lets the catalogue reload.
class Ddl
{
public:
    /// Conversions of stored values raise their faults through the host.
    Ddl(Catalogue& catalogue, FaultSlot& faults)
        : catalogue_(catalogue)
        , faults_(faults) {}

    /// 2714, 2705, 8110, 8111.
    void createTable(std::string_view name, const std::vector<ColumnSpec>& columns,
                     const std::vector<KeySpec>& keys);
    /// 3701, 3705 (a view).
    void dropTable(std::string_view name, bool ifExists);
    void truncateTable(std::string_view name);

    /// 4902, 2705, 4901, 2744.
    void addColumns(std::string_view table, const std::vector<ColumnSpec>& columns);
    /// 4902, 4924, 5074 with 4922, 515, 2628, 245, 8114. No word on NULL makes it nullable.
    void alterColumn(std::string_view table, std::string_view column, const Type& type,
                     std::optional<bool> nullable);
    /// 4902, 4924, 5074 with 4922.
    void dropColumns(std::string_view table, const std::vector<std::string>& columns,
                     bool ifExists);
    /// 4902, 1779, 1911, 8111, 1505, 2714.
    void addKey(std::string_view table, const KeySpec& key);
    /// 1781, 1752, 2714.
    void addDefault(std::string_view table, std::string_view column, const DefaultSpec& value);
    /// 3728.
    void dropConstraint(std::string_view table, std::string_view name, bool ifExists);

    /// 1088, 1911, 1913, 1505, 1902, 1909, 1919.
    void createIndex(std::string_view table, const IndexSpec& index);
    /// 3701, 3723 (a constraint's index).
    void dropIndex(std::string_view table, std::string_view name, bool ifExists);

    /// 2714.
    void createProcedure(std::string_view name, std::string text, bool orAlter);
    /// 3701.
    void dropProcedure(std::string_view name, bool ifExists);
    /// `sqlite`: the SELECT for SQLite. 2714.
    void createView(std::string_view name, std::string text, std::string_view sqlite,
                    const std::vector<ColumnSpec>& columns);
    void dropView(std::string_view name, bool ifExists);

private:
    TableDef tableForAlter(std::string_view name) const;
    void requireFreeName(std::string_view name) const;
    bool hasRows(const TableDef& table) const;
    void run(const std::string& sqlite, std::initializer_list<std::string_view> values = {}) const;

    ColumnDef columnFrom(const TableDef& table, const ColumnSpec& spec);
    void requireIdentity(const TableDef& table, const ColumnDef& column) const;
    DefaultDef defaultFrom(const TableDef& table, const ColumnDef& column, const DefaultSpec& spec);
    void addColumn(TableDef& table, const ColumnSpec& spec);
    void addFilled(const TableDef& table, const ColumnDef& column, const std::string& value);
    void requireNoNulls(const TableDef& table, const ColumnDef& column) const;
    void convertColumn(const TableDef& table, const ColumnDef& from, const ColumnDef& to);
    void dropColumn(TableDef& table, const ColumnDef& column);
    void writeValues(const TableDef& table, const ColumnDef& column);
    void startIdentity(const TableDef& table);

    IndexDef keyFrom(TableDef& table, const KeySpec& key);
    static std::vector<KeyColumn> keyColumns(const TableDef& table, std::string_view index,
                                             const std::vector<KeyColumnSpec>& columns);
    static const IndexDef* clusteredIndex(const TableDef& table);
    static bool isIdentityKey(const TableDef& table, const IndexDef& index);
    static void makeKeyColumnsNotNull(TableDef& table, const std::vector<ColumnSpec>& specs,
                                      const KeySpec& key);
    void addIndex(TableDef& table, IndexDef index);
    void makeIndex(const TableDef& table, const IndexDef& index);
    void requireDistinct(const TableDef& table, const IndexDef& index) const;
    void removeIndex(TableDef& table, const IndexDef& index);

    void rewriteSchema(const TableDef& table);
    void rebuild(const TableDef& from, const TableDef& to);

    Catalogue& catalogue_;
    FaultSlot& faults_;
};

} // namespace velcro::sql::tsql

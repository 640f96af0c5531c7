// What the server would know of a database's tables, columns, keys, indexes, procedures and views:
// kept in tables of the same SQLite file, held in memory for quick look-up.
#pragma once

#include "tsql/values/Values.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

struct sqlite3;

namespace velcro::sql::tsql {

class SqliteQuery;

/// A default constraint. `text` is T-SQL in the server's bracketed form, ('') or ((0)); `sqlite` the
/// expression that stands in the file's own DEFAULT clause.
struct DefaultDef
{
    int id = 0;
    std::string name;
    std::string text;
    std::string sqlite;
    bool systemNamed = true;

    bool operator==(const DefaultDef&) const = default;
};

struct IdentityDef
{
    std::int64_t seed = 1;
    std::int64_t increment = 1;

    bool operator==(const IdentityDef&) const = default;
};

struct ColumnDef
{
    int id = 0; // column_id: 1 upward
    std::string name;
    Type type;
    bool nullable = true;
    std::optional<IdentityDef> identity;
    std::optional<DefaultDef> defaultValue;

    bool operator==(const ColumnDef&) const = default;
};

struct KeyColumn
{
    int columnId = 0;
    bool descending = false;

    bool operator==(const KeyColumn&) const = default;
};

/// An index, or the key constraint that stands on one.
struct IndexDef
{
    int id = 0;           // index_id: 1 the clustered one, 2 upward the others
    int constraintId = 0; // object id of the key constraint; 0 for a plain index
    std::string name;
    bool primaryKey = false;
    bool unique = false;
    bool clustered = false;
    std::vector<KeyColumn> keys;
    std::vector<int> included; // column ids; kept for the catalogue views alone

    bool isConstraint() const { return constraintId != 0; }
    bool covers(int columnId) const;
    bool operator==(const IndexDef&) const = default;
};

struct TableDef
{
    int id = 0;
    std::string name; // as created; also its name in SQLite
    bool isView = false;
    std::vector<ColumnDef> columns; // in their order
    std::vector<IndexDef> indexes;

    const ColumnDef* column(std::string_view name) const;
    const ColumnDef* columnById(int id) const;
    const ColumnDef* identityColumn() const;
    const IndexDef* index(std::string_view name) const;
    const IndexDef* primaryKey() const;
};

/// A procedure or a view as it was written.
struct RoutineDef
{
    int id = 0;
    std::string name;
    std::string text; // the whole CREATE statement
};

/// Names are looked up as the server does it, without regard to case and without a schema.
/// Pointers stay valid until the catalogue changes.
class Catalogue
{
public:
    /// Makes the catalogue's tables when the file has none (`readOnly`: then it stays empty).
    /// `databaseName` stands in messages and DB_NAME().
    Catalogue(sqlite3* database, std::string databaseName, bool readOnly = false);
    ~Catalogue();
    Catalogue(const Catalogue&) = delete;
    Catalogue& operator=(const Catalogue&) = delete;

    const std::string& databaseName() const { return databaseName_; }
    sqlite3* database() const { return database_; }
    /// database.dbo.Name, as messages have it.
    std::string fullName(std::string_view name) const {
        return databaseName_ + ".dbo." + std::string(name);
    }

    /// Takes up what other connections have changed; cheap when nothing has. Call before a batch is
    /// translated. True when anything is different from before.
    bool refresh();
    /// Goes up with every change; translations made under another version are stale.
    std::int64_t version() const { return version_; }
    /// Reads everything anew, as after a rollback (also to a savepoint) that took changes back.
    void reload();
    /// True since a change in a transaction that is still open: a rollback, also one that only goes
    /// back to a savepoint, needs reload().
    bool changedInTransaction() const { return changed_; }
    /// Call when the transaction is over, either way.
    void transactionEnded() { changed_ = false; }

    const TableDef* table(std::string_view name) const; // also views
    const RoutineDef* procedure(std::string_view name) const;
    const RoutineDef* view(std::string_view name) const;
    /// Any object in schema dbo: table, view, procedure, constraint. 0 when there is none.
    int objectId(std::string_view name) const;
    /// Blank when there is none.
    std::string objectName(int id) const;
    /// sys.objects' type: "U", "V", "P", "PK", "UQ", "D"; blank when there is none.
    std::string_view objectKind(int id) const;
    const TableDef* tableById(int id) const;
    /// The table on which the constraint of that name stands.
    const TableDef* tableOfConstraint(std::string_view name) const;

    // Changes, as the statements of Ddl.h make them. Each writes the file's tables and the memory.
    int nextObjectId();
    void putTable(TableDef table); // adds, or replaces the one with its id
    void removeTable(int id);
    void putRoutine(std::string_view kind, RoutineDef routine); // "P" or "V"
    void removeRoutine(int id);

private:
    struct Object
    {
        std::string name;
        std::string kind;
        int table = 0; // on which a constraint stands
    };

    bool hasTables() const;
    void createTables();
    void load();
    void loadObjects();
    void loadColumns();
    void loadIndexes();
    void writeObjects(const TableDef& table, const TableDef* before);
    void writeColumns(const TableDef& table, const TableDef* before);
    void writeIndexes(const TableDef& table);
    void writeObject(int id, std::string_view name, std::string_view kind, int parent,
                     std::string_view definition);
    void addObject(int id, const std::string& name, std::string_view kind, int table = 0);
    void addTableObjects(const TableDef& table);
    void forgetObjects(const TableDef& table);
    void changed();
    std::int64_t storedVersion() const;
    std::int64_t dataVersion();

    sqlite3* database_;
    std::string databaseName_;
    std::int64_t version_ = 0;
    std::int64_t stored_ = 0; // the file's version, which a rollback takes back
    std::int64_t dataVersion_ = -1;
    int lastObjectId_ = 0;
    bool changed_ = false;
    bool hasTables_ = false; // else: a read-only file without a catalogue
    std::map<int, std::unique_ptr<TableDef>> tables_;
    std::map<int, RoutineDef> routines_;
    std::unordered_map<std::string, int> byName_; // folded name: object id
    std::unordered_map<int, Object> objects_;
    std::unique_ptr<SqliteQuery> dataVersionQuery_;
};

/// The name of an index in SQLite, where index names share one space: Table.Index.
std::string sqliteIndexName(const TableDef& table, const IndexDef& index);
/// SQLite takes any number of NULLs in a unique index, the server one: a second index, over the rows
/// with a NULL in the key, holds them to it. Its name, and the CREATE text's "T(...) WHERE ...".
std::string nullsIndexName(const TableDef& table, const IndexDef& index);
std::string nullsIndexText(const TableDef& table, const IndexDef& index);
/// CREATE TABLE as it stands in the file: INTEGER PRIMARY KEY AUTOINCREMENT for an identity column,
/// the collation on text, NOT NULL and DEFAULT; no lengths, which the catalogue keeps.
std::string sqliteTableText(const TableDef& table, std::string_view name);
/// One column of it.
std::string sqliteColumnText(const ColumnDef& column);
/// "name" in SQLite's quotes.
std::string quoteName(std::string_view name);

/// The server's views over its catalogue, and the older system tables.
struct SystemView
{
    std::string_view schema; // "INFORMATION_SCHEMA", "sys", or "" for sysobjects and the like
    std::string_view name;
    std::vector<std::pair<std::string_view, Type>> columns;
    std::string text; // a SELECT to stand in brackets as a derived table
};

/// std::nullptr for a name that is none. `schema` may be blank, "sys" or "dbo" for the older tables.
const SystemView* systemView(std::string_view schema, std::string_view name);

/// The last identity value a table gave; none before its first row.
std::optional<std::int64_t> lastIdentity(sqlite3* database, const TableDef& table);

/// system_type_id of sys.types: 56 for int, 231 for nvarchar; and back.
int systemTypeId(TypeId id);
std::optional<TypeId> typeBySystemId(int id);
/// max_length of sys.columns: bytes, -1 for (max).
int maxBytes(const Type& type);

/// True for names of the file's own tables (sys$..., sqlite_...), which user statements do not see.
bool isHiddenTable(std::string_view name);

} // namespace velcro::sql::tsql

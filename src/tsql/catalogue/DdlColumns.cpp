// ALTER TABLE: adding, altering and dropping columns.
#include "tsql/catalogue/Ddl.h"
#include "tsql/catalogue/SqliteQuery.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>

namespace velcro::sql::tsql {

namespace {

constexpr std::string_view alterColumnText = "ALTER TABLE ALTER COLUMN";
constexpr std::string_view dropColumnText = "ALTER TABLE DROP COLUMN";

// The server sends both; the first is the one by which the refusal is known.
[[noreturn]] void raiseDependent(std::string_view kind, std::string_view name,
                                 const ColumnDef& column, std::string_view statement) {
    SqlMessage message = serverMessage(5074, {kind, name, column.name});
    message.text += "\n" + serverMessage(4922, {statement, column.name}).text;
    throw Fault(std::move(message));
}

void raiseDependentIndex(const IndexDef& index, const ColumnDef& column,
                         std::string_view statement) {
    raiseDependent(index.isConstraint() ? "object" : "index", index.name, column, statement);
}

bool growsOnly(const Type& from, const Type& to) {
    const bool variable =
        from.id == TypeId::VarChar || from.id == TypeId::NVarChar || from.id == TypeId::VarBinary;
    const bool longer = to.length == maxLength || (from.length > 0 && to.length >= from.length);
    return from == to || (from.id == to.id && variable && longer && to.length != maxLength);
}

void requireAlterable(const TableDef& table, const ColumnDef& from, const ColumnDef& to) {
    for (const auto& index : table.indexes) {
        const bool becomesStrict = from.nullable && !to.nullable;
        const bool harmless = growsOnly(from.type, to.type) && !becomesStrict && !index.primaryKey;
        if (index.covers(from.id) && !harmless) {
            raiseDependentIndex(index, from, alterColumnText);
        }
    }
    if (from.defaultValue && from.type.id != to.type.id) {
        raiseDependent("object", from.defaultValue->name, from, alterColumnText);
    }
}

void requireDroppable(const TableDef& table, const ColumnDef& column) {
    if (column.defaultValue) {
        raiseDependent("object", column.defaultValue->name, column, dropColumnText);
    }
    for (const auto& index : table.indexes) {
        if (index.covers(column.id)) {
            raiseDependentIndex(index, column, dropColumnText);
        }
    }
    if (table.columns.size() == 1) {
        raise(4923, {column.name, table.name});
    }
}

enum class Rewrite { None, LongTexts, All };

Rewrite rewriteFor(const Type& from, const Type& to) {
    const bool padded = to.id == TypeId::Char || to.id == TypeId::NChar;
    if (from == to) {
        return Rewrite::None;
    }
    if (from.isText() && to.isText() && !padded) {
        const bool fits = to.length <= 0 || (from.length > 0 && from.length <= to.length);
        return fits ? Rewrite::None : Rewrite::LongTexts;
    }
    const bool wider = (from.isInteger() && to.isInteger() && from.id <= to.id) ||
                       (from.id == TypeId::Real && to.id == TypeId::Float);
    return wider ? Rewrite::None : Rewrite::All;
}

// What ALTER TABLE ADD COLUMN of SQLite takes as the value of rows that are there already.
bool isConstant(std::string_view sqlite) {
    if (sqlite.starts_with("X'")) {
        sqlite.remove_prefix(1);
    }
    if (sqlite.size() > 1 && sqlite.front() == '\'') {
        return sqlite.find('\'', 1) == sqlite.size() - 1;
    }
    return !sqlite.empty() && sqlite.find_first_not_of("0123456789.-") == std::string_view::npos;
}

} // namespace

void Ddl::addColumns(std::string_view name, const std::vector<ColumnSpec>& columns) {
    TableDef table = tableForAlter(name);
    for (const auto& spec : columns) {
        addColumn(table, spec);
    }
    catalogue_.putTable(std::move(table));
}

void Ddl::addColumn(TableDef& table, const ColumnSpec& spec) {
    const ColumnDef column = columnFrom(table, spec);
    const TableDef before = table;
    table.columns.push_back(column);
    if (column.identity) {
        rebuild(before, table);
        return;
    }
    const bool filled = hasRows(before);
    if (filled && !column.nullable && !column.defaultValue &&
        column.type.id != TypeId::RowVersion) {
        raise(4901, {column.name, table.name});
    }
    const bool asItStands = !column.defaultValue || !filled ||
                            (!column.nullable && isConstant(column.defaultValue->sqlite));
    if (asItStands) {
        run("ALTER TABLE " + quoteName(table.name) + " ADD COLUMN " + sqliteColumnText(column));
        return;
    }
    addFilled(table, column, column.nullable ? "NULL" : column.defaultValue->sqlite);
}

// SQLite would give rows that are there already the default of the text, which a nullable column
// must not do and an expression cannot.
void Ddl::addFilled(const TableDef& table, const ColumnDef& column, const std::string& value) {
    ColumnDef bare = column;
    bare.nullable = true;
    bare.defaultValue.reset();
    run("ALTER TABLE " + quoteName(table.name) + " ADD COLUMN " + sqliteColumnText(bare));
    run("UPDATE " + quoteName(table.name) + " SET " + quoteName(column.name) + " = " + value);
    rewriteSchema(table);
}

// Rows older than an added column do not hold it: they take the default of the text, and would follow
// a change of it. So the value is written before the default goes or comes.
void Ddl::writeValues(const TableDef& table, const ColumnDef& column) {
    const std::string name = quoteName(column.name);
    run("UPDATE " + quoteName(table.name) + " SET " + name + " = " + name);
}

// Changes the table's text in the file and nothing else: what is in the rows must fit already, or is
// converted right behind.
void Ddl::rewriteSchema(const TableDef& table) {
    sqlite3* database = catalogue_.database();
    SqliteQuery version(database, "PRAGMA schema_version");
    version.step();
    const std::int64_t next = version.integer(0) + 1;
    version.run();
    runSqlite(database, "PRAGMA writable_schema = ON");
    SqliteQuery(database, "UPDATE sqlite_schema SET sql = ? WHERE type = 'table' AND name = ?")
        .bind(sqliteTableText(table, table.name))
        .bind(std::string_view(table.name))
        .run();
    runSqlite(database, "PRAGMA schema_version = " + std::to_string(next));
    runSqlite(database, "PRAGMA writable_schema = RESET");
}

void Ddl::requireNoNulls(const TableDef& table, const ColumnDef& column) const {
    SqliteQuery query(catalogue_.database(), "SELECT 1 FROM " + quoteName(table.name) + " WHERE " +
                                                 quoteName(column.name) + " IS NULL LIMIT 1");
    if (query.step()) {
        raise(515, {column.name, catalogue_.fullName(table.name), "UPDATE"});
    }
}

void Ddl::alterColumn(std::string_view name, std::string_view columnName, const Type& type,
                      std::optional<bool> nullable) {
    TableDef table = tableForAlter(name);
    const auto* found = table.column(columnName);
    if (!found) {
        raise(4924, {alterColumnText, columnName, table.name});
    }
    const ColumnDef from = *found;
    ColumnDef to = from;
    to.type = type;
    to.nullable = nullable.value_or(!from.identity);
    requireAlterable(table, from, to);
    if (from.nullable && !to.nullable) {
        requireNoNulls(table, from);
    }
    for (auto& column : table.columns) {
        if (column.id == to.id) {
            column = to;
        }
    }
    if (sqliteColumnText(from) != sqliteColumnText(to)) {
        rewriteSchema(table);
    }
    convertColumn(table, from, to);
    catalogue_.putTable(std::move(table));
}

void Ddl::convertColumn(const TableDef& table, const ColumnDef& from, const ColumnDef& to) {
    const Rewrite rewrite = rewriteFor(from.type, to.type);
    if (rewrite == Rewrite::None) {
        return;
    }
    requireImplicit(from.type, to.type);
    const std::string name = quoteName(to.name);
    std::string text = "UPDATE " + quoteName(table.name) + " SET " + name + " = ts_store(" + name +
                       ", " + std::to_string(from.type.code()) + ", " +
                       std::to_string(to.type.code()) + ", ?, ?) WHERE " + name + " IS NOT NULL";
    if (rewrite == Rewrite::LongTexts) {
        text += " AND length(CAST(" + name + " AS BLOB)) > " + std::to_string(to.type.length);
    }
    run(text, {table.name, to.name});
}

void Ddl::dropColumns(std::string_view name, const std::vector<std::string>& columns,
                      bool ifExists) {
    TableDef table = tableForAlter(name);
    for (const auto& wanted : columns) {
        const auto* column = table.column(wanted);
        if (!column && ifExists) {
            continue;
        }
        if (!column) {
            raise(4924, {dropColumnText, wanted, table.name});
        }
        requireDroppable(table, *column);
        dropColumn(table, *column);
    }
    catalogue_.putTable(std::move(table));
}

void Ddl::dropColumn(TableDef& table, const ColumnDef& column) {
    const TableDef before = table;
    const int id = column.id;
    const bool isIdentity = column.identity.has_value();
    const std::string name = column.name;
    std::erase_if(table.columns, [&](const ColumnDef& other) { return other.id == id; });
    if (isIdentity) {
        rebuild(before, table);
    } else {
        run("ALTER TABLE " + quoteName(table.name) + " DROP COLUMN " + quoteName(name));
    }
}

// Copies the rows into a new table of the same name, for what no change of the text can do.
void Ddl::rebuild(const TableDef& from, const TableDef& to) {
    constexpr std::string_view work = "sys$rebuild";
    std::string columns;
    for (const auto& column : to.columns) {
        if (from.columnById(column.id)) {
            columns += (columns.empty() ? "" : ", ") + quoteName(column.name);
        }
    }
    const std::string table = quoteName(to.name);
    run(sqliteTableText(to, work));
    run("INSERT INTO " + quoteName(work) + "(" + columns + ") SELECT " + columns + " FROM " +
        table + " ORDER BY rowid");
    run("DROP TABLE " + table);
    run("ALTER TABLE " + quoteName(work) + " RENAME TO " + table);
    for (const auto& index : to.indexes) {
        makeIndex(to, index);
    }
}

} // namespace velcro::sql::tsql

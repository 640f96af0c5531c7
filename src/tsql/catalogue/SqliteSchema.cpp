// The SQLite text of a table: what the catalogue knows, in words that any SQLite tool understands.
#include "tsql/catalogue/Catalogue.h"
#include "tsql/values/Collation.h"

namespace velcro::sql::tsql {

std::string quoteName(std::string_view name) {
    std::string quoted = "\"";
    for (const char c : name) {
        quoted.append(c == '"' ? 2 : 1, c);
    }
    return quoted + "\"";
}

std::string sqliteIndexName(const TableDef& table, const IndexDef& index) {
    return table.name + "." + index.name;
}

std::string nullsIndexName(const TableDef& table, const IndexDef& index) {
    return sqliteIndexName(table, index) + "$nulls";
}

std::string nullsIndexText(const TableDef& table, const IndexDef& index) {
    std::string keys;
    std::string anyNull;
    for (const auto& key : index.keys) {
        const auto& column = *table.columnById(key.columnId);
        const std::string name = quoteName(column.name);
        keys += (keys.empty() ? "" : ", ") + name + " IS NULL, ifnull(" + name + ", 0)";
        keys += column.type.isCollated() ? " COLLATE " + std::string(collationName) : "";
        anyNull += (anyNull.empty() ? "" : " OR ") + name + " IS NULL";
    }
    return quoteName(table.name) + "(" + keys + ") WHERE " + anyNull;
}

std::string sqliteColumnText(const ColumnDef& column) {
    std::string text = quoteName(column.name);
    if (column.identity) {
        return text + " INTEGER PRIMARY KEY AUTOINCREMENT";
    }
    const auto storage = storageClass(column.type);
    text += storage.empty() ? "" : " " + std::string(storage);
    if (column.type.isCollated() || column.type.id == TypeId::UniqueIdentifier) {
        text += " COLLATE " + std::string(collationName);
    }
    if (!column.nullable) {
        text += " NOT NULL";
    }
    if (column.defaultValue) {
        text += " DEFAULT (" + column.defaultValue->sqlite + ")";
    }
    return text;
}

std::string sqliteTableText(const TableDef& table, std::string_view name) {
    std::string text = "CREATE TABLE " + quoteName(name) + "(";
    bool first = true;
    for (const auto& column : table.columns) {
        text += first ? "\n    " : ",\n    ";
        text += sqliteColumnText(column);
        first = false;
    }
    return text + "\n)";
}

} // namespace velcro::sql::tsql

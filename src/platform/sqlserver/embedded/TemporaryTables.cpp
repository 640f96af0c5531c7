#include "platform/sqlserver/embedded/TemporaryTables.h"

#include "platform/sqlserver/embedded/Collation.h"
#include "platform/sqlserver/embedded/Errors.h"

#include <sqlite3.h>

namespace velcro::sql::tsql {

const TableDef* TemporaryTables::find(std::string_view name) const {
    const auto found = tables_.find(foldText(name));
    return found == tables_.end() ? nullptr : found->second.get();
}

void TemporaryTables::create(TableDef table, const std::vector<KeySpec>& keys) {
    if (find(table.name) != nullptr) {
        raise(2714, {table.name});
    }
    constexpr std::string_view head = "CREATE TABLE";
    std::string text = sqliteTableText(table, table.name);
    text.replace(0, head.size(), "CREATE TEMP TABLE");
    run(text);
    ++version_;
    const std::string name = table.name;
    tables_.emplace(foldText(name), std::make_unique<TableDef>(std::move(table)));
    for (const auto& key : keys) {
        createIndex(name, {"key" + std::to_string(version_), true, false, false, key.columns, {}});
    }
}

void TemporaryTables::createIndex(std::string_view table, const IndexSpec& index) {
    const TableDef* target = find(table);
    if (target == nullptr) {
        raise(1088, {table});
    }
    std::string columns;
    for (const auto& column : index.columns) {
        if (target->column(column.name) == nullptr) {
            raise(1911, {column.name});
        }
        columns += (columns.empty() ? "" : ",") + quoteName(column.name);
        columns += column.descending ? " DESC" : "";
    }
    run(std::string(index.unique ? "CREATE UNIQUE INDEX temp." : "CREATE INDEX temp.") +
        quoteName(target->name + "." + index.name) + " ON " + quoteName(target->name) + " (" +
        columns + ")");
}

bool TemporaryTables::drop(std::string_view name) {
    const auto found = tables_.find(foldText(name));
    if (found == tables_.end()) {
        return false;
    }
    run("DROP TABLE temp." + quoteName(found->second->name));
    tables_.erase(found);
    ++version_;
    return true;
}

void TemporaryTables::dropVariables() {
    for (auto table = tables_.begin(); table != tables_.end();) {
        const std::string name = table->second->name;
        ++table;
        if (name.starts_with('@')) {
            drop(name);
        }
    }
}

void TemporaryTables::run(const std::string& sqlite) const {
    if (sqlite3_exec(database_, sqlite.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        raise(50000, {sqlite3_errmsg(database_)});
    }
}

} // namespace velcro::sql::tsql

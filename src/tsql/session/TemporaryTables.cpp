#include "tsql/session/TemporaryTables.h"

#include "tsql/catalogue/SqliteQuery.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>

#include <sqlite3.h>

namespace velcro::sql::tsql {

const TableDef* TemporaryTables::find(std::string_view name) const {
    const auto found = tables_.find(foldText(name));
    return found == tables_.end() ? nullptr : found->second.definition.get();
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
    tables_.emplace(foldText(name),
                    Table{std::make_unique<TableDef>(std::move(table)), stored()[name]});
    try {
        for (const auto& key : keys) {
            createIndex(name,
                        {"key" + std::to_string(version_), true, false, false, key.columns, {}});
        }
    } catch (const Fault&) {
        drop(name);
        throw;
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
    run(dropText(found->second));
    forget(found);
    return true;
}

void TemporaryTables::dropVariables() noexcept {
    for (auto table = tables_.begin(); table != tables_.end();) {
        const auto next = std::next(table);
        if (table->second.definition->name.starts_with('@') &&
            execute(dropText(table->second)) == SQLITE_OK) {
            forget(table);
        }
        table = next;
    }
}

std::string TemporaryTables::dropText(const Table& table) {
    return "DROP TABLE temp." + quoteName(table.definition->name);
}

void TemporaryTables::forget(std::map<std::string, Table>::iterator table) {
    if (sqlite3_get_autocommit(database_) == 0) {
        dropped_.push_back(std::move(table->second));
    }
    tables_.erase(table);
    ++version_;
}

std::map<std::string, std::string> TemporaryTables::stored() const {
    std::map<std::string, std::string> tables;
    SqliteQuery query(database_, "SELECT name, sql FROM sqlite_temp_schema WHERE type = 'table'");
    while (query.step()) {
        tables.emplace(query.text(0), query.text(1));
    }
    return tables;
}

void TemporaryTables::followRollback() {
    if (tables_.empty() && dropped_.empty()) {
        return;
    }
    auto there = stored();
    const auto gone = std::erase_if(tables_, [&](const auto& entry) {
        const auto& [definition, sqlite] = entry.second;
        const auto found = there.find(definition->name);
        const bool same = found != there.end() && found->second == sqlite;
        if (same) {
            there.erase(found);
        }
        return !same;
    });
    for (const auto& [name, sqlite] : there) {
        bringBack(name, sqlite);
    }
    version_ += gone + there.size() == 0 ? 0 : 1;
}

void TemporaryTables::bringBack(const std::string& name, const std::string& sqlite) {
    const auto found = std::find_if(dropped_.begin(), dropped_.end(), [&](const Table& table) {
        return table.definition->name == name && table.sqlite == sqlite;
    });
    if (found != dropped_.end()) {
        tables_.insert_or_assign(foldText(name), std::move(*found));
        dropped_.erase(found);
    }
}

int TemporaryTables::execute(const std::string& sqlite) const {
    return sqlite3_exec(database_, sqlite.c_str(), nullptr, nullptr, nullptr);
}

void TemporaryTables::run(const std::string& sqlite) const {
    if (execute(sqlite) != SQLITE_OK) {
        raise(50000, {sqlite3_errmsg(database_)});
    }
}

} // namespace velcro::sql::tsql

// Tables that only one connection sees: #temporary ones, gone when it closes, and variables of type
// TABLE, gone when their batch ends.
#pragma once

#include "platform/sqlserver/embedded/Ddl.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace velcro::sql::tsql {

class TemporaryTables
{
public:
    explicit TemporaryTables(sqlite3* database)
        : database_(database) {}

    /// True for #name and @name.
    static bool isTemporary(std::string_view name) {
        return name.starts_with('#') || name.starts_with('@');
    }

    /// Null when there is none.
    const TableDef* find(std::string_view name) const;
    /// 2714 when it is there already.
    void create(TableDef table, const std::vector<KeySpec>& keys);
    void createIndex(std::string_view table, const IndexSpec& index);
    /// False when there is none.
    bool drop(std::string_view name);
    /// Drops what began as a variable of the batch that ends.
    void dropVariables();
    /// Goes up with every change.
    std::int64_t version() const { return version_; }

private:
    void run(const std::string& sqlite) const;

    sqlite3* database_;
    std::map<std::string, std::unique_ptr<TableDef>> tables_; // by folded name
    std::int64_t version_ = 0;
};

} // namespace velcro::sql::tsql

// Tables that only one connection sees: #temporary ones, gone when it closes, and variables of type
// TABLE, gone when their batch ends.
#pragma once

#include "tsql/catalogue/Ddl.h"

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
    /// Drops what began as a variable of the batch that ends. What cannot be dropped now is when its
    /// name is declared again.
    void dropVariables() noexcept;
    /// After a rollback, which also takes back what was made and dropped here: knows what there is.
    void followRollback();
    void transactionEnded() { dropped_.clear(); }
    /// Goes up with every change.
    std::int64_t version() const { return version_; }

private:
    struct Table
    {
        std::unique_ptr<TableDef> definition;
        std::string sqlite; // as SQLite keeps it
    };

    static std::string dropText(const Table& table);
    void forget(std::map<std::string, Table>::iterator table);
    int execute(const std::string& sqlite) const;
    void run(const std::string& sqlite) const;
    std::map<std::string, std::string> stored() const;
    void bringBack(const std::string& name, const std::string& sqlite);

    sqlite3* database_;
    std::map<std::string, Table> tables_; // by folded name
    std::vector<Table> dropped_;          // which a rollback may bring back
    std::int64_t version_ = 0;
};

} // namespace velcro::sql::tsql

// A real SQLite database with the functions, catalogue and schema statements of the embedded end,
// without the T-SQL in front.
#pragma once

#include "tsql/catalogue/Ddl.h"
#include "tsql/catalogue/SqliteHandle.h"
#include "tsql/functions/Functions.h"

#include <string>

namespace velcro::sql::tsql {

inline DatabaseHandle openSqlite(const std::string& file) {
    sqlite3* raw = nullptr;
    sqlite3_open(file.c_str(), &raw);
    sqlite3_extended_result_codes(raw, 1);
    return DatabaseHandle(raw);
}

class CatalogueFixture
{
public:
    explicit CatalogueFixture(const std::string& file = ":memory:")
        : handle(openSqlite(file))
        , catalogue(handle.get(), "SHOP")
        , host(catalogue, {})
        , ddl(catalogue, host) {
        registerFunctions(handle.get(), host);
    }

    /// The rows, cells apart by "|", NULL as NULL; or "error <number>".
    std::string query(const std::string& sql, std::string_view verb = "INSERT") {
        sqlite3_stmt* raw = nullptr;
        int code = sqlite3_prepare_v2(handle.get(), sql.c_str(), -1, &raw, nullptr);
        const StatementHandle statement(raw);
        std::string rows;
        while (code == SQLITE_OK || code == SQLITE_ROW) {
            code = sqlite3_step(raw);
            if (code == SQLITE_ROW) {
                rows += (rows.empty() ? "" : "\n") + rowText(raw);
            }
        }
        if (code == SQLITE_DONE) {
            return rows;
        }
        fault = host.takeFault();
        if (!fault) {
            fault = faultFromSqlite(handle.get(), sqlite3_extended_errcode(handle.get()), catalogue,
                                    verb);
        }
        return "error " + std::to_string(fault->number()) +
               (fault->number() == 50000 ? std::string(": ") + fault->what() : "");
    }

    /// "SELECT *" of a catalogue view with the rest of the statement behind.
    std::string view(std::string_view schema, std::string_view name, const std::string& columns,
                     const std::string& rest) {
        const auto* found = systemView(schema, name);
        return found ? query("SELECT " + columns + " FROM (" + found->text + ") v " + rest)
                     : "no such view";
    }

    DatabaseHandle handle;
    Catalogue catalogue;
    FunctionHost host;
    Ddl ddl;
    std::optional<Fault> fault; // of the last query that failed

private:
    static std::string rowText(sqlite3_stmt* statement) {
        std::string row;
        for (int i = 0; i < sqlite3_column_count(statement); ++i) {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
            row += (i == 0 ? "" : "|") + std::string(text ? text : "NULL");
        }
        return row;
    }
};

/// The number of the fault that `work` raises; 0 for none.
template <class Work>
int faultNumber(Work work) {
    try {
        work();
        return 0;
    } catch (const Fault& fault) {
        return fault.number();
    }
}

} // namespace velcro::sql::tsql

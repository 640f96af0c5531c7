// How SQLite reads the tables of the statements that are sent to it, as its query planner tells.
#pragma once

#include <set>
#include <string>
#include <vector>

#include <sqlite3.h>

namespace velcro::test {

/// While it lives, databases that are opened are listened to. One at a time.
class StatementPlans
{
public:
    StatementPlans() {
        current = this;
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(listenTo));
    }
    ~StatementPlans() {
        sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(listenTo));
        current = nullptr;
    }
    StatementPlans(const StatementPlans&) = delete;
    StatementPlans& operator=(const StatementPlans&) = delete;

    /// From here on, "SEARCH T0 USING INDEX Name (CO=? AND Branch=?)" and its like, a line for each
    /// table of each text; the text of the statement follows after a line break.
    void begin() { sent_.clear(); }
    std::vector<std::string> reads() {
        std::vector<std::string> found;
        for (const auto& [database, text] : std::exchange(sent_, {})) {
            sqlite3_stmt* plan = nullptr;
            sqlite3_prepare_v2(database, ("EXPLAIN QUERY PLAN " + text).c_str(), -1, &plan,
                               nullptr);
            while (plan != nullptr && sqlite3_step(plan) == SQLITE_ROW) {
                const std::string step =
                    reinterpret_cast<const char*>(sqlite3_column_text(plan, 3));
                if (step.starts_with("SCAN") || step.starts_with("SEARCH")) {
                    found.push_back(step + "\n" + text);
                }
            }
            sqlite3_finalize(plan);
        }
        sent_.clear(); // without the questions after the plans
        return found;
    }

private:
    static int listenTo(sqlite3* database, char**, const struct sqlite3_api_routines*) {
        return sqlite3_trace_v2(database, SQLITE_TRACE_STMT, heard, nullptr);
    }
    static int heard(unsigned, void*, void* statement, void* text) {
        const char* sql = sqlite3_sql(static_cast<sqlite3_stmt*>(statement));
        const bool isTrigger = std::string_view(static_cast<const char*>(text)).starts_with("--");
        if (current != nullptr && sql != nullptr && !isTrigger) {
            current->sent_.emplace(sqlite3_db_handle(static_cast<sqlite3_stmt*>(statement)), sql);
        }
        return 0;
    }

    static inline StatementPlans* current = nullptr;
    std::set<std::pair<sqlite3*, std::string>> sent_;
};

} // namespace velcro::test

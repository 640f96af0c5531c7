#include "tsql/catalogue/UniqueKey.h"

#include "tsql/catalogue/Catalogue.h"
#include "tsql/catalogue/SqliteHandle.h"
#include "tsql/values/Collation.h"

#include <memory>
#include <vector>

namespace velcro::sql::tsql {

namespace {

// SQLite names the columns, or for an index with expressions the index, as "index 'T.I'".
constexpr std::string_view namedIndex = "index '";

struct BrokenKey
{
    std::string_view columns; // as SQLite lists them
    const TableDef* table = nullptr;
    const IndexDef* index = nullptr; // none: the identity column
};

std::string listedColumns(const TableDef& table, const IndexDef& index) {
    std::string listed;
    for (const auto& key : index.keys) {
        listed +=
            (listed.empty() ? "" : ", ") + table.name + "." + table.columnById(key.columnId)->name;
    }
    return listed;
}

BrokenKey brokenKey(std::string_view sqliteText, const Catalogue& catalogue) {
    const auto colon = sqliteText.find(": ");
    BrokenKey broken{sqliteText.substr(colon == std::string_view::npos ? 0 : colon + 2)};
    const auto inner = broken.columns.starts_with(namedIndex) ? namedIndex.size() : 0;
    broken.table = catalogue.table(broken.columns.substr(inner, broken.columns.find('.') - inner));
    if (broken.table == nullptr) {
        return broken;
    }
    for (const auto& index : broken.table->indexes) {
        const std::string nulls =
            std::string(namedIndex) + nullsIndexName(*broken.table, index) + "'";
        if (index.unique && (sameName(listedColumns(*broken.table, index), broken.columns) ||
                             sameName(nulls, broken.columns))) {
            broken.index = &index;
            break;
        }
    }
    return broken;
}

/// The arguments of 2601 or 2627 before the value.
std::vector<std::string> words(const BrokenKey& broken) {
    if (broken.table == nullptr) {
        return {"2627", "UNIQUE KEY", std::string(broken.columns), ""};
    }
    if (broken.index != nullptr && !broken.index->isConstraint()) {
        return {"2601", broken.table->name, broken.index->name};
    }
    const bool primary = broken.index == nullptr || broken.index->primaryKey;
    return {"2627", primary ? "PRIMARY KEY" : "UNIQUE KEY",
            broken.index != nullptr ? broken.index->name : std::string(broken.columns),
            broken.table->name};
}

Fault faultOf(const std::vector<std::string>& said) {
    return said.front() == "2601" ? Fault(serverMessage(2601, {said[1], said[2]}))
                                  : Fault(serverMessage(2627, {said[1], said[2], said[3]}));
}

std::string quoted(std::string_view text) {
    std::string result = "'";
    for (const char c : text) {
        result.append(c == '\'' ? 2 : 1, c);
    }
    return result + "'";
}

/// Raises the fault with the value of the row that stands in the way.
std::string triggerText(const BrokenKey& broken, const std::vector<std::string>& said) {
    std::string raise = "ts_raise(" + said.front();
    for (std::size_t i = 1; i < said.size(); ++i) {
        raise += ", " + quoted(said[i]);
    }
    std::vector<std::string> columns;
    if (broken.index == nullptr) {
        columns.push_back(broken.table->identityColumn()->name);
    } else {
        for (const auto& key : broken.index->keys) {
            columns.push_back(broken.table->columnById(key.columnId)->name);
        }
    }
    std::string value;
    for (const auto& column : columns) {
        value += (value.empty() ? "" : " || ', ' || ") + ("ifnull(OLD." + quoteName(column)) +
                 ", '<NULL>')";
    }
    return "CREATE TEMP TRIGGER \"sys$duplicate\" BEFORE DELETE ON main." +
           quoteName(broken.table->name) + " BEGIN SELECT " + raise +
           ", ' The duplicate key value is (' || " + value + " || ').'); END";
}

/// The statement in the form that deletes what stands in its way; blank where that is not known.
std::string replacing(sqlite3_stmt* failed) {
    const std::unique_ptr<char, decltype(&sqlite3_free)> sent(sqlite3_expanded_sql(failed),
                                                              sqlite3_free);
    std::string text = sent ? sent.get() : "";
    for (const std::string_view verb : {"INSERT", "UPDATE"}) {
        const auto at = text.find(std::string(verb) + (verb == "INSERT" ? " INTO \"" : " \""));
        if (at != std::string::npos) {
            return text.insert(at + verb.size(), " OR REPLACE");
        }
    }
    return {};
}

/// A failure here only leaves the value unsaid.
void runQuietly(sqlite3* database, const std::string& text) {
    sqlite3_exec(database, text.c_str(), nullptr, nullptr, nullptr);
}

void runAgain(sqlite3_stmt* failed, const std::string& trigger) {
    sqlite3* database = sqlite3_db_handle(failed);
    const std::string again = replacing(failed);
    if (again.empty()) {
        return;
    }
    runQuietly(database, "PRAGMA recursive_triggers = ON"); // REPLACE runs triggers only then
    runQuietly(database, "SAVEPOINT \"sys$duplicate\"");
    runQuietly(database, trigger);
    runQuietly(database, again);
    runQuietly(database, "ROLLBACK TO \"sys$duplicate\"");
    runQuietly(database, "RELEASE \"sys$duplicate\"");
    runQuietly(database, "PRAGMA recursive_triggers = OFF");
}

} // namespace

Fault uniqueFault(std::string_view sqliteText, const Catalogue& catalogue, sqlite3_stmt* failed,
                  FaultSlot* slot) {
    const std::string kept(sqliteText); // SQLite's own buffer, which the next statement overwrites
    const BrokenKey broken = brokenKey(kept, catalogue);
    const auto said = words(broken);
    const bool known = broken.table != nullptr &&
                       (broken.index != nullptr || broken.table->identityColumn() != nullptr);
    if (failed != nullptr && known) {
        runAgain(failed, triggerText(broken, said));
        if (auto fault = slot->takeFault(); fault && fault->number() == std::stoi(said.front())) {
            return *fault;
        }
    }
    return faultOf(said);
}

} // namespace velcro::sql::tsql

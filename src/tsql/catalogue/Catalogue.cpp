#include "tsql/catalogue/Catalogue.h"

#include "tsql/catalogue/CatalogueTables.h"
#include "tsql/catalogue/SqliteQuery.h"
#include "tsql/values/Collation.h"

#include <algorithm>

namespace velcro::sql::tsql {

namespace {

template <class Items, class Test>
auto findIn(const Items& items, Test test) -> decltype(&items[0]) {
    const auto found = std::find_if(items.begin(), items.end(), test);
    return found == items.end() ? nullptr : &*found;
}

// The server's own ids lie this far apart too; the step keeps them from looking like row numbers.
constexpr int firstObjectId = 245575913;
constexpr int objectIdStep = 16000057;
constexpr int highestObjectId = 2147483647;

} // namespace

bool IndexDef::covers(int columnId) const {
    const bool isKey = std::any_of(keys.begin(), keys.end(),
                                   [&](const KeyColumn& key) { return key.columnId == columnId; });
    return isKey || std::find(included.begin(), included.end(), columnId) != included.end();
}

const ColumnDef* TableDef::column(std::string_view wanted) const {
    return findIn(columns, [&](const ColumnDef& c) { return sameName(c.name, wanted); });
}

const ColumnDef* TableDef::columnById(int wanted) const {
    return findIn(columns, [&](const ColumnDef& c) { return c.id == wanted; });
}

const ColumnDef* TableDef::identityColumn() const {
    return findIn(columns, [](const ColumnDef& c) { return c.identity.has_value(); });
}

const IndexDef* TableDef::index(std::string_view wanted) const {
    return findIn(indexes, [&](const IndexDef& i) { return sameName(i.name, wanted); });
}

const IndexDef* TableDef::primaryKey() const {
    return findIn(indexes, [](const IndexDef& i) { return i.primaryKey; });
}

Catalogue::Catalogue(sqlite3* database, std::string databaseName, bool readOnly)
    : database_(database)
    , databaseName_(std::move(databaseName)) {
    registerCollation(database);
    hasTables_ = hasTables();
    if (!hasTables_ && !readOnly) {
        createTables();
    }
    dataVersionQuery_ = std::make_unique<SqliteQuery>(database, "PRAGMA data_version");
    dataVersion_ = dataVersion();
    reload();
}

Catalogue::~Catalogue() = default;

bool Catalogue::hasTables() const {
    SqliteQuery query(database_, "SELECT 1 FROM sqlite_schema WHERE name = 'sys$version'");
    return query.step();
}

// Several may meet on a new file: the lock comes first, then the look whether there is work left.
void Catalogue::createTables() {
    runSqlite(database_, "BEGIN IMMEDIATE");
    try {
        if (!hasTables()) {
            runSqlite(database_, std::string(catalogueTables));
        }
        runSqlite(database_, "COMMIT");
    } catch (const Fault&) {
        sqlite3_exec(database_, "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
    hasTables_ = true;
}

std::int64_t Catalogue::dataVersion() {
    dataVersionQuery_->step();
    const std::int64_t version = dataVersionQuery_->integer(0);
    dataVersionQuery_->run();
    return version;
}

std::int64_t Catalogue::storedVersion() const {
    SqliteQuery query(database_, "SELECT version FROM \"sys$version\"");
    return query.step() ? query.integer(0) : 0;
}

bool Catalogue::refresh() {
    const std::int64_t now = dataVersion();
    if (now == dataVersion_) {
        return false;
    }
    dataVersion_ = now;
    if (!hasTables_) {
        hasTables_ = hasTables();
    }
    if (!hasTables_ || storedVersion() == stored_) {
        return false;
    }
    reload();
    return true;
}

void Catalogue::reload() {
    tables_.clear();
    routines_.clear();
    byName_.clear();
    objects_.clear();
    lastObjectId_ = 0;
    ++version_;
    if (hasTables_) {
        load();
    }
}

void Catalogue::addObject(int id, const std::string& name, std::string_view kind, int table) {
    byName_[foldText(name)] = id;
    objects_[id] = {name, std::string(kind), table};
    lastObjectId_ = std::max(lastObjectId_, id);
}

void Catalogue::addTableObjects(const TableDef& table) {
    addObject(table.id, table.name, table.isView ? "V" : "U");
    for (const auto& column : table.columns) {
        if (column.defaultValue) {
            addObject(column.defaultValue->id, column.defaultValue->name, "D", table.id);
        }
    }
    for (const auto& index : table.indexes) {
        if (index.isConstraint()) {
            addObject(index.constraintId, index.name, index.primaryKey ? "PK" : "UQ", table.id);
        }
    }
}

void Catalogue::forgetObjects(const TableDef& table) {
    std::erase_if(objects_, [&](const auto& entry) {
        const bool own = entry.first == table.id || entry.second.table == table.id;
        if (own) {
            byName_.erase(foldText(entry.second.name));
        }
        return own;
    });
}

int Catalogue::objectId(std::string_view name) const {
    const auto found = byName_.find(foldText(name));
    return found == byName_.end() ? 0 : found->second;
}

std::string Catalogue::objectName(int id) const {
    const auto found = objects_.find(id);
    return found == objects_.end() ? std::string() : found->second.name;
}

std::string_view Catalogue::objectKind(int id) const {
    const auto found = objects_.find(id);
    return found == objects_.end() ? std::string_view() : found->second.kind;
}

const TableDef* Catalogue::tableById(int id) const {
    const auto found = tables_.find(id);
    return found == tables_.end() ? nullptr : found->second.get();
}

const TableDef* Catalogue::table(std::string_view name) const {
    return tableById(objectId(name));
}

const TableDef* Catalogue::tableOfConstraint(std::string_view name) const {
    const auto found = objects_.find(objectId(name));
    return found == objects_.end() ? nullptr : tableById(found->second.table);
}

const RoutineDef* Catalogue::procedure(std::string_view name) const {
    const int id = objectId(name);
    return objectKind(id) == "P" ? &routines_.at(id) : nullptr;
}

const RoutineDef* Catalogue::view(std::string_view name) const {
    const int id = objectId(name);
    return objectKind(id) == "V" ? &routines_.at(id) : nullptr;
}

int Catalogue::nextObjectId() {
    lastObjectId_ = lastObjectId_ == 0                               ? firstObjectId
                    : lastObjectId_ > highestObjectId - objectIdStep ? lastObjectId_ + 1
                                                                     : lastObjectId_ + objectIdStep;
    return lastObjectId_;
}

void Catalogue::changed() {
    changed_ = true;
    SqliteQuery(database_, "UPDATE \"sys$version\" SET version = version + 1").run();
    const std::int64_t expected = stored_ + 1;
    stored_ = storedVersion();
    ++version_;
    if (stored_ !=
        expected) { // another connection was quicker, and what was checked is out of date
        raise(1205, {"51"});
    }
}

void Catalogue::putTable(TableDef table) {
    const auto* before = tableById(table.id);
    writeObjects(table, before);
    writeColumns(table, before);
    if (!before || before->indexes != table.indexes) {
        writeIndexes(table);
    }
    if (before) {
        forgetObjects(*before);
    }
    addTableObjects(table);
    const int id = table.id;
    tables_[id] = std::make_unique<TableDef>(std::move(table));
    changed();
}

void Catalogue::removeTable(int id) {
    for (const std::string name : {"columns", "indexes", "index_columns"}) {
        SqliteQuery(database_, "DELETE FROM \"sys$" + name + "\" WHERE object_id = ?")
            .bind(std::int64_t{id})
            .run();
    }
    SqliteQuery(database_, "DELETE FROM \"sys$objects\" WHERE object_id = ? OR parent = ?")
        .bind(std::int64_t{id})
        .bind(std::int64_t{id})
        .run();
    forgetObjects(*tableById(id));
    tables_.erase(id);
    routines_.erase(id);
    changed();
}

void Catalogue::putRoutine(std::string_view kind, RoutineDef routine) {
    writeObject(routine.id, routine.name, kind, 0, routine.text);
    addObject(routine.id, routine.name, kind);
    routines_[routine.id] = std::move(routine);
    changed();
}

void Catalogue::removeRoutine(int id) {
    SqliteQuery(database_, "DELETE FROM \"sys$objects\" WHERE object_id = ?")
        .bind(std::int64_t{id})
        .run();
    byName_.erase(foldText(objectName(id)));
    objects_.erase(id);
    routines_.erase(id);
    changed();
}

bool isHiddenTable(std::string_view name) {
    return lowerText(name.substr(0, 4)) == "sys$" || lowerText(name.substr(0, 7)) == "sqlite_";
}

} // namespace velcro::sql::tsql

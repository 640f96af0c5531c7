// Keys, defaults and indexes; procedures and views.
#include "tsql/catalogue/Ddl.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>

namespace velcro::sql::tsql {

namespace {

ColumnDef& columnNamed(TableDef& table, std::string_view name) {
    return *std::find_if(table.columns.begin(), table.columns.end(),
                         [&](const ColumnDef& column) { return sameName(column.name, name); });
}

ColumnDef* columnWithDefault(TableDef& table, std::string_view constraint) {
    const auto found =
        std::find_if(table.columns.begin(), table.columns.end(), [&](const ColumnDef& column) {
            return column.defaultValue && sameName(column.defaultValue->name, constraint);
        });
    return found == table.columns.end() ? nullptr : &*found;
}

} // namespace

void Ddl::addKey(std::string_view name, const KeySpec& key) {
    TableDef table = tableForAlter(name);
    IndexDef index = keyFrom(table, key);
    if (key.primaryKey) {
        for (const auto& part : index.keys) {
            if (table.columnById(part.columnId)->nullable) {
                raise(8111, {table.name});
            }
        }
    }
    addIndex(table, std::move(index));
    catalogue_.putTable(std::move(table));
}

void Ddl::addDefault(std::string_view name, std::string_view columnName, const DefaultSpec& value) {
    TableDef table = tableForAlter(name);
    if (!table.column(columnName)) {
        raise(1752, {columnName, table.name});
    }
    ColumnDef& column = columnNamed(table, columnName);
    if (column.defaultValue) {
        raise(1781);
    }
    const DefaultDef made = defaultFrom(table, column, value);
    writeValues(table, column);
    column.defaultValue = made;
    rewriteSchema(table);
    catalogue_.putTable(std::move(table));
}

void Ddl::dropConstraint(std::string_view tableName, std::string_view name, bool ifExists) {
    TableDef table = tableForAlter(tableName);
    if (auto* column = columnWithDefault(table, name)) {
        writeValues(table, *column);
        column->defaultValue.reset();
        rewriteSchema(table);
        catalogue_.putTable(std::move(table));
        return;
    }
    const auto* index = table.index(name);
    if (index && index->isConstraint()) {
        removeIndex(table, *index);
        catalogue_.putTable(std::move(table));
        return;
    }
    if (catalogue_.tableOfConstraint(name)) {
        raise(3733, {name, table.name});
    }
    if (!ifExists) {
        raise(3728, {name});
    }
}

void Ddl::removeIndex(TableDef& table, const IndexDef& index) {
    if (!isIdentityKey(table, index)) {
        run("DROP INDEX " + quoteName(sqliteIndexName(table, index)));
        run("DROP INDEX IF EXISTS " + quoteName(nullsIndexName(table, index)));
    }
    const int id = index.id;
    std::erase_if(table.indexes, [&](const IndexDef& other) { return other.id == id; });
}

void Ddl::createIndex(std::string_view name, const IndexSpec& spec) {
    const auto* found = catalogue_.table(name);
    if (!found || found->isView) {
        raise(1088, {name});
    }
    TableDef table = *found;
    const auto* existing = table.index(spec.name);
    if (existing && (!spec.dropExisting || existing->isConstraint())) {
        raise(1913, {spec.name, table.name});
    }
    if (existing) {
        removeIndex(table, *existing);
    }
    if (const auto* clustered = spec.clustered ? clusteredIndex(table) : nullptr) {
        raise(1902, {table.name, clustered->name});
    }
    IndexDef index;
    index.name = spec.name;
    index.unique = spec.unique;
    index.clustered = spec.clustered;
    index.keys = keyColumns(table, spec.name, spec.columns);
    for (const auto& included : spec.included) {
        const auto* column = table.column(included);
        if (!column) {
            raise(1911, {included});
        }
        if (index.covers(column->id)) {
            raise(1909, {column->name});
        }
        index.included.push_back(column->id);
    }
    addIndex(table, std::move(index));
    catalogue_.putTable(std::move(table));
}

void Ddl::dropIndex(std::string_view tableName, std::string_view name, bool ifExists) {
    const auto* found = catalogue_.table(tableName);
    const auto* index = found ? found->index(name) : nullptr;
    const std::string fullName = std::string(tableName) + "." + std::string(name);
    if (!index && ifExists) {
        return;
    }
    if (!index) {
        raise(3701, {"index", fullName});
    }
    if (index->isConstraint()) {
        raise(3723, {fullName, index->primaryKey ? "PRIMARY KEY" : "UNIQUE KEY"});
    }
    TableDef table = *found;
    removeIndex(table, *table.index(name));
    catalogue_.putTable(std::move(table));
}

void Ddl::createProcedure(std::string_view name, std::string text, bool orAlter) {
    const auto* existing = catalogue_.procedure(name);
    if (!existing || !orAlter) {
        requireFreeName(name);
    }
    const int id = existing ? existing->id : catalogue_.nextObjectId();
    catalogue_.putRoutine("P", {id, std::string(name), std::move(text)});
}

void Ddl::dropProcedure(std::string_view name, bool ifExists) {
    const auto* procedure = catalogue_.procedure(name);
    if (!procedure && ifExists) {
        return;
    }
    if (!procedure) {
        raise(3701, {"procedure", name});
    }
    catalogue_.removeRoutine(procedure->id);
}

void Ddl::createView(std::string_view name, std::string text, std::string_view sqlite,
                     const std::vector<ColumnSpec>& columns) {
    requireFreeName(name);
    TableDef view;
    view.id = catalogue_.nextObjectId();
    view.name = std::string(name);
    view.isView = true;
    for (const auto& spec : columns) {
        view.columns.push_back(columnFrom(view, spec));
    }
    run("CREATE VIEW " + quoteName(name) + " AS " + std::string(sqlite));
    catalogue_.putRoutine("V", {view.id, view.name, std::move(text)});
    catalogue_.putTable(std::move(view));
}

void Ddl::dropView(std::string_view name, bool ifExists) {
    const auto* view = catalogue_.view(name);
    if (!view && ifExists) {
        return;
    }
    if (!view) {
        raise(3701, {"view", name});
    }
    run("DROP VIEW " + quoteName(view->name));
    catalogue_.removeTable(view->id);
}

} // namespace velcro::sql::tsql

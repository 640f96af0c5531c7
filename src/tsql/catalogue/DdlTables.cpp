// CREATE, DROP and TRUNCATE TABLE, and what all schema changes share.
#include "tsql/catalogue/Ddl.h"
#include "tsql/catalogue/FaultSlot.h"
#include "tsql/catalogue/SqliteQuery.h"
#include "tsql/values/Collation.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace velcro::sql::tsql {

namespace {

// DF__CRORepMst__Statu__0EA330E9: kind, nine and five characters of the names, the id.
std::string serverMadeName(std::string_view kind, std::string_view table, std::string_view column,
                           int id) {
    std::array<char, 12> hex{};
    std::snprintf(hex.data(), hex.size(), "%08X", static_cast<unsigned>(id));
    std::string name(kind);
    name += "__" + std::string(table.substr(0, 9)) + "__";
    if (!column.empty()) {
        name += std::string(column.substr(0, 5)) + "__";
    }
    return name + hex.data();
}

// Where the bracket that the text begins with is closed; 0 when it begins with none.
std::size_t closingBracket(std::string_view text) {
    int depth = 0;
    bool quoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        quoted = quoted != (text[i] == '\'');
        if (!quoted && text[i] == '(') {
            ++depth;
        } else if (!quoted && text[i] == ')') {
            --depth;
        }
        if (depth == 0) {
            return i;
        }
    }
    return 0;
}

// As the server keeps a default: ('x'), ((0)), (getdate()), whatever brackets were written.
std::string bracketed(std::string_view text) {
    const auto trim = [&] {
        while (!text.empty() && text.front() == ' ') {
            text.remove_prefix(1);
        }
        while (!text.empty() && text.back() == ' ') {
            text.remove_suffix(1);
        }
    };
    trim();
    while (text.size() > 1 && closingBracket(text) == text.size() - 1) {
        text = text.substr(1, text.size() - 2);
        trim();
    }
    const bool number = text.find_first_not_of("0123456789.+-") == std::string_view::npos;
    return (number ? "((" : "(") + std::string(text) + (number ? "))" : ")");
}

bool isKeyType(const Type& type) {
    return !type.isLongText() && type.id != TypeId::Image && type.length != maxLength;
}

bool canBeIdentity(const Type& type) {
    const bool whole = type.isDecimal() && type.scale == 0;
    return (type.isInteger() && type.id != TypeId::Bit) || whole;
}

} // namespace

void Ddl::run(const std::string& sqlite, std::initializer_list<std::string_view> values) const {
    try {
        SqliteQuery query(catalogue_.database(), sqlite);
        for (const auto value : values) {
            query.bind(value);
        }
        query.run();
    } catch (const Fault&) {
        if (const auto cause = faults_.takeFault()) {
            throw *cause;
        }
        throw;
    }
}

bool Ddl::hasRows(const TableDef& table) const {
    SqliteQuery query(catalogue_.database(), "SELECT 1 FROM " + quoteName(table.name) + " LIMIT 1");
    return query.step();
}

void Ddl::requireFreeName(std::string_view name) const {
    if (isHiddenTable(name)) {
        raiseUnsupported("an object whose name begins with sys$ or sqlite_");
    }
    if (catalogue_.objectId(name) != 0) {
        raise(2714, {name});
    }
}

TableDef Ddl::tableForAlter(std::string_view name) const {
    const auto* table = catalogue_.table(name);
    if (!table) {
        raise(4902, {name});
    }
    if (table->isView) {
        raise(4909, {name});
    }
    return *table;
}

DefaultDef Ddl::defaultFrom(const TableDef& table, const ColumnDef& column,
                            const DefaultSpec& spec) {
    if (column.identity) {
        raise(1754, {table.name, column.name});
    }
    if (!spec.name.empty()) {
        requireFreeName(spec.name);
    }
    const int id = catalogue_.nextObjectId();
    const bool systemNamed = spec.name.empty();
    return {id, systemNamed ? serverMadeName("DF", table.name, column.name, id) : spec.name,
            bracketed(spec.text), spec.sqlite, systemNamed};
}

ColumnDef Ddl::columnFrom(const TableDef& table, const ColumnSpec& spec) {
    if (table.column(spec.name)) {
        raise(2705, {spec.name, table.name});
    }
    ColumnDef column;
    for (const auto& other : table.columns) {
        column.id = std::max(column.id, other.id);
    }
    ++column.id;
    column.name = spec.name;
    column.type = spec.type;
    column.nullable = spec.nullable.value_or(!spec.identity);
    column.identity = spec.identity;
    if (spec.identity) {
        requireIdentity(table, column);
    }
    if (spec.defaultValue) {
        column.defaultValue = defaultFrom(table, column, *spec.defaultValue);
    }
    return column;
}

void Ddl::requireIdentity(const TableDef& table, const ColumnDef& column) const {
    if (!canBeIdentity(column.type)) {
        raise(2749, {column.name});
    }
    if (column.nullable) {
        raise(8147, {column.name, table.name});
    }
    if (table.identityColumn()) {
        raise(2744, {table.name});
    }
    if (column.identity->increment != 1) {
        raiseUnsupported("IDENTITY with an increment other than 1");
    }
}

IndexDef Ddl::keyFrom(TableDef& table, const KeySpec& key) {
    if (key.primaryKey && table.primaryKey()) {
        raise(1779, {table.name});
    }
    if (!key.name.empty()) {
        requireFreeName(key.name);
    }
    IndexDef index;
    index.constraintId = catalogue_.nextObjectId();
    index.name = key.name.empty() ? serverMadeName(key.primaryKey ? "PK" : "UQ", table.name, "",
                                                   index.constraintId)
                                  : key.name;
    index.primaryKey = key.primaryKey;
    index.unique = true;
    const bool free = !clusteredIndex(table);
    if (key.clustered.value_or(false) && !free) {
        raise(1902, {table.name, clusteredIndex(table)->name});
    }
    index.clustered = key.clustered.value_or(key.primaryKey && free);
    index.keys = keyColumns(table, index.name, key.columns);
    return index;
}

const IndexDef* Ddl::clusteredIndex(const TableDef& table) {
    const auto found = std::find_if(table.indexes.begin(), table.indexes.end(),
                                    [](const IndexDef& index) { return index.clustered; });
    return found == table.indexes.end() ? nullptr : &*found;
}

std::vector<KeyColumn> Ddl::keyColumns(const TableDef& table, std::string_view index,
                                       const std::vector<KeyColumnSpec>& columns) {
    std::vector<KeyColumn> keys;
    for (const auto& spec : columns) {
        const auto* column = table.column(spec.name);
        if (!column) {
            raise(1911, {spec.name});
        }
        if (!isKeyType(column->type)) {
            raise(1919, {column->name, table.name});
        }
        const bool again = std::any_of(keys.begin(), keys.end(), [&](const KeyColumn& key) {
            return key.columnId == column->id;
        });
        if (again) {
            raise(1909, {column->name});
        }
        keys.push_back({column->id, spec.descending});
    }
    if (keys.size() > 32) {
        raise(1904, {index, table.name, std::to_string(keys.size())});
    }
    return keys;
}

// The clustered index is number 1, the others follow.
void Ddl::addIndex(TableDef& table, IndexDef index) {
    int last = 1;
    for (const auto& other : table.indexes) {
        last = std::max(last, other.id);
    }
    index.id = index.clustered ? 1 : last + 1;
    makeIndex(table, index);
    const auto place = std::find_if(table.indexes.begin(), table.indexes.end(),
                                    [&](const IndexDef& other) { return other.id > index.id; });
    table.indexes.insert(place, std::move(index));
}

// A key on the identity column alone is the table's own order already.
bool Ddl::isIdentityKey(const TableDef& table, const IndexDef& index) {
    const auto* identity = table.identityColumn();
    return identity && index.unique && index.keys.size() == 1 &&
           index.keys[0].columnId == identity->id;
}

void Ddl::makeIndex(const TableDef& table, const IndexDef& index) {
    if (isIdentityKey(table, index)) {
        return;
    }
    std::string columns;
    for (const auto& key : index.keys) {
        columns += (columns.empty() ? "" : ", ") + quoteName(table.columnById(key.columnId)->name) +
                   (key.descending ? " DESC" : "");
    }
    if (index.unique) {
        requireDistinct(table, index);
    }
    run("CREATE " + std::string(index.unique ? "UNIQUE " : "") + "INDEX " +
        quoteName(sqliteIndexName(table, index)) + " ON " + quoteName(table.name) + "(" + columns +
        ")");
    if (index.unique && !index.primaryKey) {
        run("CREATE UNIQUE INDEX " + quoteName(nullsIndexName(table, index)) + " ON " +
            nullsIndexText(table, index));
    }
}

// SQLite would refuse them too, but not say which.
void Ddl::requireDistinct(const TableDef& table, const IndexDef& index) const {
    std::string columns;
    for (const auto& key : index.keys) {
        columns += (columns.empty() ? "" : ", ") + quoteName(table.columnById(key.columnId)->name);
    }
    SqliteQuery query(catalogue_.database(), "SELECT " + columns + " FROM " +
                                                 quoteName(table.name) + " GROUP BY " + columns +
                                                 " HAVING count(*) > 1 LIMIT 1");
    if (!query.step()) {
        return;
    }
    std::string value;
    for (int i = 0; i < static_cast<int>(index.keys.size()); ++i) {
        value += (i == 0 ? "" : ", ") + (query.isNull(i) ? "<NULL>" : query.text(i));
    }
    raise(1505, {table.name, index.name, value});
}

void Ddl::createTable(std::string_view name, const std::vector<ColumnSpec>& columns,
                      const std::vector<KeySpec>& keys) {
    requireFreeName(name);
    TableDef table;
    table.name = std::string(name);
    table.id = catalogue_.nextObjectId();
    for (const auto& spec : columns) {
        table.columns.push_back(columnFrom(table, spec));
    }
    if (std::count_if(keys.begin(), keys.end(), [](const KeySpec& k) { return k.primaryKey; }) >
        1) {
        raise(8110, {name});
    }
    std::vector<IndexDef> indexes;
    for (const auto& key : keys) {
        makeKeyColumnsNotNull(table, columns, key);
        indexes.push_back(keyFrom(table, key));
    }
    run(sqliteTableText(table, table.name));
    for (auto& index : indexes) {
        addIndex(table, std::move(index));
    }
    startIdentity(table);
    catalogue_.putTable(std::move(table));
}

// A key column that says nothing of NULL is NOT NULL; one that says NULL is refused.
void Ddl::makeKeyColumnsNotNull(TableDef& table, const std::vector<ColumnSpec>& specs,
                                const KeySpec& key) {
    if (!key.primaryKey) {
        return;
    }
    for (const auto& part : key.columns) {
        for (std::size_t i = 0; i < specs.size(); ++i) {
            if (!sameName(specs[i].name, part.name)) {
                continue;
            }
            if (specs[i].nullable.value_or(false)) {
                raise(8111, {table.name});
            }
            table.columns[i].nullable = false;
        }
    }
}

void Ddl::startIdentity(const TableDef& table) {
    const auto* column = table.identityColumn();
    if (column && column->identity->seed != 1) {
        SqliteQuery(catalogue_.database(), "DELETE FROM sqlite_sequence WHERE name = ?")
            .bind(std::string_view(table.name))
            .run();
        SqliteQuery(catalogue_.database(), "INSERT INTO sqlite_sequence VALUES (?, ?)")
            .bind(std::string_view(table.name))
            .bind(column->identity->seed - 1)
            .run();
    }
}

void Ddl::dropTable(std::string_view name, bool ifExists) {
    const auto* table = catalogue_.table(name);
    if (!table && ifExists) {
        return;
    }
    if (!table) {
        raise(3701, {"table", name});
    }
    if (table->isView) {
        raise(3705, {"TABLE", name, "view", "VIEW"});
    }
    run("DROP TABLE " + quoteName(table->name));
    catalogue_.removeTable(table->id);
}

void Ddl::truncateTable(std::string_view name) {
    const auto* table = catalogue_.table(name);
    if (!table) {
        raise(4701, {name});
    }
    run("DELETE FROM " + quoteName(table->name));
    if (table->identityColumn()) {
        SqliteQuery(catalogue_.database(), "DELETE FROM sqlite_sequence WHERE name = ?")
            .bind(std::string_view(table->name))
            .run();
        startIdentity(*table);
    }
}

} // namespace velcro::sql::tsql

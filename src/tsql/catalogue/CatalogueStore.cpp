// Reading the catalogue's tables into memory and writing what has changed.
#include "tsql/catalogue/Catalogue.h"
#include "tsql/catalogue/SqliteQuery.h"

#include <algorithm>

namespace velcro::sql::tsql {

namespace {

struct SystemType
{
    TypeId id;
    int systemId;
    int bytes;
    int precision;
    int scale;
};

// What sys.types says of each type; lengths, precisions and scales of the type itself go before.
constexpr SystemType systemTypes[] = {{TypeId::Image, 34, 16, 0, 0},
                                      {TypeId::Text, 35, 16, 0, 0},
                                      {TypeId::UniqueIdentifier, 36, 16, 0, 0},
                                      {TypeId::Date, 40, 3, 10, 0},
                                      {TypeId::Time, 41, 5, 16, 7},
                                      {TypeId::DateTime2, 42, 8, 27, 7},
                                      {TypeId::TinyInt, 48, 1, 3, 0},
                                      {TypeId::SmallInt, 52, 2, 5, 0},
                                      {TypeId::Int, 56, 4, 10, 0},
                                      {TypeId::SmallDateTime, 58, 4, 16, 0},
                                      {TypeId::Real, 59, 4, 24, 0},
                                      {TypeId::Money, 60, 8, 19, 4},
                                      {TypeId::DateTime, 61, 8, 23, 3},
                                      {TypeId::Float, 62, 8, 53, 0},
                                      {TypeId::SqlVariant, 98, 8016, 0, 0},
                                      {TypeId::NText, 99, 16, 0, 0},
                                      {TypeId::Bit, 104, 1, 1, 0},
                                      {TypeId::Decimal, 106, 17, 38, 38},
                                      {TypeId::Numeric, 108, 17, 38, 38},
                                      {TypeId::SmallMoney, 122, 4, 10, 4},
                                      {TypeId::BigInt, 127, 8, 19, 0},
                                      {TypeId::VarBinary, 165, 8000, 0, 0},
                                      {TypeId::VarChar, 167, 8000, 0, 0},
                                      {TypeId::Binary, 173, 8000, 0, 0},
                                      {TypeId::Char, 175, 8000, 0, 0},
                                      {TypeId::RowVersion, 189, 8, 0, 0},
                                      {TypeId::NVarChar, 231, 8000, 0, 0},
                                      {TypeId::NChar, 239, 8000, 0, 0}};

const SystemType& systemType(TypeId id) {
    const auto* found = std::find_if(std::begin(systemTypes), std::end(systemTypes),
                                     [&](const auto& row) { return row.id == id; });
    return found == std::end(systemTypes) ? systemTypes[0] : *found;
}

bool keepsScale(TypeId id) {
    return id == TypeId::Decimal || id == TypeId::Numeric || id == TypeId::Time ||
           id == TypeId::DateTime2;
}

Type typeOfRow(const SqliteQuery& row, int systemId, int length, int precision, int scale) {
    Type type;
    type.id = typeBySystemId(static_cast<int>(row.integer(systemId))).value_or(TypeId::Null);
    type.length = static_cast<std::int32_t>(row.integer(length));
    if (type.isDecimal()) {
        type.precision = static_cast<std::uint8_t>(row.integer(precision));
    }
    if (type.isDecimal() || keepsScale(type.id)) {
        type.scale = static_cast<std::uint8_t>(row.integer(scale));
    }
    return type;
}

ColumnDef columnOfRow(const SqliteQuery& row) {
    ColumnDef column;
    column.id = static_cast<int>(row.integer(1));
    column.name = row.text(2);
    column.type = typeOfRow(row, 3, 4, 5, 6);
    column.nullable = row.integer(7) != 0;
    if (!row.isNull(8)) {
        column.identity = IdentityDef{row.integer(8), row.integer(9)};
    }
    if (!row.isNull(10)) {
        column.defaultValue = DefaultDef{static_cast<int>(row.integer(10)), row.text(13),
                                         row.text(14), row.text(11), row.integer(12) != 0};
    }
    return column;
}

struct Constraint
{
    std::string name;
    std::string_view kind;
    std::string text;
    bool operator==(const Constraint&) const = default;
};

std::map<int, Constraint> constraintsOf(const TableDef& table) {
    std::map<int, Constraint> constraints;
    for (const auto& column : table.columns) {
        if (const auto& value = column.defaultValue) {
            constraints[value->id] = {value->name, "D", value->text};
        }
    }
    for (const auto& index : table.indexes) {
        if (index.isConstraint()) {
            constraints[index.constraintId] = {index.name, index.primaryKey ? "PK" : "UQ", {}};
        }
    }
    return constraints;
}

void bindColumn(SqliteQuery& query, const TableDef& table, std::size_t position) {
    const ColumnDef& column = table.columns[position];
    const auto& known = systemType(column.type.id);
    const bool scaled = keepsScale(column.type.id);
    query.bind(std::int64_t{table.id})
        .bind(static_cast<std::int64_t>(position + 1))
        .bind(std::int64_t{column.id})
        .bind(std::string_view(column.name))
        .bind(baseTypeName(column.type.id))
        .bind(std::int64_t{column.type.length})
        .bind(std::int64_t{known.systemId})
        .bind(std::int64_t{maxBytes(column.type)})
        .bind(std::int64_t{column.type.precision != 0 ? column.type.precision : known.precision})
        .bind(std::int64_t{scaled ? column.type.scale : known.scale})
        .bind(std::int64_t{column.nullable});
    if (column.identity) {
        query.bind(column.identity->seed).bind(column.identity->increment);
    } else {
        query.bindNull().bindNull();
    }
    if (const auto& value = column.defaultValue) {
        query.bind(std::int64_t{value->id})
            .bind(std::string_view(value->sqlite))
            .bind(std::int64_t{value->systemNamed});
    } else {
        query.bindNull().bindNull().bindNull();
    }
}

} // namespace

int systemTypeId(TypeId id) {
    return systemType(id).systemId;
}

std::optional<TypeId> typeBySystemId(int id) {
    const auto* found = std::find_if(std::begin(systemTypes), std::end(systemTypes),
                                     [&](const auto& row) { return row.systemId == id; });
    return found == std::end(systemTypes) ? std::nullopt : std::optional(found->id);
}

int maxBytes(const Type& type) {
    if (type.length != 0) {
        return type.isWide() && type.length > 0 ? type.length * 2 : type.length;
    }
    if (type.id == TypeId::Decimal || type.id == TypeId::Numeric) {
        return type.precision <= 9 ? 5 : type.precision <= 19 ? 9 : type.precision <= 28 ? 13 : 17;
    }
    return systemType(type.id).bytes;
}

void Catalogue::load() {
    stored_ = storedVersion();
    loadObjects();
    loadColumns();
    loadIndexes();
    for (const auto& [id, table] : tables_) {
        addTableObjects(*table);
    }
}

void Catalogue::loadObjects() {
    SqliteQuery row(database_, "SELECT object_id, name, type, definition"
                               "  FROM \"sys$objects\""
                               " WHERE type IN ('U', 'V', 'P')");
    while (row.step()) {
        const int id = static_cast<int>(row.integer(0));
        const std::string kind = row.text(2);
        addObject(id, row.text(1), kind);
        if (kind != "P") {
            tables_[id] =
                std::make_unique<TableDef>(TableDef{id, row.text(1), kind == "V", {}, {}});
        }
        if (kind != "U") {
            routines_[id] = {id, row.text(1), row.text(3)};
        }
    }
}

void Catalogue::loadColumns() {
    SqliteQuery row(database_, "SELECT c.object_id, column_id, c.name, system_type_id, length,"
                               "       precision, scale, nullable, seed, increment,"
                               "       default_id, default_sqlite, default_system_named,"
                               "       d.name, d.definition"
                               "  FROM \"sys$columns\" c"
                               "  LEFT JOIN \"sys$objects\" d ON d.object_id = c.default_id"
                               " ORDER BY c.object_id, position");
    while (row.step()) {
        const auto table = tables_.find(static_cast<int>(row.integer(0)));
        if (table != tables_.end()) {
            table->second->columns.push_back(columnOfRow(row));
        }
    }
}

void Catalogue::loadIndexes() {
    SqliteQuery row(database_,
                    "SELECT i.object_id, i.index_id, name, constraint_id, is_primary_key,"
                    "       is_unique, is_clustered, column_id, is_descending, is_included"
                    "  FROM \"sys$indexes\" i"
                    "  JOIN \"sys$index_columns\" c"
                    "    ON c.object_id = i.object_id"
                    "   AND c.index_id = i.index_id"
                    " ORDER BY i.object_id, i.index_id, index_column_id");
    while (row.step()) {
        const auto table = tables_.find(static_cast<int>(row.integer(0)));
        if (table == tables_.end()) {
            continue;
        }
        auto& indexes = table->second->indexes;
        const int id = static_cast<int>(row.integer(1));
        if (indexes.empty() || indexes.back().id != id) {
            indexes.push_back({id,
                               static_cast<int>(row.integer(3)),
                               row.text(2),
                               row.integer(4) != 0,
                               row.integer(5) != 0,
                               row.integer(6) != 0,
                               {},
                               {}});
        }
        const int column = static_cast<int>(row.integer(7));
        if (row.integer(9) != 0) {
            indexes.back().included.push_back(column);
        } else {
            indexes.back().keys.push_back({column, row.integer(8) != 0});
        }
    }
}

void Catalogue::writeObject(int id, std::string_view name, std::string_view kind, int parent,
                            std::string_view definition) {
    SqliteQuery query(
        database_, "INSERT INTO \"sys$objects\""
                   " VALUES (?1, ?2, ?3, ?4, ?5, strftime('%Y-%m-%d %H:%M:%f', 'now', 'localtime'),"
                   "         strftime('%Y-%m-%d %H:%M:%f', 'now', 'localtime'))"
                   "     ON CONFLICT (object_id) DO UPDATE"
                   "    SET name = ?2, type = ?3, parent = ?4, definition = ?5,"
                   "        modified = excluded.modified");
    query.bind(std::int64_t{id}).bind(name).bind(kind).bind(std::int64_t{parent});
    definition.empty() ? query.bindNull() : query.bind(definition);
    query.run();
}

void Catalogue::writeObjects(const TableDef& table, const TableDef* before) {
    const auto now = constraintsOf(table);
    const auto then = before ? constraintsOf(*before) : std::map<int, Constraint>();
    for (const auto& [id, constraint] : then) {
        if (!now.contains(id)) {
            SqliteQuery(database_, "DELETE FROM \"sys$objects\" WHERE object_id = ?")
                .bind(std::int64_t{id})
                .run();
        }
    }
    const auto definition = table.isView ? routines_.at(table.id).text : std::string();
    writeObject(table.id, table.name, table.isView ? "V" : "U", 0, definition);
    for (const auto& [id, constraint] : now) {
        const auto old = then.find(id);
        if (old == then.end() || old->second != constraint) {
            writeObject(id, constraint.name, constraint.kind, table.id, constraint.text);
        }
    }
}

void Catalogue::writeColumns(const TableDef& table, const TableDef* before) {
    SqliteQuery query(database_, "INSERT OR REPLACE INTO \"sys$columns\""
                                 " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const bool known =
            before && i < before->columns.size() && before->columns[i] == table.columns[i];
        if (!known) {
            bindColumn(query, table, i);
            query.run();
        }
    }
    SqliteQuery(database_, "DELETE FROM \"sys$columns\" WHERE object_id = ? AND position > ?")
        .bind(std::int64_t{table.id})
        .bind(static_cast<std::int64_t>(table.columns.size()))
        .run();
}

void Catalogue::writeIndexes(const TableDef& table) {
    for (const std::string name : {"indexes", "index_columns"}) {
        SqliteQuery(database_, "DELETE FROM \"sys$" + name + "\" WHERE object_id = ?")
            .bind(std::int64_t{table.id})
            .run();
    }
    SqliteQuery head(database_, "INSERT INTO \"sys$indexes\" VALUES (?, ?, ?, ?, ?, ?, ?)");
    SqliteQuery part(database_, "INSERT INTO \"sys$index_columns\" VALUES (?, ?, ?, ?, ?, ?, ?)");
    for (const auto& index : table.indexes) {
        head.bind(std::int64_t{table.id})
            .bind(std::int64_t{index.id})
            .bind(std::string_view(index.name))
            .bind(std::int64_t{index.constraintId})
            .bind(std::int64_t{index.primaryKey})
            .bind(std::int64_t{index.unique})
            .bind(std::int64_t{index.clustered})
            .run();
        std::int64_t ordinal = 0;
        const auto write = [&](int column, bool descending, bool included) {
            ++ordinal;
            part.bind(std::int64_t{table.id})
                .bind(std::int64_t{index.id})
                .bind(ordinal)
                .bind(std::int64_t{column})
                .bind(included ? 0 : ordinal)
                .bind(std::int64_t{descending})
                .bind(std::int64_t{included})
                .run();
        };
        for (const auto& key : index.keys) {
            write(key.columnId, key.descending, false);
        }
        for (const int column : index.included) {
            write(column, false, true);
        }
    }
}

std::optional<std::int64_t> lastIdentity(sqlite3* database, const TableDef& table) {
    SqliteQuery query(database, "SELECT seq FROM sqlite_sequence WHERE name = ?");
    query.bind(std::string_view(table.name));
    return query.step() ? std::optional(query.integer(0)) : std::nullopt;
}

} // namespace velcro::sql::tsql

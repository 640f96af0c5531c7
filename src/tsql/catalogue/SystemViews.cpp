// The server's catalogue views as SELECTs over our own tables: INFORMATION_SCHEMA, sys, and the older
// system tables that every server still answers.
#include "tsql/catalogue/Catalogue.h"
#include "tsql/values/Collation.h"

#include <algorithm>
#include <sstream>

namespace velcro::sql::tsql {

namespace {

/// A view as it is written here: "name:type" of each column, then the expression, one a line.
/// Types: i int, b bit, t text, d datetime, v sql_variant.
struct Description
{
    std::string_view schema;
    std::string_view name;
    std::string_view columns;
    std::string_view rest; // FROM and what follows
};

constexpr std::string_view objectColumns = R"(
name:t            o.name
object_id:i       o.object_id
principal_id:i    NULL
schema_id:i       1
parent_object_id:i o.parent
type:t            o.type
type_desc:t       CASE o.type WHEN 'U' THEN 'USER_TABLE' WHEN 'V' THEN 'VIEW' WHEN 'P' THEN 'SQL_STORED_PROCEDURE' WHEN 'D' THEN 'DEFAULT_CONSTRAINT' WHEN 'PK' THEN 'PRIMARY_KEY_CONSTRAINT' ELSE 'UNIQUE_CONSTRAINT' END
create_date:d     o.created
modify_date:d     o.modified
is_ms_shipped:b   0
)";

constexpr Description descriptions[] = {
    {"INFORMATION_SCHEMA", "TABLES", R"(
TABLE_CATALOG:t   ts_db_name()
TABLE_SCHEMA:t    'dbo'
TABLE_NAME:t      o.name
TABLE_TYPE:t      CASE o.type WHEN 'U' THEN 'BASE TABLE' ELSE 'VIEW' END
)",
     "FROM \"sys$objects\" o WHERE o.type IN ('U', 'V')"},

    {"INFORMATION_SCHEMA", "COLUMNS", R"(
TABLE_CATALOG:t   ts_db_name()
TABLE_SCHEMA:t    'dbo'
TABLE_NAME:t      o.name
COLUMN_NAME:t     c.name
ORDINAL_POSITION:i c.column_id
COLUMN_DEFAULT:t  d.definition
IS_NULLABLE:t     CASE c.nullable WHEN 0 THEN 'NO' ELSE 'YES' END
DATA_TYPE:t       c.type
CHARACTER_MAXIMUM_LENGTH:i CASE c.type WHEN 'ntext' THEN 1073741823 WHEN 'text' THEN 2147483647 WHEN 'image' THEN 2147483647 WHEN 'sql_variant' THEN 0 ELSE nullif(c.length, 0) END
CHARACTER_OCTET_LENGTH:i CASE c.type WHEN 'ntext' THEN 2147483646 WHEN 'text' THEN 2147483647 WHEN 'image' THEN 2147483647 ELSE CASE WHEN c.length <> 0 THEN c.max_length END END
NUMERIC_PRECISION:i CASE WHEN c.type LIKE '%int' OR c.type IN ('float', 'real', 'money', 'smallmoney', 'decimal', 'numeric') THEN c.precision END
NUMERIC_PRECISION_RADIX:i CASE WHEN c.type IN ('float', 'real') THEN 2 WHEN c.type LIKE '%int' OR c.type IN ('money', 'smallmoney', 'decimal', 'numeric') THEN 10 END
NUMERIC_SCALE:i   CASE WHEN c.type LIKE '%int' OR c.type IN ('money', 'smallmoney', 'decimal', 'numeric') THEN c.scale END
DATETIME_PRECISION:i CASE WHEN c.type IN ('datetime', 'datetime2', 'time') THEN c.scale WHEN c.type IN ('date', 'smalldatetime') THEN 0 END
CHARACTER_SET_NAME:t CASE WHEN c.type IN ('nchar', 'nvarchar', 'ntext') THEN 'UNICODE' WHEN c.type IN ('char', 'varchar', 'text') THEN 'iso_1' END
COLLATION_NAME:t  CASE WHEN c.type LIKE '%char' OR c.type LIKE '%text' THEN 'SQL_Latin1_General_CP1_CI_AS' END
)",
     "FROM \"sys$columns\" c JOIN \"sys$objects\" o ON o.object_id = c.object_id"
     " LEFT JOIN \"sys$objects\" d ON d.object_id = c.default_id"},

    {"INFORMATION_SCHEMA", "VIEWS", R"(
TABLE_CATALOG:t   ts_db_name()
TABLE_SCHEMA:t    'dbo'
TABLE_NAME:t      o.name
VIEW_DEFINITION:t o.definition
)",
     "FROM \"sys$objects\" o WHERE o.type = 'V'"},

    {"INFORMATION_SCHEMA", "ROUTINES", R"(
ROUTINE_CATALOG:t ts_db_name()
ROUTINE_SCHEMA:t  'dbo'
ROUTINE_NAME:t    o.name
ROUTINE_TYPE:t    'PROCEDURE'
ROUTINE_DEFINITION:t o.definition
CREATED:d         o.created
LAST_ALTERED:d    o.modified
)",
     "FROM \"sys$objects\" o WHERE o.type = 'P'"},

    {"INFORMATION_SCHEMA", "TABLE_CONSTRAINTS", R"(
CONSTRAINT_CATALOG:t ts_db_name()
CONSTRAINT_SCHEMA:t 'dbo'
CONSTRAINT_NAME:t o.name
TABLE_CATALOG:t   ts_db_name()
TABLE_SCHEMA:t    'dbo'
TABLE_NAME:t      p.name
CONSTRAINT_TYPE:t CASE o.type WHEN 'PK' THEN 'PRIMARY KEY' ELSE 'UNIQUE' END
)",
     "FROM \"sys$objects\" o JOIN \"sys$objects\" p ON p.object_id = o.parent"
     " WHERE o.type IN ('PK', 'UQ')"},

    {"INFORMATION_SCHEMA", "KEY_COLUMN_USAGE", R"(
CONSTRAINT_CATALOG:t ts_db_name()
CONSTRAINT_SCHEMA:t 'dbo'
CONSTRAINT_NAME:t i.name
TABLE_CATALOG:t   ts_db_name()
TABLE_SCHEMA:t    'dbo'
TABLE_NAME:t      o.name
COLUMN_NAME:t     c.name
ORDINAL_POSITION:i k.key_ordinal
)",
     "FROM \"sys$indexes\" i JOIN \"sys$index_columns\" k"
     "    ON k.object_id = i.object_id AND k.index_id = i.index_id"
     "  JOIN \"sys$objects\" o ON o.object_id = i.object_id"
     "  JOIN \"sys$columns\" c ON c.object_id = i.object_id AND c.column_id = k.column_id"
     " WHERE i.constraint_id <> 0"},

    {"sys", "objects", objectColumns, "FROM \"sys$objects\" o"},
    {"sys", "all_objects", objectColumns, "FROM \"sys$objects\" o"},
    {"sys", "tables", objectColumns, "FROM \"sys$objects\" o WHERE o.type = 'U'"},
    {"sys", "views", objectColumns, "FROM \"sys$objects\" o WHERE o.type = 'V'"},
    {"sys", "procedures", objectColumns, "FROM \"sys$objects\" o WHERE o.type = 'P'"},

    {"sys", "columns", R"(
object_id:i       c.object_id
name:t            c.name
column_id:i       c.column_id
system_type_id:i  c.system_type_id
user_type_id:i    c.system_type_id
max_length:i      c.max_length
precision:i       c.precision
scale:i           c.scale
collation_name:t  CASE WHEN c.type LIKE '%char' OR c.type LIKE '%text' THEN 'SQL_Latin1_General_CP1_CI_AS' END
is_nullable:b     c.nullable
is_identity:b     c.seed IS NOT NULL
is_computed:b     0
default_object_id:i coalesce(c.default_id, 0)
)",
     "FROM \"sys$columns\" c"},

    {"sys", "identity_columns", R"(
object_id:i       c.object_id
name:t            c.name
column_id:i       c.column_id
seed_value:v      c.seed
increment_value:v c.increment
last_value:v      ts_ident_current(ts_object_name(c.object_id))
)",
     "FROM \"sys$columns\" c WHERE c.seed IS NOT NULL"},

    {"sys", "indexes", R"(
object_id:i       i.object_id
name:t            i.name
index_id:i        i.index_id
type:i            CASE i.is_clustered WHEN 1 THEN 1 ELSE 2 END
type_desc:t       CASE i.is_clustered WHEN 1 THEN 'CLUSTERED' ELSE 'NONCLUSTERED' END
is_unique:b       i.is_unique
data_space_id:i   1
ignore_dup_key:b  0
is_primary_key:b  i.is_primary_key
is_unique_constraint:b i.constraint_id <> 0 AND i.is_primary_key = 0
fill_factor:i     0
is_padded:b       0
is_disabled:b     0
is_hypothetical:b 0
has_filter:b      0
)",
     "FROM \"sys$indexes\" i"},

    {"sys", "index_columns", R"(
object_id:i       k.object_id
index_id:i        k.index_id
index_column_id:i k.index_column_id
column_id:i       k.column_id
key_ordinal:i     k.key_ordinal
partition_ordinal:i 0
is_descending_key:b k.is_descending
is_included_column:b k.is_included
)",
     "FROM \"sys$index_columns\" k"},

    {"sys", "key_constraints", R"(
name:t            o.name
object_id:i       o.object_id
schema_id:i       1
parent_object_id:i o.parent
type:t            o.type
type_desc:t       CASE o.type WHEN 'PK' THEN 'PRIMARY_KEY_CONSTRAINT' ELSE 'UNIQUE_CONSTRAINT' END
unique_index_id:i i.index_id
is_system_named:b 0
)",
     "FROM \"sys$objects\" o JOIN \"sys$indexes\" i ON i.constraint_id = o.object_id"
     " WHERE o.type IN ('PK', 'UQ')"},

    {"sys", "default_constraints", R"(
name:t            o.name
object_id:i       o.object_id
schema_id:i       1
parent_object_id:i o.parent
type:t            o.type
type_desc:t       'DEFAULT_CONSTRAINT'
create_date:d     o.created
modify_date:d     o.modified
is_ms_shipped:b   0
parent_column_id:i c.column_id
definition:t      o.definition
is_system_named:b c.default_system_named
)",
     "FROM \"sys$objects\" o JOIN \"sys$columns\" c"
     "    ON c.object_id = o.parent AND c.default_id = o.object_id"
     " WHERE o.type = 'D'"},

    {"sys", "schemas", "\nname:t 'dbo'\nschema_id:i 1\nprincipal_id:i 1\n", ""},
    {"sys", "databases", "\nname:t ts_db_name()\ndatabase_id:i 5\n", ""},

    {"sys", "sql_modules", "\nobject_id:i o.object_id\ndefinition:t o.definition\n",
     "FROM \"sys$objects\" o WHERE o.type IN ('P', 'V')"},

    {"sys", "types", R"(
name:t            t.name
system_type_id:i  t.system_type_id
user_type_id:i    t.system_type_id
schema_id:i       4
max_length:i      t.max_length
is_user_defined:b 0
)",
     ""}, // FROM: see typesText()

    {"sys", "partitions", R"(
partition_id:i    o.object_id
object_id:i       o.object_id
index_id:i        coalesce(i.index_id, 0)
partition_number:i 1
rows:i            ts_row_count(o.name)
)",
     "FROM \"sys$objects\" o LEFT JOIN \"sys$indexes\" i ON i.object_id = o.object_id"
     " WHERE o.type = 'U'"},

    {"", "sysobjects", R"(
name:t            o.name
id:i              o.object_id
xtype:t           o.type
uid:i             1
info:i            (SELECT count(*) FROM "sys$columns" c WHERE c.object_id = o.object_id)
status:i          0
parent_obj:i      o.parent
crdate:d          o.created
refdate:d         o.created
type:t            CASE o.type WHEN 'PK' THEN 'K' WHEN 'UQ' THEN 'K' ELSE o.type END
)",
     "FROM \"sys$objects\" o"},

    {"", "syscolumns", R"(
name:t            c.name
id:i              c.object_id
xtype:i           c.system_type_id
typestat:i        0
xusertype:i       c.system_type_id
length:i          c.max_length
xprec:i           c.precision
xscale:i          c.scale
colid:i           c.column_id
cdefault:i        coalesce(c.default_id, 0)
colorder:i        c.column_id
prec:i            CASE WHEN c.length <> 0 THEN c.length ELSE c.precision END
scale:i           c.scale
iscomputed:i      0
isnullable:i      c.nullable
status:i          CASE WHEN c.seed IS NULL THEN 0 ELSE 128 END
)",
     "FROM \"sys$columns\" c"},

    {"", "sysindexes", R"(
id:i              i.object_id
status:i          i.is_unique * 2 + i.is_clustered * 16 + i.is_primary_key * 2048 + CASE WHEN i.constraint_id <> 0 AND i.is_primary_key = 0 THEN 4096 ELSE 0 END
indid:i           i.index_id
keycnt:i          (SELECT count(*) FROM "sys$index_columns" k WHERE k.object_id = i.object_id AND k.index_id = i.index_id AND k.is_included = 0)
name:t            i.name
rows:i            ts_row_count(ts_object_name(i.object_id))
)",
     "FROM \"sys$indexes\" i"},

    // status & 5 = 5 marks a default that belongs to a column; a key has 1 or 2 in those bits.
    {"", "sysconstraints", R"(
constid:i         o.object_id
id:i              o.parent
colid:i           coalesce(c.column_id, 0)
status:i          CASE o.type WHEN 'D' THEN 2069 WHEN 'PK' THEN 2593 ELSE 514 END
)",
     "FROM \"sys$objects\" o LEFT JOIN \"sys$columns\" c"
     "    ON c.object_id = o.parent AND c.default_id = o.object_id"
     " WHERE o.type IN ('D', 'PK', 'UQ')"},

    {"", "syscomments", R"(
id:i              o.object_id
number:i          CASE o.type WHEN 'P' THEN 1 ELSE 0 END
colid:i           1
status:i          0
text:t            o.definition
)",
     "FROM \"sys$objects\" o WHERE o.definition IS NOT NULL"},

    {"", "systypes", R"(
name:t            t.name
xtype:i           t.system_type_id
xusertype:i       t.system_type_id
length:i          t.max_length
)",
     ""},
};

// Every type that the server has, as rows.
std::string typesText() {
    std::string rows;
    for (int id = 1; id < 256; ++id) {
        if (const auto type = typeBySystemId(id)) {
            rows += rows.empty() ? "" : ", ";
            rows += "('" + std::string(baseTypeName(*type)) + "', " + std::to_string(id) + ", " +
                    std::to_string(maxBytes({*type})) + ")";
        }
    }
    return "FROM (SELECT column1 AS name, column2 AS system_type_id, column3 AS max_length"
           " FROM (VALUES " +
           rows + ")) t";
}

Type typeOfLetter(char letter) {
    switch (letter) {
    case 'i':
        return intType;
    case 'b':
        return bitType;
    case 'd':
        return dateTimeType;
    case 'v':
        return {TypeId::SqlVariant};
    default:
        return nvarcharType(4000);
    }
}

SystemView viewOf(const Description& description) {
    SystemView view{description.schema, description.name, {}, {}};
    std::istringstream lines{std::string(description.columns)};
    std::string list;
    for (std::string line; std::getline(lines, line);) {
        const auto colon = line.find(':');
        if (colon == std::string::npos) {
            continue;
        }
        const char letter = line[colon + 1];
        const std::string expression = line.substr(line.find_first_not_of(' ', colon + 2));
        const auto name = description.columns.substr(description.columns.find(line), colon);
        view.columns.emplace_back(name, typeOfLetter(letter));
        // Text that is no column of the file has no collation of its own.
        const std::string collated =
            letter == 't' ? " COLLATE " + std::string(collationName) : std::string();
        list += (list.empty() ? "" : ", ") + ("(" + expression + ")") + collated + " AS " +
                quoteName(name);
    }
    const bool types = description.name == "types" || description.name == "systypes";
    view.text = "SELECT " + list + " " + (types ? typesText() : std::string(description.rest));
    return view;
}

bool sameSchema(std::string_view wanted, std::string_view schema) {
    if (!schema.empty()) {
        return sameName(wanted, schema);
    }
    return wanted.empty() || sameName(wanted, "sys") || sameName(wanted, "dbo");
}

} // namespace

const SystemView* systemView(std::string_view schema, std::string_view name) {
    static const auto views = [] {
        std::vector<SystemView> made;
        for (const auto& description : descriptions) {
            made.push_back(viewOf(description));
        }
        return made;
    }();
    const auto found = std::find_if(views.begin(), views.end(), [&](const SystemView& view) {
        return sameName(view.name, name) && sameSchema(schema, view.schema);
    });
    return found == views.end() ? nullptr : &*found;
}

} // namespace velcro::sql::tsql

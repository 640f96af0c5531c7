// Functions that ask the catalogue and the session.
#include "tsql/catalogue/Catalogue.h"
#include "tsql/catalogue/SqliteQuery.h"
#include "tsql/functions/FunctionCall.h"
#include "tsql/values/Collation.h"

#include <array>
#include <cstdio>
#include <random>

namespace velcro::sql::tsql {

namespace {

const Catalogue& catalogueOf(const Call& call) {
    return call.host().catalogue();
}
const SessionFacts& factsOf(const Call& call) {
    return call.host().facts();
}

void giveUnlessBlank(const Call& call, std::string_view text) {
    if (!text.empty()) {
        call.give(text);
    }
}

// [dbo].[Name], dbo.Name or Name: the last part without brackets.
std::string plainName(std::string_view name) {
    std::string part;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (name[i] == '[') {
            for (++i; i < name.size() && name[i] != ']'; ++i) {
                part += name[i];
            }
        } else if (name[i] == '.') {
            part.clear();
        } else if (name[i] != '"') {
            part += name[i];
        }
    }
    return part;
}

// OBJECT_ID(name[, type])
void objectId(const Call& call) {
    const int id = catalogueOf(call).objectId(plainName(call.text(0)));
    const bool wanted =
        call.count() < 2 || sameName(catalogueOf(call).objectKind(id), call.text(1));
    if (id != 0 && wanted) {
        call.give(std::int64_t{id});
    }
}

void objectName(const Call& call) {
    giveUnlessBlank(call, catalogueOf(call).objectName(static_cast<int>(call.integer(0))));
}

void schemaOfObject(const Call& call) {
    if (!catalogueOf(call).objectName(static_cast<int>(call.integer(0))).empty()) {
        call.give(std::string_view("dbo"));
    }
}

const TableDef* tableArgument(const Call& call, std::size_t i) {
    return call.storage(i) == SQLITE_TEXT
               ? catalogueOf(call).table(plainName(call.text(i)))
               : catalogueOf(call).tableById(static_cast<int>(call.integer(i)));
}

void columnName(const Call& call) {
    const auto* table = tableArgument(call, 0);
    if (const auto* column =
            table ? table->columnById(static_cast<int>(call.integer(1))) : nullptr) {
        call.give(std::string_view(column->name));
    }
}

const ColumnDef* columnArgument(const Call& call) {
    const auto* table = tableArgument(call, 0);
    return table ? table->column(call.text(1)) : nullptr;
}

void columnLength(const Call& call) {
    const auto* column = columnArgument(call);
    if (!column) {
        return;
    }
    const Type& type = column->type;
    const int unit = type.isWide() && type.length > 0 ? 2 : 1;
    call.give(std::int64_t{type.length != 0 ? type.length * unit : maxBytes(type)});
}

void columnProperty(const Call& call) {
    const auto* column = columnArgument(call);
    if (!column) {
        return;
    }
    const auto property = call.text(2);
    if (sameName(property, "AllowsNull")) {
        call.give(std::int64_t{column->nullable});
    } else if (sameName(property, "IsIdentity")) {
        call.give(std::int64_t{column->identity.has_value()});
    } else if (sameName(property, "ColumnId")) {
        call.give(std::int64_t{column->id});
    } else if (sameName(property, "IsComputed")) {
        call.give(std::int64_t{0});
    } else if (sameName(property, "Precision")) {
        call.give(std::int64_t{column->type.precision});
    } else if (sameName(property, "Scale")) {
        call.give(std::int64_t{column->type.scale});
    }
}

void objectProperty(const Call& call) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 7> kinds{
        {{"IsTable", "U"},
         {"IsUserTable", "U"},
         {"IsView", "V"},
         {"IsProcedure", "P"},
         {"IsPrimaryKey", "PK"},
         {"IsUniqueCnst", "UQ"},
         {"IsDefaultCnst", "D"}}};
    const auto kind = catalogueOf(call).objectKind(static_cast<int>(call.integer(0)));
    for (const auto& [property, wanted] : kinds) {
        if (!kind.empty() && sameName(call.text(1), property)) {
            call.give(std::int64_t{kind == wanted});
        }
    }
    if (sameName(call.text(1), "IsMSShipped") && !kind.empty()) {
        call.give(std::int64_t{0});
    }
}

void identityCurrent(const Call& call) {
    const auto* table = tableArgument(call, 0);
    const auto* column = table ? table->identityColumn() : nullptr;
    if (!column) {
        return;
    }
    const auto last = lastIdentity(catalogueOf(call).database(), *table);
    call.give(last.value_or(column->identity->seed));
}

void rowCount(const Call& call) {
    if (const auto* table = tableArgument(call, 0)) {
        SqliteQuery query(catalogueOf(call).database(),
                          "SELECT count(*) FROM " + quoteName(table->name));
        query.step();
        call.give(query.integer(0));
    }
}

void databaseName(const Call& call) {
    call.give(std::string_view(catalogueOf(call).databaseName()));
}

void databaseId(const Call& call) {
    if (call.count() == 0 || sameName(call.text(0), catalogueOf(call).databaseName())) {
        call.give(std::int64_t{5});
    }
}

void serverProperty(const Call& call) {
    const auto& server = factsOf(call).serverName;
    const std::array<std::pair<std::string_view, std::string_view>, 7> properties{
        {{"ServerName", server},
         {"MachineName", server},
         {"InstanceName", ""},
         {"Edition", "Embedded"},
         {"ProductVersion", "15.0.0.0"},
         {"ProductLevel", "RTM"},
         {"Collation", "SQL_Latin1_General_CP1_CI_AS"}}};
    for (const auto& [property, value] : properties) {
        if (sameName(call.text(0), property)) {
            giveUnlessBlank(call, value);
        }
    }
}

void userName(const Call& call) {
    call.give(std::string_view(factsOf(call).userName));
}
void databaseUser(const Call& call) {
    call.give(std::string_view("dbo"));
}
void hostName(const Call& call) {
    call.give(std::string_view(factsOf(call).hostName));
}
void applicationName(const Call& call) {
    call.give(std::string_view(factsOf(call).applicationName));
}
void schemaId(const Call& call) {
    call.give(std::int64_t{1});
}

void scopeIdentity(const Call& call) {
    const auto& ask = factsOf(call).scopeIdentity;
    if (const auto last = ask ? ask() : std::nullopt) {
        call.give(*last);
    }
}

void newId(const Call& call) {
    static std::random_device device;
    std::array<unsigned, 4> bits{device(), device(), device(), device()};
    bits[1] = (bits[1] & 0xFFFF0FFFU) | 0x4000U;
    bits[2] = (bits[2] & 0x3FFFFFFFU) | 0x80000000U;
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%08X-%04X-%04X-%04X-%04X%08X", bits[0], bits[1] >> 16,
                  bits[1] & 0xFFFF, bits[2] >> 16, bits[2] & 0xFFFF, bits[3]);
    call.give(std::string_view(text.data()));
}

void typeNameOf(const Call& call) {
    if (const auto type = typeBySystemId(static_cast<int>(call.integer(0)))) {
        call.give(baseTypeName(*type));
    }
}

constexpr ScalarFunction functions[] = {
    {"ts_object_id", -1, runScalar<objectId>, false},
    {"ts_object_name", -1, runScalar<objectName>, false},
    {"ts_object_schema_name", -1, runScalar<schemaOfObject>, false},
    {"ts_col_name", 2, runScalar<columnName>, false},
    {"ts_col_length", 2, runScalar<columnLength>, false},
    {"ts_columnproperty", 3, runScalar<columnProperty>, false},
    {"ts_objectproperty", 2, runScalar<objectProperty>, false},
    {"ts_ident_current", 1, runScalar<identityCurrent>, false},
    {"ts_row_count", 1, runScalar<rowCount>, false},
    {"ts_db_name", -1, runScalar<databaseName>, false},
    {"ts_db_id", -1, runScalar<databaseId>, false},
    {"ts_serverproperty", 1, runScalar<serverProperty>, false},
    {"ts_suser_sname", -1, runScalar<userName>, false},
    {"ts_user_name", -1, runScalar<databaseUser>, false},
    {"ts_schema_name", -1, runScalar<databaseUser>, false},
    {"ts_schema_id", -1, runScalar<schemaId>, false},
    {"ts_host_name", 0, runScalar<hostName>, false},
    {"ts_app_name", 0, runScalar<applicationName>, false},
    {"ts_scope_identity", 0, runScalar<scopeIdentity>, false},
    {"ts_newid", 0, runScalar<newId>, false},
    {"ts_type_name", 1, runScalar<typeNameOf>},
};

} // namespace

std::span<const ScalarFunction> systemFunctions() {
    return functions;
}

} // namespace velcro::sql::tsql

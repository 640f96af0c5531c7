#include "tsql/catalogue/CatalogueFixture.h"

#include <gtest/gtest.h>

namespace velcro::sql::tsql {
namespace {

/// DEBMaster with a column of each kind of type, a default, a primary key and an index that includes.
class SystemViewsTest : public testing::Test
{
protected:
    void SetUp() override {
        file.ddl.createTable("DEBMaster",
                             {{"RecID", intType, false, IdentityDef{}, {}},
                              {"CO", nvarcharType(10), {}, {}, {}},
                              {"Notes", {TypeId::NText}, {}, {}, {}},
                              {"Photo", {TypeId::Image}, {}, {}, {}},
                              {"Json", nvarcharType(maxLength), {}, {}, {}},
                              {"Print", {TypeId::SqlVariant}, {}, {}, {}},
                              {"Balance", floatType, false, {}, DefaultSpec{{}, "((0))", "0"}},
                              {"Price", decimalType(10, 2), {}, {}, {}},
                              {"Born", dateTimeType, {}, {}, {}}},
                             {});
        file.ddl.addKey("DEBMaster", {"DEBMaster_idx00", true, {}, {{"RecID"}}});
        file.ddl.createIndex("DEBMaster",
                             {"DEBMaster_idx01", false, false, false, {{"CO"}}, {"Balance"}});
        file.ddl.createProcedure("Proc", "CREATE PROCEDURE Proc AS SELECT 1", false);
    }

    CatalogueFixture file;
};

TEST_F(SystemViewsTest, InformationSchema) {
    EXPECT_EQ(file.view("information_schema", "tables", "TABLE_SCHEMA, TABLE_NAME, TABLE_TYPE",
                        "WHERE TABLE_NAME = 'debMASTER '"),
              "dbo|DEBMaster|BASE TABLE");
    EXPECT_EQ(
        file.view("INFORMATION_SCHEMA", "TABLES", "count(*)", "WHERE TABLE_NAME LIKE 'sys$%'"),
        "0");
    EXPECT_EQ(file.view("INFORMATION_SCHEMA", "Columns",
                        "COLUMN_NAME, DATA_TYPE, CHARACTER_MAXIMUM_LENGTH, NUMERIC_PRECISION, "
                        "NUMERIC_SCALE, IS_NULLABLE, COLUMN_DEFAULT",
                        "WHERE TABLE_NAME = 'DEBMASTER' ORDER BY ORDINAL_POSITION"),
              "RecID|int|NULL|10|0|NO|NULL\n"
              "CO|nvarchar|10|NULL|NULL|YES|NULL\n"
              "Notes|ntext|1073741823|NULL|NULL|YES|NULL\n"
              "Photo|image|2147483647|NULL|NULL|YES|NULL\n"
              "Json|nvarchar|-1|NULL|NULL|YES|NULL\n"
              "Print|sql_variant|0|NULL|NULL|YES|NULL\n"
              "Balance|float|NULL|53|NULL|NO|((0))\n"
              "Price|decimal|NULL|10|2|YES|NULL\n"
              "Born|datetime|NULL|NULL|NULL|YES|NULL");
    EXPECT_EQ(
        file.view("INFORMATION_SCHEMA", "KEY_COLUMN_USAGE", "CONSTRAINT_NAME, COLUMN_NAME", ""),
        "DEBMaster_idx00|RecID");
    EXPECT_EQ(file.view("INFORMATION_SCHEMA", "ROUTINES", "ROUTINE_NAME, ROUTINE_DEFINITION", ""),
              "Proc|CREATE PROCEDURE Proc AS SELECT 1");
}

TEST_F(SystemViewsTest, IndexesThatCoverAColumnAreFound) {
    const auto text = [](std::string_view name) {
        return "(" + systemView("sys", name)->text + ")";
    };
    const auto covering = [&](const std::string& column) {
        return file.query("SELECT ix.name, ixc.is_included_column FROM " + text("indexes") +
                          " ix JOIN " + text("index_columns") +
                          " ixc ON ix.object_id = ixc.object_id AND ix.index_id = ixc.index_id"
                          " JOIN " +
                          text("tables") +
                          " tab ON ix.object_id = tab.object_id"
                          " WHERE ix.is_primary_key = 0 AND ix.is_unique = 0"
                          " AND ix.is_unique_constraint = 0 AND tab.is_ms_shipped = 0"
                          " AND tab.name = 'debmaster'"
                          " AND ts_col_name(ix.object_id, ixc.column_id) = '" +
                          column +
                          "'"
                          " ORDER BY ix.name, tab.name");
    };
    EXPECT_EQ(covering("CO"), "DEBMaster_idx01|0");
    EXPECT_EQ(covering("Balance"), "DEBMaster_idx01|1");
    EXPECT_EQ(covering("RecID"), "") << "a primary key does not count";
}

TEST_F(SystemViewsTest, TheOlderTablesFindADefault) {
    const auto text = [](std::string_view name) { return "(" + systemView("", name)->text + ")"; };
    const std::string found = file.query(
        "SELECT ts_object_name(T0.constid) FROM " + text("sysconstraints") + " T0 JOIN " +
        text("sysobjects") + " T1 ON T1.id = T0.id JOIN " + text("syscolumns") +
        " T2 ON T2.id = T0.id AND T2.colid = T0.colid JOIN " + text("syscomments") +
        " T3 ON T3.id = T0.constid WHERE T0.status & 5 = 5 AND T1.name = 'DEBMASTER'"
        " AND T1.xtype = 'U' AND T2.name = 'balance'");
    EXPECT_EQ(found, file.catalogue.table("DEBMaster")->column("Balance")->defaultValue->name);
    EXPECT_EQ(
        file.view("dbo", "SysIndexes", "indid, name", "WHERE ts_ltrim(NAME) = 'DEBMaster_idx01'"),
        "2|DEBMaster_idx01");
    EXPECT_EQ(file.view("sys", "sysobjects", "xtype", "WHERE name = 'proc'"), "P");
}

TEST_F(SystemViewsTest, EveryViewAnswers) {
    const std::pair<const char*, const char*> views[] = {
        {"INFORMATION_SCHEMA", "VIEWS"},
        {"INFORMATION_SCHEMA", "TABLE_CONSTRAINTS"},
        {"sys", "objects"},
        {"sys", "all_objects"},
        {"sys", "tables"},
        {"sys", "views"},
        {"sys", "procedures"},
        {"sys", "columns"},
        {"sys", "identity_columns"},
        {"sys", "key_constraints"},
        {"sys", "default_constraints"},
        {"sys", "schemas"},
        {"sys", "databases"},
        {"sys", "sql_modules"},
        {"sys", "types"},
        {"sys", "partitions"},
        {"", "systypes"}};
    for (const auto& [schema, name] : views) {
        const auto* view = systemView(schema, name);
        ASSERT_NE(view, nullptr) << schema << "." << name;
        std::string columns;
        for (const auto& [column, type] : view->columns) {
            columns += (columns.empty() ? "" : ", ") + quoteName(column);
        }
        const std::string rows = file.view(schema, name, columns, "");
        EXPECT_EQ(rows.find("error"), std::string::npos) << schema << "." << name << ": " << rows;
        const bool mayBeEmpty =
            std::string_view(name) == "VIEWS" || std::string_view(name) == "views";
        EXPECT_EQ(rows.empty(), mayBeEmpty) << schema << "." << name;
    }
    EXPECT_EQ(systemView("sys", "no_such"), nullptr);
    EXPECT_EQ(systemView("INFORMATION_SCHEMA", "sysobjects"), nullptr);
}

TEST_F(SystemViewsTest, ATableIsFoundByItsNameWithoutReadingAll) {
    const std::string plan =
        file.query("EXPLAIN QUERY PLAN SELECT * FROM (" +
                   systemView("INFORMATION_SCHEMA", "TABLES")->text + ") v WHERE TABLE_NAME = 'x'");
    EXPECT_NE(plan.find("SEARCH"), std::string::npos) << plan;
}

} // namespace
} // namespace velcro::sql::tsql

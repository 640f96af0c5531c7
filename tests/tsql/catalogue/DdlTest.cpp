#include "support/TempFolder.h"
#include "tsql/catalogue/CatalogueFixture.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace velcro::sql::tsql {
namespace {

const ColumnSpec recId{"RecID", intType, false, IdentityDef{}, {}};

ColumnSpec column(const char* name, const Type& type, std::optional<bool> nullable = {}) {
    return {name, type, nullable, {}, {}};
}

ColumnSpec withDefault(const char* name, const Type& type, const char* text,
                       std::optional<bool> nullable = false) {
    const std::string written = text;
    return {name, type, nullable, {}, DefaultSpec{{}, "(" + written + ")", written}};
}

const KeySpec recIdKey{"Order_idx00", true, {}, {{"RecID"}}};

/// A table [Order] with RecID, CO nvarchar(10) null, Qty int not null default 0.
class DdlTest : public testing::Test
{
protected:
    void SetUp() override {
        file.ddl.createTable(
            "Order", {recId, column("CO", nvarcharType(10)), withDefault("Qty", intType, "0")}, {});
    }

    void fill() { file.query("INSERT INTO \"Order\"(CO, Qty) VALUES ('001', 5), ('002', 7)"); }
    std::string rows(const std::string& columns = "*") {
        return file.query("SELECT " + columns + " FROM \"Order\"");
    }
    void expectSound() {
        EXPECT_EQ(file.query("PRAGMA integrity_check"), "ok");
        CatalogueFixture* const now = &file;
        Catalogue again(now->handle.get(), "SHOP");
        const auto* kept = again.table("order");
        const auto* known = now->catalogue.table("ORDER");
        ASSERT_NE(kept, nullptr);
        EXPECT_EQ(kept->columns, known->columns) << "memory and file say the same";
        EXPECT_EQ(kept->indexes, known->indexes);
    }

    CatalogueFixture file;
};

TEST_F(DdlTest, ATableIsMadeOnceAndItsDefaultsAreNamedByTheServer) {
    EXPECT_EQ(faultNumber([&] { file.ddl.createTable("ORDER", {recId}, {}); }), 2714);
    EXPECT_EQ(faultNumber([&] {
                  file.ddl.createTable("Two", {column("A", intType), column("a", intType)}, {});
              }),
              2705);
    EXPECT_EQ(faultNumber([&] {
                  auto second = recId;
                  second.name = "Other";
                  file.ddl.createTable("Two", {recId, second}, {});
              }),
              2744);
    EXPECT_EQ(faultNumber([&] { file.ddl.createTable("sys$mine", {recId}, {}); }),
              unsupportedNumber);
    const auto& name = file.catalogue.table("Order")->column("Qty")->defaultValue->name;
    EXPECT_EQ(name.substr(0, 16), "DF__Order__Qty__");
    EXPECT_EQ(name.size(), 24u);
    EXPECT_EQ(file.catalogue.tableOfConstraint(name), file.catalogue.table("order"));
    fill();
    EXPECT_EQ(rows(), "1|001|5\n2|002|7");
    file.query("DELETE FROM \"Order\"");
    fill();
    EXPECT_EQ(rows("RecID"), "3\n4") << "an identity value is never given twice";
    expectSound();
}

TEST_F(DdlTest, ConstraintsSpeakTheServersNumbers) {
    file.ddl.addKey("Order", recIdKey);
    file.ddl.createIndex("Order", {"ux", true, false, false, {{"CO"}}, {}});
    fill();
    EXPECT_EQ(file.query("INSERT INTO \"Order\"(RecID, CO) VALUES (1, 'x')"), "error 2627");
    EXPECT_STREQ(file.fault->what(), "Violation of PRIMARY KEY constraint 'Order_idx00'. Cannot "
                                     "insert duplicate key in object 'dbo.Order'.");
    EXPECT_EQ(file.query("INSERT INTO \"Order\"(CO) VALUES ('001  ')"), "error 2601");
    EXPECT_EQ(file.query("UPDATE \"Order\" SET Qty = NULL", "UPDATE"), "error 515");
    EXPECT_STREQ(file.fault->what(),
                 "Cannot insert the value NULL into column 'Qty', table "
                 "'SHOP.dbo.Order'; column does not allow nulls. UPDATE fails.");
}

TEST_F(DdlTest, KeysAndIndexesAreCheckedAsTheServerDoes) {
    fill();
    auto& ddl = file.ddl;
    EXPECT_EQ(faultNumber([&] { ddl.addKey("None", recIdKey); }), 4902);
    EXPECT_EQ(faultNumber([&] { ddl.addKey("Order", {"k", true, {}, {{"CO"}}}); }), 8111);
    EXPECT_EQ(faultNumber([&] { ddl.addKey("Order", {"k", true, {}, {{"No"}}}); }), 1911);
    ddl.addKey("Order", recIdKey);
    EXPECT_EQ(faultNumber([&] { ddl.addKey("Order", {"k", true, {}, {{"Qty"}}}); }), 1779);
    const IndexSpec index{"Order_idx01", false, false, false, {{"CO"}, {"Qty", true}}, {"RecID"}};
    ddl.createIndex("Order", index);
    EXPECT_EQ(faultNumber([&] { ddl.createIndex("Order", index); }), 1913);
    EXPECT_EQ(faultNumber([&] { ddl.createIndex("None", index); }), 1088);
    EXPECT_EQ(faultNumber([&] {
                  ddl.createIndex("Order", {"x", false, true, false, {{"CO"}}, {}});
              }),
              1902);
    EXPECT_EQ(faultNumber([&] { ddl.dropIndex("Order", " Order_idx01", false); }), 3701)
        << "a leading blank belongs to the name";
    EXPECT_EQ(faultNumber([&] { ddl.dropIndex("Order", "Order_idx00", false); }), 3723);
    file.query("UPDATE \"Order\" SET CO = 'same'");
    EXPECT_EQ(faultNumber([&] {
                  ddl.createIndex("Order", {"u", true, false, false, {{"CO"}}, {}});
              }),
              1505);
    ddl.dropIndex("order", "ORDER_IDX01", false);
    ddl.dropConstraint("Order", "order_idx00", false);
    EXPECT_EQ(faultNumber([&] { ddl.dropConstraint("Order", "Order_idx00", false); }), 3728);
    EXPECT_TRUE(file.catalogue.table("Order")->indexes.empty());
    expectSound();
}

TEST_F(DdlTest, AddedColumnsFillTheRowsThatAreThere) {
    fill();
    auto& ddl = file.ddl;
    ddl.addColumns(
        "Order", {withDefault("Status", nvarcharType(1), "'0'"), column("Note", {TypeId::NText})});
    EXPECT_EQ(rows("Status, Note"), "0|NULL\n0|NULL");
    ddl.addColumns("Order", {withDefault("Photo", {TypeId::Image}, "X''")});
    EXPECT_EQ(rows("typeof(Photo), length(Photo)"), "blob|0\nblob|0");
    EXPECT_EQ(faultNumber([&] { ddl.addColumns("Order", {column("status", intType)}); }), 2705);
    EXPECT_EQ(faultNumber([&] { ddl.addColumns("Order", {column("N", intType, false)}); }), 4901);
    EXPECT_EQ(faultNumber([&] { ddl.addColumns("None", {column("N", intType)}); }), 4902);
    ddl.addColumns("Order", {withDefault("Later", intType, "9", true)});
    EXPECT_EQ(rows("Later"), "NULL\nNULL") << "a nullable column does not fill";
    ddl.addColumns("Order", {withDefault("Made", dateTimeType, "ts_getdate()")});
    EXPECT_EQ(file.query("SELECT count(*) FROM \"Order\" WHERE length(Made) = 23"), "2");
    file.query("INSERT INTO \"Order\"(CO) VALUES ('003')");
    EXPECT_EQ(file.query("SELECT Status, Later, length(Made) FROM \"Order\" WHERE CO = '003'"),
              "0|9|23");
    expectSound();
}

TEST_F(DdlTest, DefaultsAreKeptInTheServersBrackets) {
    const std::pair<const char*, const char*> rows[] = {{"0", "((0))"},
                                                        {"(0)", "((0))"},
                                                        {" ( ( -1 ) ) ", "((-1))"},
                                                        {"''", "('')"},
                                                        {"('x')", "('x')"},
                                                        {"(')(')", "(')(')"},
                                                        {"getdate()", "(getdate())"},
                                                        {"((1)+(2))", "((1)+(2))"}};
    for (const auto& [written, kept] : rows) {
        file.ddl.addColumns("Order", {{"X", intType, {}, {}, DefaultSpec{"DF_X", written, "0"}}});
        EXPECT_EQ(file.catalogue.table("Order")->column("X")->defaultValue->text, kept);
        file.ddl.dropConstraint("Order", "DF_X", false);
        file.ddl.dropColumns("Order", {"X"}, false);
    }
}

TEST_F(DdlTest, DroppingADefaultLeavesWhatItHadFilled) {
    fill();
    file.ddl.addColumns("Order", {withDefault("Status", nvarcharType(1), "'0'")});
    const std::string name = file.catalogue.table("Order")->column("Status")->defaultValue->name;
    EXPECT_EQ(faultNumber([&] { file.ddl.dropColumns("Order", {"Status"}, false); }), 5074);
    file.ddl.dropConstraint("Order", name, false);
    EXPECT_EQ(rows("Status"), "0\n0");
    EXPECT_EQ(file.query("INSERT INTO \"Order\"(CO) VALUES ('003')"), "error 515");
    file.ddl.addDefault("Order", "Status", {"DF_mine", "('7')", "'7'"});
    EXPECT_EQ(faultNumber([&] { file.ddl.addDefault("Order", "Status", {"", "(1)", "1"}); }), 1781);
    file.query("INSERT INTO \"Order\"(CO) VALUES ('003')");
    EXPECT_EQ(rows("Status"), "0\n0\n7");
    file.ddl.dropConstraint("Order", "df_MINE", false);
    file.ddl.dropColumns("Order", {"Status"}, false);
    EXPECT_EQ(rows("*"), "1|001|5\n2|002|7\n3|003|0");
    expectSound();
}

TEST_F(DdlTest, ColumnsAreDroppedOnlyWhenNothingHangsOnThem) {
    fill();
    auto& ddl = file.ddl;
    ddl.createIndex("Order", {"ix", false, false, false, {{"RecID"}}, {"CO"}});
    EXPECT_EQ(faultNumber([&] { ddl.dropColumns("Order", {"CO"}, false); }), 5074);
    EXPECT_EQ(faultNumber([&] { ddl.dropColumns("Order", {"Nix"}, false); }), 4924);
    ddl.dropIndex("Order", "ix", false);
    ddl.dropColumns("Order", {"co"}, false);
    EXPECT_EQ(rows(), "1|5\n2|7");
    ddl.dropColumns("Order", {"RecID"}, false);
    EXPECT_EQ(rows(), "5\n7");
    EXPECT_EQ(faultNumber([&] { ddl.dropColumns("Order", {"Qty"}, false); }), 5074);
    ddl.addColumns("Order", {recId});
    EXPECT_EQ(rows(), "5|1\n7|2") << "an identity column counts the rows that are there";
    expectSound();
}

TEST_F(DdlTest, AlteredColumnsKeepTheirValuesOrAreRefused) {
    fill();
    auto& ddl = file.ddl;
    ddl.alterColumn("Order", "CO", nvarcharType(3), {});
    EXPECT_EQ(faultNumber([&] { ddl.alterColumn("Order", "CO", nvarcharType(2), {}); }), 2628);
    file.catalogue.reload();
    EXPECT_EQ(faultNumber([&] { ddl.alterColumn("Order", "Nix", intType, {}); }), 4924);
    EXPECT_EQ(faultNumber([&] { ddl.alterColumn("Order", "Qty", floatType, {}); }), 5074)
        << "a default hangs on it";
    ddl.createIndex("Order", {"ix", false, false, false, {{"CO"}}, {}});
    ddl.alterColumn("Order", "CO", nvarcharType(20), {});
    EXPECT_EQ(faultNumber([&] { ddl.alterColumn("Order", "CO", nvarcharType(5), {}); }), 5074);
    ddl.dropIndex("Order", "ix", false);
    file.query("UPDATE \"Order\" SET CO = NULL WHERE RecID = 1");
    EXPECT_EQ(faultNumber([&] { ddl.alterColumn("Order", "CO", nvarcharType(20), false); }), 515);
    file.query("UPDATE \"Order\" SET CO = '12' WHERE RecID = 1");
    ddl.alterColumn("Order", "CO", nvarcharType(20), false);
    EXPECT_EQ(file.query("UPDATE \"Order\" SET CO = NULL", "UPDATE"), "error 515");
    ddl.alterColumn("Order", "CO", intType, {});
    EXPECT_EQ(rows("CO, typeof(CO)"), "12|integer\n2|integer");
    file.query("UPDATE \"Order\" SET CO = NULL WHERE RecID = 1");
    ddl.alterColumn("Order", "CO", nvarcharType(10), {});
    EXPECT_EQ(rows("CO, typeof(CO)"), "NULL|null\n2|text");
    file.query("UPDATE \"Order\" SET CO = 'abc'");
    EXPECT_EQ(faultNumber([&] { ddl.alterColumn("Order", "CO", intType, {}); }), 245);
}

TEST_F(DdlTest, ARollbackTakesSchemaAndCatalogueBack) {
    fill();
    file.query("BEGIN IMMEDIATE");
    const auto before = file.catalogue.version();
    file.ddl.addKey("Order", recIdKey);
    file.ddl.alterColumn("Order", "CO", nvarcharType(50), false);
    file.ddl.createTable("Other", {recId}, {});
    EXPECT_TRUE(file.catalogue.changedInTransaction());
    file.query("ROLLBACK");
    file.catalogue.reload();
    EXPECT_GT(file.catalogue.version(), before) << "a version never comes again";
    EXPECT_EQ(file.catalogue.table("Other"), nullptr);
    EXPECT_EQ(file.catalogue.table("Order")->column("CO")->type, nvarcharType(10));
    EXPECT_EQ(file.query("INSERT INTO \"Order\"(CO) VALUES (NULL)"), "");
    expectSound();
}

TEST_F(DdlTest, SeedsTruncationAndDrop) {
    auto seeded = recId;
    seeded.identity = IdentityDef{1000, 1};
    file.ddl.createTable("Seeded", {seeded, column("A", intType)}, {});
    file.query("INSERT INTO Seeded(A) VALUES (1), (2)");
    EXPECT_EQ(file.query("SELECT RecID FROM Seeded"), "1000\n1001");
    EXPECT_EQ(file.query("SELECT ts_ident_current('Seeded')"), "1001");
    file.ddl.truncateTable("Seeded");
    file.query("INSERT INTO Seeded(A) VALUES (1)");
    EXPECT_EQ(file.query("SELECT RecID FROM Seeded"), "1000");
    file.ddl.dropTable("SEEDED", false);
    EXPECT_EQ(faultNumber([&] { file.ddl.dropTable("Seeded", false); }), 3701);
    EXPECT_EQ(faultNumber([&] { file.ddl.dropTable("Seeded", true); }), 0);
    EXPECT_EQ(faultNumber([&] { file.ddl.truncateTable("Seeded"); }), 4701);
    EXPECT_EQ(faultNumber([&] { file.ddl.createTable("Seeded", {seeded}, {}); }), 0);
}

TEST_F(DdlTest, ProceduresAndViewsAreKeptAsWritten) {
    auto& ddl = file.ddl;
    ddl.createProcedure("Do_It", "CREATE PROCEDURE Do_It AS SELECT 1", false);
    EXPECT_EQ(faultNumber([&] { ddl.createProcedure("do_it", "x", false); }), 2714);
    ddl.createProcedure("do_it", "CREATE OR ALTER PROCEDURE do_it AS SELECT 2", true);
    EXPECT_EQ(file.catalogue.procedure("DO_IT")->text,
              "CREATE OR ALTER PROCEDURE do_it AS SELECT 2");
    ddl.dropProcedure("Do_It", false);
    EXPECT_EQ(faultNumber([&] { ddl.dropProcedure("Do_It", false); }), 3701);
    ddl.createView("Shown", "CREATE VIEW Shown AS SELECT CO FROM [Order]",
                   "SELECT CO FROM \"Order\"", {column("CO", nvarcharType(10))});
    fill();
    EXPECT_EQ(file.query("SELECT * FROM Shown"), "001\n002");
    EXPECT_EQ(faultNumber([&] { ddl.alterColumn("Shown", "CO", intType, {}); }), 4909);
    EXPECT_EQ(faultNumber([&] { ddl.dropTable("Shown", false); }), 3705);
    ddl.dropView("shown", false);
    EXPECT_EQ(file.catalogue.objectId("Shown"), 0);
}

TEST_F(DdlTest, OneSeesWhatTheOtherHasChanged) {
    const test::TempFolder folder;
    const auto path = folder.path() / "SHOP.sqlite";
    {
        CatalogueFixture first(path.string());
        CatalogueFixture second(path.string());
        EXPECT_FALSE(second.catalogue.refresh());
        first.ddl.createTable("T", {recId, column("A", nvarcharType(5))}, {});
        EXPECT_TRUE(second.catalogue.refresh());
        ASSERT_NE(second.catalogue.table("t"), nullptr);
        first.query("INSERT INTO T(A) VALUES ('x')");
        EXPECT_FALSE(second.catalogue.refresh()) << "rows are no change of the catalogue";
        first.ddl.alterColumn("T", "A", nvarcharType(50), false);
        EXPECT_TRUE(second.catalogue.refresh());
        EXPECT_EQ(second.catalogue.table("t")->column("A")->type, nvarcharType(50));
        EXPECT_EQ(second.query("INSERT INTO T(A) VALUES (NULL)"), "error 515");
        EXPECT_EQ(second.query("SELECT A FROM T WHERE A = 'X '"), "x");
    }
}

} // namespace
} // namespace velcro::sql::tsql

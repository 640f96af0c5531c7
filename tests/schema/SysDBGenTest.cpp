// Each primitive: what it sends, word by word, and what it answers when something is there, missing
// or refused.
#include "schema/TillSeat.h"
#include "support/FailureOf.h"
#include "support/FakeServer.h"

#include <gtest/gtest.h>

using velcro::test::EmbeddedDatabase;
using velcro::test::FakeServer;
using velcro::test::TempFolder;
using velcro::test::TillSeat;

namespace {

constexpr const char* table = "CREATE TABLE T (RecID int IDENTITY(1, 1) NOT NULL, A varchar(5),"
                              " N nvarchar(20), M nvarchar(max), F float DEFAULT 0 NOT NULL)";
constexpr const char* indexEnd =
    " WITH (  PAD_INDEX = OFF,  DROP_EXISTING = OFF,  STATISTICS_NORECOMPUTE = OFF, "
    " SORT_IN_TEMPDB = OFF,  ONLINE = OFF,  ALLOW_ROW_LOCKS = ON,  ALLOW_PAGE_LOCKS = ON) "
    " ON [PRIMARY] ";

struct Call
{
    const char* what;
    std::vector<std::string> before; // statements on a database that has T
    std::function<bool()> call;
    bool answer;
    QStringList sent;
    int refused = 0;
};

void expect(const std::vector<Call>& calls) {
    for (const auto& [what, before, call, answer, sent, refused] : calls) {
        SCOPED_TRACE(what);
        EmbeddedDatabase database;
        EXPECT_EQ(database.answer(table), "(-1)");
        for (const auto& statement : before) {
            EXPECT_EQ(database.answer(statement).find("error"), std::string::npos) << statement;
        }
        TillSeat seat(database.folder().path().string());
        EXPECT_EQ(call(), answer);
        EXPECT_EQ(seat.sent.join('\n').toStdString(), sent.join('\n').toStdString());
        EXPECT_EQ(seat.refused.size(), refused);
        EXPECT_EQ(gErrorMsg.isEmpty(), answer || sent.isEmpty()) << gErrorMsg.toStdString();
    }
}

std::function<bool()> add(const char* column, const char* type, const char* length,
                          const char* value) {
    return [=] { return sdb_AddColumn("T", column, type, length, value); };
}

std::function<bool()> alter(const char* column, const char* type, const char* length) {
    return [=] { return sdb_AlterColumn("T", column, type, length); };
}

} // namespace

TEST(SysDBGenTest, columnsAreAddedWithTheirDefaults) {
    const QString adds = "ALTER TABLE [dbo].[T] ADD [X] ";
    expect({
        {"there", {}, add("a", "nvarchar", "50", "N"), false, {}},
        {"text",
         {},
         add("X", "nvarchar", "5", ""),
         true,
         {adds + "nvarchar(5) NOT NULL DEFAULT ('') "}},
        {"blank default",
         {},
         add("X", "varchar", "5", "  "),
         true,
         {adds + "varchar(5) NOT NULL DEFAULT ('') "}},
        {"default",
         {},
         add("X", "char", "1", "N"),
         true,
         {adds + "char(1) NOT NULL DEFAULT ('N') "}},
        {"quote",
         {},
         add("X", "nvarchar", "9", "O'B"),
         true,
         {adds + "nvarchar(9) NOT NULL DEFAULT ('O''B') "}},
        {"max",
         {},
         add("X", "nvarchar", "max", ""),
         true,
         {adds + "nvarchar(max) NOT NULL DEFAULT ('') "}},
        {"ntext",
         {},
         add("X", "ntext", "1000", "N"),
         true,
         {adds + "ntext NOT NULL DEFAULT ('') "}},
        {"image", {}, add("X", "image", "", ""), true, {adds + "image NOT NULL DEFAULT ('') "}},
        {"float", {}, add("X", "float", "", "5"), true, {adds + "float NOT NULL DEFAULT (0)"}},
        {"int", {}, add("X", "int", "4", "2"), true, {adds + "int NOT NULL DEFAULT (0)"}},
        {"money", {}, add("X", "money", "", ""), true, {adds + "money NOT NULL DEFAULT (0)"}},
        {"other", {}, add("X", "datetime", "8", "x"), true, {adds + "datetime"}},
        {"upper case", {}, add("X", "INT", "", ""), true, {adds + "INT"}},
        {"no such type", {}, add("X", "stuff", "", ""), false, {adds + "stuff"}, 1},
    });
}

TEST(SysDBGenTest, onlyTheLengthOfATextIsAltered) {
    const QString alters = "ALTER TABLE [dbo].[T]  ALTER COLUMN ";
    expect({
        {"missing", {}, alter("X", "nvarchar", "9"), true, {}},
        {"another type", {}, alter("A", "nvarchar", "9"), true, {}},
        {"type in upper case", {}, alter("N", "NVARCHAR", "9"), true, {}},
        {"same length", {}, alter("n", "nvarchar", "20"), true, {}},
        {"a number", {}, alter("F", "float", "0"), true, {}},
        {"wider", {}, alter("N", "nvarchar", "30"), true, {alters + "[N] nvarchar(30)"}},
        {"narrower", {}, alter("A", "varchar", "3"), true, {alters + "[A] varchar(3)"}},
        {"max again", {}, alter("M", "nvarchar", "max"), true, {alters + "[M] nvarchar(max)"}},
        {"no number", {}, alter("A", "varchar", "wide"), false, {alters + "[A] varchar(wide)"}, 1},
        {"too narrow for a row",
         {"INSERT INTO T (N) VALUES ('twelve texts')"},
         alter("N", "nvarchar", "3"),
         false,
         {alters + "[N] nvarchar(3)"},
         1},
        {"in a plain index",
         {"CREATE INDEX [ T_idx01] ON T (A) INCLUDE (N)"},
         alter("N", "nvarchar", "30"),
         true,
         {"DROP INDEX [  T_idx01] ON [dbo].[T] ", alters + "[N] nvarchar(30)"},
         1},
        {"unique",
         {"CREATE UNIQUE INDEX T_idx01 ON T (N)"},
         alter("N", "nvarchar", "30"),
         true,
         {alters + "[N] nvarchar(30)"}},
    });
}

TEST(SysDBGenTest, tablesColumnsAndProceduresGo) {
    const auto dropColumn = [](const char* column) {
        return [=] { return sdb_DropColumn("T", column); };
    };
    const QString drops = "ALTER TABLE [dbo].[T]  DROP COLUMN ";
    const QString procedure = "IF  EXISTS ( SELECT * FROM sys.objects   WHERE object_id = "
                              "OBJECT_ID(N'[dbo].[P]')    AND type in (N'P', N'PC')) DROP "
                              "PROCEDURE [dbo].[P]";
    expect({
        {"no table", {}, [] { return sdb_DropTable("X"); }, true, {}},
        {"table", {}, [] { return sdb_DropTable("t"); }, true, {"DROP TABLE [t]"}},
        {"view",
         {"CREATE VIEW V AS SELECT A FROM T"},
         [] { return sdb_DropTable("V"); },
         false,
         {"DROP TABLE [V]"},
         1},
        {"no column", {}, dropColumn("X"), true, {}},
        {"column", {}, dropColumn("A"), true, {drops + "[A] "}},
        {"column with a default stays", {}, dropColumn("F"), false, {drops + "[F] "}, 1},
        {"no procedure", {}, [] { return sdb_Drop_StoredProc("[dbo].[P]"); }, true, {procedure}},
        {"procedure",
         {"CREATE PROCEDURE P AS SELECT 1"},
         [] { return sdb_Drop_StoredProc("[dbo].[P]"); },
         true,
         {procedure}},
    });
}

TEST(SysDBGenTest, indexesAreKnownByTheirNameAlone) {
    const auto addIndex = [](const char* include) {
        return [=] { return sdb_AddIndex(" T ", " T_idx01 ", " [A], [N] ", include); };
    };
    const QString create = "CREATE NONCLUSTERED INDEX [T_idx01] ON [dbo].[T]  ([A], [N])";
    const QString drop = "DROP INDEX [ T_idx01] ON [dbo].[T] ";
    const auto dropIndex = [] { return sdb_DropIndex("T", "T_idx01"); };
    expect({
        {"new", {}, addIndex(" "), true, {create + indexEnd}},
        {"include", {}, addIndex("[F]"), true, {create + " INCLUDE ([F]) " + indexEnd}},
        {"there", {"CREATE INDEX T_IDX01 ON T (N)"}, addIndex(""), true, {}},
        {"on another table",
         {"CREATE TABLE O (A int)", "CREATE INDEX T_idx01 ON O (A)"},
         addIndex(""),
         true,
         {}},
        {"no column",
         {},
         [] { return sdb_AddIndex("T", "T_idx01", "[X]", ""); },
         false,
         {QString("CREATE NONCLUSTERED INDEX [T_idx01] ON [dbo].[T]  ([X])") + indexEnd},
         1},
        {"nothing to drop", {}, dropIndex, true, {}},
        {"a blank before its name", {"CREATE INDEX [ T_idx01] ON T (A)"}, dropIndex, true, {drop}},
        {"no blank", {"CREATE INDEX T_idx01 ON T (A)"}, dropIndex, false, {drop}, 1},
    });
}

TEST(SysDBGenTest, aTableIsMadeWithItsKeyOnce) {
    EmbeddedDatabase database;
    TillSeat seat(database.folder().path().string());
    const QString create = "CREATE TABLE [dbo].[N] ([RecID] int IDENTITY(1, 1) NOT NULL )";
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(sdb_CreateTable("N", create));
    }
    EXPECT_EQ(seat.sent, QStringList({create, "ALTER TABLE [dbo].[N]  ADD CONSTRAINT [N_idx00] "
                                              "PRIMARY KEY ([RecID])"}));
    EXPECT_TRUE(sdb_CreateTable(" M ", "CREATE NONSENSE")) << "refused, and nobody looks";
    EXPECT_EQ(seat.sent.last(),
              "ALTER TABLE [dbo].[M]  ADD CONSTRAINT [M_idx00] PRIMARY KEY ([RecID])");
    EXPECT_EQ(seat.refused.size(), 2);
}

TEST(SysDBGenTest, aLookUpTellsTypeAndLength) {
    EmbeddedDatabase database;
    database.answer(table);
    TillSeat seat(database.folder().path().string());
    const struct
    {
        const char *column, *type;
        int length;
    } columns[] = {{"a", "varchar", 5}, {"M", "nvarchar", -1}, {"F", "float", 0}, {"X", "", 0}};
    for (const auto& [column, type, length] : columns) {
        EXPECT_EQ(sdb_FindColumn("t", column), *type != 0) << column;
        EXPECT_EQ(sdb_DataType, type) << column;
        EXPECT_EQ(sdb_CharLegnth, length) << column;
    }
    EXPECT_FALSE(sdb_FindTable(" t"));
    EXPECT_TRUE(sdb_FindTable("t"));
    EXPECT_TRUE(sdb_Check_Constraint("T", "F").startsWith("DF__T__F__"));
    EXPECT_EQ(sdb_Check_Constraint("T", "A"), "");
    database.answer("CREATE INDEX T_idx01 ON T (A) INCLUDE (N)");
    EXPECT_TRUE(sdb_Check_Index_Dependancy("T", "N", "n"));
    EXPECT_FALSE(sdb_Check_Index_Dependancy("T", "M", "Y"));
    EXPECT_TRUE(seat.sent.isEmpty()) << "only asked";
}

TEST(SysDBGenTest, aFailedLookUpIsToldInItsWords) {
    FakeServer server;
    const TempFolder folder;
    TillSeat seat(folder.path().string());
    const std::string tables = "SELECT * FROM INFORMATION_SCHEMA.[TABLES]  WHERE TABLE_NAME = 'T'";
    const QString columns = "SELECT * FROM INFORMATION_SCHEMA.[COLUMNS]  WHERE TABLE_NAME = 'T'"
                            "   AND COLUMN_NAME = 'A'";
    const QString open = "[Statement.sdb_Local_Query] SQL Error open SQL query \"%1\". Reason: no";
    server.fail("[TABLES]", "no");
    EXPECT_FALSE(sdb_FindTable("T"));
    const QString tablesText = QString::fromStdString(tables);
    EXPECT_EQ(gErrorMsg, "[SysDEBGen.sdb_FindTable] Falied to open SQL query \"" + tablesText +
                             "\". Reason: " + open.arg(tablesText));
    server.fail("[COLUMNS]", "no");
    EXPECT_FALSE(sdb_FindColumn("T", "A"));
    EXPECT_EQ(gErrorMsg, "[SysDEBGen.sdb_FindColumn] Falied to open SQL query \"" + columns +
                             "\". Reason: " + open.arg(columns));

    const QString buyers =
        "[SysDEBGen.sld_GetBuyerName] SQL Error reading object \"CRDBuyers\". Reason: no";
    server.answer("[COLUMNS]", {"DATA_TYPE", "CHARACTER_MAXIMUM_LENGTH"}, {{"nvarchar", "5"}});
    server.fail("sys.indexes", "no");
    EXPECT_FALSE(sdb_AlterColumn("T", "A", "nvarchar", "9"));
    EXPECT_EQ(gErrorMsg, "[SysDEBGen.sdb_AlterColumn] Falied to check index dependancy on table "
                         "\"T\" and column \"A\". Reason: " +
                             buyers);
    server.fail("sysconstraints", "no");
    EXPECT_FALSE(sdb_DropColumn("T", "A"));
    EXPECT_EQ(gErrorMsg, "[SysDEBGen.sdb_DropColumn] Falied to check constraint on table \"T\" and "
                         "column \"A\". Reason: " +
                             buyers);
    server.fail("SysIndexes", "no");
    EXPECT_EQ(failureOf([] { sdb_AddIndex("T", "I", "[A]", ""); }),
              open.arg("SELECT * FROM SysIndexes  WHERE LTRIM(NAME) = 'I'"));
    server.fail("SysIndexes", "no");
    EXPECT_EQ(failureOf([] { sdb_DropIndex("T", "I"); }),
              open.arg("SELECT * FROM SysIndexes  WHERE LTRIM(NAME) = 'I'"));
    EXPECT_TRUE(seat.sent.isEmpty());
}

TEST(SysDBGenTest, whatAnUnreachableServerLeftInTheBufferKeepsTheColumn) {
    FakeServer server;
    const TempFolder folder;
    TillSeat seat(folder.path().string());
    server.answer("[COLUMNS]", {"DATA_TYPE", "CHARACTER_MAXIMUM_LENGTH"}, {{"float", ""}});
    server.answer("sysconstraints", {"Constraint"}, {{"DF_1"}});
    sfg_AddSQL("UPDATE LEFT BEHIND", "NEW");
    server.fail("LEFT BEHIND", "no");
    EXPECT_FALSE(sdb_DropColumn("T", "A"));
    EXPECT_TRUE(seat.sent.isEmpty());
    EXPECT_FALSE(sdb_DropColumn("T", "A") && seat.sent.isEmpty())
        << "with an empty buffer the column is asked to go";
    EXPECT_EQ(seat.sent, QStringList("ALTER TABLE [dbo].[T]  DROP COLUMN [A] "));
    EXPECT_EQ(server.count("ALTER TABLE dbo.T DROP CONSTRAINT DF_1"), 0);
}

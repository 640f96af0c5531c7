// Each primitive: what it sends, word by word, and what it answers when something is there, missing
// or refused.
#include "schema/TillSeat.h"
#include "support/FailureOf.h"
#include "support/FakeServer.h"
#include "support/Rows.h"

#include <gtest/gtest.h>

using velcro::test::EmbeddedDatabase;
using velcro::test::FakeServer;
using velcro::test::TempFolder;
using velcro::test::TillSeat;

namespace {

/// "add column|X|int|4|2": the answer of that call on T.
bool called(const QStringList& call) {
    const QString verb = call[0], name = call[1];
    return verb == "add column"     ? sdb_AddColumn("T", name, call[2], call[3], call[4])
           : verb == "alter column" ? sdb_AlterColumn("T", name, call[2], call[3])
           : verb == "drop column"  ? sdb_DropColumn("T", name)
           : verb == "drop table"   ? sdb_DropTable(name)
           : verb == "add index"    ? sdb_AddIndex(" T ", name, call[2], call[3])
           : verb == "drop index"   ? sdb_DropIndex("T", name)
                                    : sdb_Drop_StoredProc(name);
}

/// A database that has T.
struct TableT : EmbeddedDatabase
{
    TableT() {
        const auto first = velcro::test::sectionsOf(PRIMITIVES).front().questions.front();
        EXPECT_EQ(answer(first.text), first.answer);
    }
};

} // namespace

TEST(SysDBGenTest, eachPrimitiveSendsAndAnswersAsStated) {
    const auto sections = velcro::test::sectionsOf(PRIMITIVES);
    for (std::size_t i = 1; i < sections.size(); ++i) {
        for (const auto& [text, expected] : sections[i].questions) {
            const TableT database;
            QStringList lines = QString::fromStdString(text).split('\n');
            const QStringList call = lines.takeLast().split('|');
            for (const QString& statement : lines.mid(1)) {
                EXPECT_EQ(database.answer(statement.toStdString()).find("error"),
                          std::string::npos);
            }
            TillSeat seat(database.folder().path().string());
            const bool answer = called(call);
            QString told = answer ? "true" : "false";
            if (!seat.refused.isEmpty()) {
                told += QString(", %1 refused").arg(seat.refused.size());
            }
            for (const QString& statement : seat.sent) {
                told += "\n" + statement + "|";
            }
            EXPECT_EQ(told.toStdString(), expected) << text;
            EXPECT_EQ(gErrorMsg.isEmpty(), answer || seat.sent.isEmpty()) << text;
        }
    }
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
    const TableT database;
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

#include "support/EmbeddedDatabase.h"

#include <gtest/gtest.h>

#include <fstream>

using velcro::sql::SqlError;
using velcro::sql::SqlErrorKind;
using velcro::test::EmbeddedDatabase;
using velcro::test::TempFolder;

namespace {

/// Number and kind of what connecting throws, "" when it succeeds.
std::string refusal(const std::string& folder, const std::string& database, bool create = false) {
    try {
        EmbeddedDatabase::open(folder, create, database);
        return {};
    } catch (const SqlError& error) {
        EXPECT_EQ(error.kind(), SqlErrorKind::NotConnected);
        EXPECT_NE(std::string(error.what()), "");
        return std::to_string(error.number());
    }
}

std::string contents(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

} // namespace

TEST(EmbeddedSessionTest, whatCannotBeOpenedIsToldAndLeftAlone) {
    const TempFolder folder;
    const std::string path = folder.path().string();
    EXPECT_EQ(refusal(path + "/missing", "Shop", true), "53");
    EXPECT_FALSE(std::filesystem::exists(path + "/missing"));
    EXPECT_EQ(refusal(path, "Shop"), "4060");
    EXPECT_EQ(refusal(path, "../Shop", true), "4060");
    EXPECT_EQ(refusal(path, "", true), "4060");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));

    const std::string text =
        "a letter to a customer, and long enough to be more than a header line";
    std::ofstream(folder.file("Letter.sqlite")) << text << std::string(500, '.');
    const std::string before = contents(folder.file("Letter.sqlite"));
    EXPECT_EQ(refusal(path, "letter", true), "5172");
    EXPECT_EQ(contents(folder.file("Letter.sqlite")), before);

    EXPECT_EQ(refusal(path, "Shop", true), "");
    EXPECT_EQ(refusal(path, "SHOP"), "");
}

TEST(EmbeddedSessionTest, whatIsHeldInMemoryFollowsARollback) {
    EmbeddedDatabase database;
    auto& one = database.connection();
    one.execute("CREATE TABLE T (a int, b int) INSERT INTO T VALUES (1, 2)");
    // The failure of the second definition takes back its own part alone, the rollback both.
    one.begin();
    EXPECT_EQ(database.answer("ALTER TABLE T DROP COLUMN b ALTER TABLE T DROP COLUMN c"),
              "(-1) error 4924");
    one.rollback();
    EXPECT_EQ(database.answer("SELECT b FROM T"), "2");
    // Temporary tables go and come with the transaction, and a variable is never left over.
    one.execute("CREATE TABLE #t (a int NOT NULL PRIMARY KEY) INSERT INTO #t VALUES (7)");
    one.begin();
    EXPECT_EQ(database.answer("UPDATE T SET a = 5 DROP TABLE #t CREATE TABLE #t (x nvarchar(5))"
                              " DECLARE @v TABLE (a int) INSERT INTO @v VALUES (1)"
                              " SELECT COUNT(*) FROM #t ROLLBACK SELECT a FROM #t"),
              "(1) (-1) (1) 0 7");
    EXPECT_EQ(
        database.answer("DECLARE @v TABLE (b int) INSERT INTO @v VALUES (2) SELECT b FROM @v"),
        "(1) 2");
    EXPECT_EQ(database.answer("DROP TABLE #t CREATE TABLE #t (b int) SELECT COUNT(*) FROM #t"),
              "(-1) 0");
    EXPECT_EQ(database.answer("CREATE TABLE #u (a int, PRIMARY KEY (z))"), "error 1911");
    EXPECT_EQ(database.answer("SELECT * FROM #u"), "error 208");
}

TEST(EmbeddedSessionTest, readingInATransactionLocksNobodyOut) {
    EmbeddedDatabase database;
    const auto other = database.open();
    database.connection().execute("CREATE TABLE T (a int)");
    database.connection().begin();
    EXPECT_EQ(database.answer("SELECT COUNT(*) FROM T"), "0");
    EXPECT_EQ(EmbeddedDatabase::answerOf(*other, "INSERT INTO T VALUES (1)"), "(1)");
    EXPECT_EQ(database.answer("INSERT INTO T VALUES (2) SELECT COUNT(*) FROM T"), "(1) 2");
    EXPECT_EQ(EmbeddedDatabase::answerOf(*other, "SET LOCK_TIMEOUT 20 INSERT INTO T VALUES (3)"),
              "error 1222");
    database.connection().commit();
    EXPECT_EQ(EmbeddedDatabase::answerOf(*other, "INSERT INTO T VALUES (3)"), "(1)");
}

TEST(EmbeddedSessionTest, anErrorBearsWhatWasSentAndTheLineItStandsInNow) {
    const EmbeddedDatabase database;
    const auto connection = database.open();
    const std::pair<std::string, int> batches[] = {{"SELECT 1 ;\nSELECT *\n  FROM nope ;", 2},
                                                   {"SELECT *\n  FROM nope ;", 1},
                                                   {"\r\n\r\nSELECT *\n  FROM nope ;", 3}};
    for (const auto& [batch, line] : batches) {
        try {
            connection->execute(batch);
            FAIL() << "the unknown table was taken";
        } catch (const SqlError& error) {
            EXPECT_EQ(error.kind(), SqlErrorKind::Statement);
            EXPECT_EQ(error.statement(), batch);
            EXPECT_EQ(error.message().line, line) << batch;
        }
    }
}

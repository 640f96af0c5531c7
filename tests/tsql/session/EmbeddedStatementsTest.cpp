#include "support/EmbeddedDatabase.h"
#include "support/Rows.h"

#include <gtest/gtest.h>

using velcro::test::EmbeddedDatabase;

namespace {

class EmbeddedStatementsTest : public testing::Test
{
protected:
    EmbeddedStatementsTest() {
        const auto shop = velcro::test::sectionsOf(TSQL_ROWS "/answers/statements.rows").front();
        for (const auto& [batch, answer] : shop.questions) {
            EXPECT_EQ(database_.answer(batch), answer);
        }
    }

    EmbeddedDatabase database_;
};

} // namespace

TEST_F(EmbeddedStatementsTest, deepExpressionsAnswer) {
    const auto around = [](std::string before, std::string inner, std::string after, int times) {
        for (; times > 0; --times) {
            inner = before + inner + after;
        }
        return inner;
    };
    const std::string last = "(SELECT RecID FROM Orders WHERE CRONo = 'a1')";
    const std::string sum = around("(", "RecID", " + 1)", 150);
    const std::pair<std::string, const char*> rows[] = {
        {"SELECT " + sum + " FROM Orders", "151;152;153"},
        {"SELECT COUNT(*) FROM Orders WHERE " + sum + " > 151", "2"},
        {"SELECT LEN(" + around("CRONo + ", "CRONo", "", 130) + ") FROM Orders WHERE RecID = 1",
         "262"},
        {"SELECT " + around("CASE WHEN Qty = 9 THEN 1 / 0 ELSE ", "Qty", " END", 60) +
             " FROM Orders",
         "5;0;7"},
        {"SELECT " + around("CASE WHEN 1 = 1 THEN ", "1 / 0", " END", 40), "error 8134"},
        {"SELECT " + around("COALESCE(NULL, ", "CRONo", ")", 60) + " FROM Orders WHERE CO = '02'",
         "C[3]%"},
        {"SELECT " + around("COALESCE(NULL, ", "SUM(Qty)", ")", 60) +
             ", CO FROM Orders GROUP BY CO",
         "5|01;7|02"},
        {"SELECT SUM(" + around("COALESCE(NULL, ", "Qty", ")", 60) + ") FROM Orders", "12"},
        {"SELECT COUNT(*) FROM Orders WHERE " + around("ISNULL(NULL, ", "CRONo", ")", 60) +
             " = 'B2 '",
         "1"},
        {"SELECT COUNT(*) FROM Orders WHERE " +
             around("NOT (", "CRONo IN (SELECT Code FROM Codes)", ")", 60),
         "1"},
        {"SELECT " + around("ISNULL(NULL, ", last, ")", 60), "1"},
        {"SELECT " + around("ISNULL(NULL, ", "ROW_NUMBER() OVER (ORDER BY CRONo DESC)", ")", 60) +
             " FROM Orders ORDER BY RecID",
         "3;2;1"},
        {"DECLARE @x INT SET @x = " + around("(", "2", " * 1 + 1)", 60) + " IF " +
             around("NOT (", "@x = 62", ")", 60) + " SELECT @x",
         "62"},
        {"UPDATE Orders SET Qty = " + sum + " WHERE RecID = 3", "(1)"},
        {"SELECT RecID, " + sum + " AS N INTO Deep FROM Orders SELECT N FROM Deep",
         "(3) 151;152;153"},
        {"SELECT Qty FROM Orders WHERE RecID = 3", "153"},
    };
    for (const auto& [batch, answer] : rows) {
        EXPECT_EQ(database_.answer(batch), answer) << batch;
    }
    EXPECT_EQ(database_.answer("CREATE VIEW Deeper AS SELECT " + sum + " AS N FROM Orders"),
              "(-1)");
    EXPECT_EQ(database_.answer("SELECT N FROM Deeper WHERE N > 151"), "152;153");
}

TEST_F(EmbeddedStatementsTest, parametersComeInWithTheirOwnTypes) {
    using velcro::sql::Blob;
    using velcro::sql::Parameter;
    const std::string picture("\0\x01\xff", 3);
    const std::vector<Parameter> parameters{
        {"co", std::string("01")}, {"Qty", std::int64_t{5}}, {"None", {}}, {"Pic", Blob{picture}}};
    EXPECT_EQ(
        database_.answer("SELECT CRONo FROM Orders WHERE CO = :CO AND Qty = :qty", parameters),
        "A1");
    database_.answer("CREATE TABLE Pics (a image NULL, b ntext NULL, c int NULL)");
    EXPECT_EQ(database_.answer("INSERT INTO Pics VALUES (:Pic, :CO, :None)", parameters), "(1)");
    const auto rows = database_.connection().query("SELECT a, b, c FROM Pics");
    EXPECT_EQ(rows.bytes(0, 0), picture);
    EXPECT_EQ(rows.text(0, 1), "01");
    EXPECT_TRUE(rows.isNull(0, 2));
    // The same text with another type is another statement.
    const std::vector<Parameter> asText{{"Qty", std::string("5 ")}};
    EXPECT_EQ(database_.answer("SELECT CRONo FROM Orders WHERE Qty = :Qty", asText), "A1");
    EXPECT_EQ(database_.answer("SELECT :missing"), "error 137");
}

TEST_F(EmbeddedStatementsTest, aShapeSeenBeforeTakesItsNewValues) {
    for (int i = 0; i < 50; ++i) {
        const std::string number = std::to_string(i);
        ASSERT_EQ(database_.answer("INSERT INTO Codes (CO, Code, Text) VALUES ('05', '" + number +
                                   "', 'it''s " + number + "')"),
                  "(1)");
    }
    EXPECT_EQ(database_.answer("SELECT COUNT(*), COUNT(DISTINCT Text) FROM Codes WHERE CO = '05'"),
              "50|50");
    EXPECT_EQ(database_.answer("SELECT TOP(2) Code FROM Codes WHERE CO = '05' ORDER BY Code"),
              "0;1");
    EXPECT_EQ(database_.answer("SELECT TOP(1) Code FROM Codes WHERE CO = '05' ORDER BY Code"), "0");
    // What is known of a table changes under a kept statement.
    EXPECT_EQ(database_.answer("SELECT * FROM Codes WHERE Code = '7'"), "05|7|it's 7");
    database_.open()->execute("ALTER TABLE Codes ADD Extra int NOT NULL DEFAULT (3)");
    EXPECT_EQ(database_.answer("SELECT * FROM Codes WHERE Code = '8'"), "05|8|it's 8|3");
}

#include "support/EmbeddedDatabase.h"

#include <gtest/gtest.h>

using velcro::test::EmbeddedDatabase;

namespace {

struct Row
{
    const char* batch;
    const char* answer;
};

class EmbeddedStatementsTest : public testing::Test
{
protected:
    void SetUp() override {
        ASSERT_EQ(database_.answer(
                      "CREATE TABLE [dbo].[Orders] ([RecID] int IDENTITY(1,1) NOT NULL,"
                      " [CO] nvarchar(10) NOT NULL, [CRONo] nvarchar(20) NULL,"
                      " [Qty] int NOT NULL DEFAULT 0, [Price] float NULL, [Day] datetime NULL,"
                      " [Flag] bit NULL, [Amount] decimal(10,2) NULL, [Notes] ntext NULL)"
                      " ALTER TABLE Orders ADD CONSTRAINT [Orders_idx00] PRIMARY KEY ([RecID])"
                      " CREATE TABLE Codes (CO nvarchar(10) NOT NULL, Code nvarchar(5) NOT NULL"
                      " CONSTRAINT Codes_pk PRIMARY KEY, Text nvarchar(20) NULL)"),
                  "(-1) (-1) (-1)");
        ASSERT_EQ(database_.answer(
                      "INSERT INTO Orders (CO, CRONo, Qty, Price, Day) VALUES"
                      " ('01', 'A1', '5', '1.5', '2026-01-02 10:00:00'),"
                      " ('01', 'b2', '', '', ''), ('02', 'C[3]%', 7, 2, NULL) ;"
                      "INSERT INTO Codes VALUES ('01', 'A1', 'first'), ('01', 'X', N'Größe')"),
                  "(3) (2)");
    }

    void expectRows(std::initializer_list<Row> rows) {
        for (const auto& row : rows) {
            EXPECT_EQ(database_.answer(row.batch), row.answer) << row.batch;
        }
    }

    EmbeddedDatabase database_;
};

} // namespace

TEST_F(EmbeddedStatementsTest, valuesAreReadAsTheServerReadsThem) {
    expectRows({
        {"SELECT Qty, Price, Day FROM Orders WHERE CRONo = 'B2'", "0|0|1900-01-01 00:00:00.000"},
        {"SELECT CRONo FROM ORDERS WHERE [qty] = '5'", "A1"},
        {"SELECT CRONo FROM Orders WHERE Day = '2026/01/02 10:00'", "A1"},
        {"SELECT CRONo FROM Orders WHERE CO = '02  '", "C[3]%"},
        {"SELECT CO FROM Orders WHERE Qty > 4.5 AND Price < '1.75'", "01"},
        {"SELECT 7 / 2, 7 % 4, 7 / 2.0, '1' + 2, 'a' + 'b', 6 & 3, -Qty FROM Orders WHERE Qty = 7",
         "3|3|3.5|3|ab|2|-7"},
        {"SELECT CASE WHEN Qty > 1 THEN Qty ELSE '12' END FROM Orders ORDER BY RecID", "5;12;7"},
        {"SELECT ISNULL(Day, '2026-02-03'), COALESCE(Price, 0.00) FROM Orders WHERE CO = '02'",
         "2026-02-03 00:00:00.000|2"},
        {"SELECT CAST('12' AS INT) + 1, CONVERT(NVARCHAR(10), 12.50), CAST(N'x' AS VARCHAR(3))",
         "13|12.50|x"},
        {"SELECT CAST(CONCAT('2026/01/02', ' ', '03:04:05') AS DATETIME) AS T",
         "2026-01-02 03:04:05.000"},
        {"SELECT LEN('ab  '), UPPER('ä'), LTRIM('  x'), SUBSTRING('abc', 2, 9), CHARINDEX('B', "
         "'abc')",
         "2|Ä|x|bc|2"},
    });
}

TEST_F(EmbeddedStatementsTest, textIsSearchedAndOrderedWithoutRegardToCase) {
    expectRows({
        {"SELECT CRONo FROM Orders WHERE CRONo LIKE 'a%'", "A1"},
        {"SELECT CRONo FROM Orders WHERE CRONo LIKE '%[[]3]%' AND CRONo NOT LIKE '[a-b]%'",
         "C[3]%"},
        {"SELECT CRONo FROM Orders WHERE CRONo LIKE '%!%' ESCAPE '!' OR CRONo LIKE 'B_'",
         "b2;C[3]%"},
        {"SELECT CRONo FROM Orders ORDER BY CRONo DESC", "C[3]%;b2;A1"},
        {"SELECT DISTINCT UPPER(CO) FROM Orders ORDER BY 1", "01;02"},
        {"SELECT Text FROM Codes WHERE Text = 'grösse' OR Text = 'GRÖßE'", "Größe"},
        {"SELECT O.CRONo, C.Text FROM Orders O LEFT JOIN Codes C ON C.Code = O.CRONo"
         " WHERE O.CO = '01' ORDER BY O.RecID",
         "A1|first;b2|NULL"},
        {"SELECT CRONo FROM Orders WHERE CRONo IN ('a1', 'B2') ORDER BY RecID", "A1;b2"},
        {"SELECT CO FROM Orders WHERE CRONo IN (SELECT Code FROM Codes)", "01"},
    });
}

TEST_F(EmbeddedStatementsTest, queriesOfEveryForm) {
    expectRows({
        {"SELECT TOP(1) * FROM Codes ORDER BY Code DESC", "01|X|Größe"},
        {"SELECT CO, COUNT(*), SUM(Qty), AVG(Qty), MAX(CRONo) FROM Orders GROUP BY CO"
         " HAVING COUNT(*) > 1",
         "01|2|5|2|b2"},
        {"SELECT AVG(Qty) * 2, AVG(-Qty) * 2, AVG(Qty * 1.0) * 2 FROM Orders WHERE CO = '01'",
         "4|-4|5"},
        {"SELECT CRONo, COALESCE(C.Text, 'none'), (SELECT SUM(Qty) FROM Orders WITH (NOLOCK)"
         " WHERE CO = O.CO) AS [Onhand] FROM Orders O LEFT OUTER JOIN Codes C ON C.CO = O.CO"
         " AND C.Code = O.CRONo WHERE O.CO = '01'ORDER BY CRONo",
         "A1|first|5;b2|none|5"},
        {"SELECT CRONo, 2 AS [P] FROM Orders WHERE CO = '02' UNION ALL SELECT 'q', 1 ORDER BY [P]",
         "q|1;C[3]%|2"},
        {"SELECT RecID FROM Orders ORDER BY RecID OFFSET 1 ROWS FETCH NEXT 1 ROWS ONLY", "2"},
        {"DECLARE @n INT = 2 SELECT TOP (@n) RecID FROM Orders ORDER BY RecID DESC", "3;2"},
        {"WITH r AS (SELECT 1 AS n UNION ALL SELECT n + 1 FROM r WHERE n < 4) SELECT n FROM r",
         "1;2;3;4"},
        {"SELECT T.n FROM (SELECT CO, COUNT(*) AS n FROM Orders GROUP BY CO) T WHERE T.CO = '01'",
         "2"},
        {"SELECT ROW_NUMBER() OVER (PARTITION BY CO ORDER BY Qty DESC), CRONo FROM Orders"
         " WHERE CO = '01'",
         "1|A1;2|b2"},
        {"SELECT (SELECT SUM(Qty) FROM Orders WHERE CO = C.CO) FROM Codes C WHERE Code = 'X'", "5"},
        {"SELECT CRONo FROM Orders O WHERE NOT EXISTS (SELECT 1 FROM Codes WHERE Code = O.CRONo)"
         " ORDER BY 1",
         "b2;C[3]%"},
        {"SELECT COLUMN_NAME FROM INFORMATION_SCHEMA.[COLUMNS] WHERE TABLE_NAME = 'codes'"
         " AND CHARACTER_MAXIMUM_LENGTH = '5'",
         "Code"},
    });
}

TEST_F(EmbeddedStatementsTest, rowsAreChanged) {
    expectRows({
        {"UPDATE Orders SET Qty = Qty + 1, Price += 1 WHERE CRONo = 'a1'", "(1)"},
        {"SELECT Qty, Price FROM Orders WHERE CRONo = 'A1'", "6|2.5"},
        {"WITH N AS (SELECT RecID, ROW_NUMBER() OVER (ORDER BY RecID DESC) AS K FROM Orders)"
         " UPDATE Orders SET Qty = N.K FROM Orders INNER JOIN N ON Orders.RecID = N.RecID",
         "(3)"},
        {"SELECT Qty FROM Orders ORDER BY RecID", "3;2;1"},
        {"MERGE INTO Codes AS [T] USING (VALUES ('01', 'x'), ('01', 'new')) AS [S] ([CO], [Code])"
         " ON T.CO = S.CO AND T.Code = S.Code"
         " WHEN MATCHED THEN UPDATE SET [Text] = 'changed'"
         " WHEN NOT MATCHED THEN INSERT ([CO], [Code], [Text]) VALUES (S.CO, S.Code, 'made');",
         "(2)"},
        {"SELECT Code, Text FROM Codes ORDER BY Code", "A1|first;new|made;X|changed"},
        {"INSERT INTO Codes (CO, Code) SELECT CO, CRONo FROM Orders WHERE CRONo = 'B2'", "(1)"},
        // Five letters fit, however many bytes they take; a letter beyond the first plane is two.
        {"INSERT INTO Codes (CO, Code) VALUES ('3', 'Größe'), ('3', 'ДОМИК'), ('3', 'abc😀')",
         "(3)"},
        {"INSERT INTO Codes (CO, Code) VALUES ('3', 'Größen')", "error 2628"},
        {"UPDATE Codes SET Code = 'abcd😀' WHERE Code = 'abc😀'", "error 2628"},
        {"DELETE Codes WHERE CO = '3' AND Code IN ('GRÖSSE', 'GRÖßE', 'домик', 'abc😀')", "(3)"},
        {"DELETE O FROM Orders O JOIN Codes C ON C.Code = O.CRONo", "(2)"},
        {"SELECT CRONo FROM Orders", "C[3]%"},
        {"INSERT INTO Orders (CO) VALUES ('09') SELECT SCOPE_IDENTITY(), @@ROWCOUNT", "(1) 4|1"},
        {"SELECT CO, Code INTO #kept FROM Codes SELECT COUNT(*) FROM #kept DROP TABLE #kept",
         "(4) 4 (-1)"},
        {"TRUNCATE TABLE Codes SELECT COUNT(*) FROM Codes", "(-1) 0"},
    });
}

TEST_F(EmbeddedStatementsTest, rowsAreChangedThroughViewsOfOneTable) {
    for (const char* view : {
             "CREATE VIEW Firm1 AS SELECT RecID, CRONo AS No, Qty, CRONo + '?' AS Mark FROM Orders"
             " WHERE CO = '01'",
             "CREATE VIEW Few (Id, Number, Pieces) AS SELECT T.RecID, No, T.Qty FROM Firm1 T"
             " WHERE T.Qty < 100",
             "CREATE VIEW Everything AS SELECT * FROM Codes",
             "CREATE VIEW Joined AS SELECT O.CRONo, C.Text FROM Orders O JOIN Codes C ON C.Code = "
             "O.CRONo",
             "CREATE VIEW Grouped AS SELECT CO, COUNT(*) AS N FROM Orders GROUP BY CO",
             "CREATE VIEW Twice AS SELECT CO FROM Orders UNION ALL SELECT CO FROM Codes",
         }) {
        ASSERT_EQ(database_.answer(view), "(-1)") << view;
    }
    expectRows({
        {"UPDATE Firm1 SET Qty = Qty + 1, No = 'A' + Mark WHERE No = 'a1 '", "(1)"},
        {"SELECT CRONo, Qty FROM Orders ORDER BY RecID", "AA1?|6;b2|0;C[3]%|7"},
        {"UPDATE Firm1 SET Qty = 9 WHERE No = 'C[3]%'", "(0)"},
        {"UPDATE V SET Pieces += '10' FROM Few V JOIN Codes C ON C.Code = 'A1' WHERE V.Id = 2",
         "(1)"},
        {"UPDATE Few SET Pieces = Pieces * 100 UPDATE Few SET Pieces = 1", "(2) (0)"},
        {"SELECT Qty FROM Orders ORDER BY RecID", "600;1000;7"},
        {"UPDATE Orders SET Qty = 5 FROM Orders O JOIN Joined J ON J.CRONo = 'x' OR O.RecID = 3",
         "(0)"},
        {"INSERT INTO Everything (Code, CO) VALUES ('N', '03'), ('M', '03')", "(2)"},
        {"INSERT INTO Everything VALUES ('04', 'Q', 'text')", "(1)"},
        {"DELETE FROM Everything WHERE Code = 'm' DELETE TOP (1) FROM Everything WHERE CO = '01'",
         "(1) (1)"},
        {"DELETE E FROM Everything E JOIN Codes C ON C.Code = E.Code WHERE C.CO = '04'", "(1)"},
        {"SELECT COUNT(*) FROM Codes", "2"},
        {"UPDATE Firm1 SET Mark = 'x'", "error 4406"},
        {"UPDATE Firm1 SET CRONo = 'x'", "error 207"},
        {"INSERT INTO Firm1 (No, Mark) VALUES ('x', 'y')", "error 4406"},
        {"INSERT INTO Firm1 (No) VALUES ('x')", "error 515"},
        {"UPDATE Few SET Number = '012345678901234567890'", "error 2628"},
        {"UPDATE Grouped SET CO = 'x'", "error 4403"},
        {"DELETE FROM Joined", "error 4405"},
        {"DELETE FROM Twice", "error 4436"},
        {"DELETE FROM Firm1", "(2)"},
        {"SELECT CRONo FROM Orders", "C[3]%"},
    });
}

TEST_F(EmbeddedStatementsTest, refusalsBearTheServersNumbers) {
    expectRows({
        {"SELECT nope FROM Orders", "error 207"},
        {"SELECT * FROM nope", "error 208"},
        {"SELECT * FROM other..Orders", "error 208"},
        {"SELECT CO FROM Orders A JOIN Codes B ON 1 = 1", "error 209"},
        {"SELECT Z.CO FROM Orders A", "error 4104"},
        {"SELECT * FROM Orders WHERE Qty = 'abc'", "error 245"},
        {"SELECT * FROM Orders WHERE CRONo = 5", "error 245"},
        {"SELECT * FROM Orders WHERE Price = 'abc'", "error 8114"},
        {"UPDATE Orders SET Day = 'never'", "error 241"},
        {"UPDATE Orders SET Qty = '99999999999'", "error 248"},
        {"UPDATE Orders SET CO = CO + '0123456789'", "error 2628"},
        {"INSERT INTO Orders (CO) VALUES ('01234567890')", "error 2628"},
        {"INSERT INTO Orders (CO) VALUES (NULL)", "error 515"},
        {"INSERT INTO Orders (CRONo) VALUES ('x')", "error 515"},
        {"INSERT INTO Orders (RecID, CO) VALUES (1, 'a')", "error 544"},
        {"INSERT INTO Orders VALUES ('a')", "error 213"},
        {"INSERT INTO Codes VALUES ('01', 'a1  ', '')", "error 2627"},
        {"SELECT CRONo, COUNT(*) FROM Orders", "error 8120"},
        {"SELECT 1 / 0", "error 8134"},
        {"SELECT TOP (-1) CO FROM Orders", "error 127"},
        {"DECLARE @n INT = -1 SELECT TOP (@n) CO FROM Orders", "error 127"},
        {"DECLARE @n INT SELECT TOP (@n) CO FROM Orders", "error 1014"},
        {"SELECT TOP (NULL) CO FROM Orders", "error 1060"},
        {"DELETE TOP (-1) FROM Orders", "error 127"},
        {"UPDATE TOP (-1) Orders SET Qty = 0", "error 127"},
        {"SELECT CO FROM Orders ORDER BY CO OFFSET -1 ROWS", "error 10742"},
        {"SELECT CO FROM Orders ORDER BY CO OFFSET 0 ROWS FETCH NEXT 0 ROWS ONLY", "error 10744"},
        {"SELECT @x", "error 137"},
        {"SELECT nosuch(1)", "error 195"},
        {"SELECT FROM", "error 156"},
        {"SELECT 'open", "error 105"},
        {"EXEC nosuch", "error 2812"},
        {"ALTER TABLE Orders DROP COLUMN Qty", "error 5074"},
        {"CREATE TABLE Orders (a int)", "error 2714"},
        {"COMMIT", "error 3902"},
    });
    EXPECT_EQ(database_.answer("SELECT COUNT(*), SUM(Qty) FROM Orders"), "3|12");
}

TEST_F(EmbeddedStatementsTest, whatHasNoEndOrNoRoomIsRefused) {
    expectRows({
        {"WITH W (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM W) SELECT MAX(n) FROM W",
         "error 530"},
        {"WITH W (n) AS (SELECT 1 UNION ALL SELECT w.n + 1 FROM W AS w WHERE w.n < 101)"
         " SELECT MAX(n) FROM W",
         "101"},
        {"WITH W AS (SELECT 1 AS n, 'a' AS t UNION ALL SELECT n + 1, t FROM W WHERE n < 2)"
         " SELECT * FROM W",
         "1|a;2|a"},
        {"WITH W (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM W WHERE n < 3) SELECT MAX(n) FROM W"
         " OPTION (MAXRECURSION 1)",
         "error 530"},
        {"WITH W (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM W WHERE n < 999) SELECT MAX(n)"
         " FROM W OPTION (MAXRECURSION 0)",
         "999"},
        {"WITH W (n) AS (SELECT 1) SELECT n FROM W OPTION (MAXRECURSION 32768)", "error 310"},
        {"WITH W (n) AS (SELECT 1 UNION SELECT n FROM W) SELECT n FROM W", "error 252"},
        {"WITH Orders AS (SELECT CO FROM Orders) SELECT CO FROM Orders", "error 252"},
        {"WITH W (n) AS (SELECT 1 UNION ALL SELECT TOP 1 n FROM W) SELECT n FROM W", "error 461"},
        {"WITH W (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM W) INSERT INTO Orders (CO, CRONo, "
         "Qty) SELECT '09', n, n FROM W",
         "error 530"},
        {"SELECT COUNT(*) FROM Orders WHERE CO = '09'", "0"},
        {"DECLARE @s NVARCHAR(MAX) = REPLICATE(CAST('a' AS NVARCHAR(MAX)), 100000)"
         " SELECT LEN(REPLACE(@s, 'a', @s))",
         "error 7119"},
        {"SELECT CAST(-0.001 AS decimal(9, 2)), 0.0 * -1, ROUND(-0.4, 0)", "0|0|0"},
        {"SELECT SUM(n) FROM (SELECT 9223372036854775807 AS n UNION ALL SELECT 1) T", "error 8115"},
    });
}

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

TEST_F(EmbeddedStatementsTest, aFailedStatementEndsItsBatch) {
    expectRows({
        {"UPDATE Orders SET Qty = 1 ; UPDATE Orders SET nope = 1 ; UPDATE Orders SET Qty = 2",
         "(3) error 207"},
        {"SELECT DISTINCT Qty FROM Orders", "1"},
        {"UPDATE Orders SET Qty = 3 ; SELECT FROM", "error 156"},
        {"SELECT DISTINCT Qty FROM Orders", "1"},
        // The first row converts, the second does not: neither is changed.
        {"UPDATE Orders SET Qty = CRONo WHERE CO = '01'", "error 245"},
        {"SELECT DISTINCT Qty FROM Orders", "1"},
    });
}

TEST_F(EmbeddedStatementsTest, controlFlowAndProcedures) {
    expectRows({
        {"IF EXISTS (SELECT 1 FROM Orders WHERE CRONo = 'Z') SELECT 'there' ELSE SELECT 'not'",
         "not"},
        {"DECLARE @i INT = 0, @t NVARCHAR(3) = 'abcdef' WHILE @i < 9 BEGIN SET @i = @i + 1"
         " IF @i = 4 BREAK END SELECT @i, @t",
         "4|abc"},
        {"DECLARE @n INT SELECT @n = MAX(Qty) FROM Orders SELECT @n", "7"},
        {"BEGIN TRY UPDATE Orders SET Qty = 'x' END TRY BEGIN CATCH SELECT ERROR_NUMBER() END "
         "CATCH",
         "245"},
        {"DECLARE @t TABLE (a INT, b NVARCHAR(5)) INSERT INTO @t VALUES (1, 'x'), (2, 'y')"
         " SELECT b FROM @t WHERE a = '2'",
         "(2) y"},
        {"CREATE PROCEDURE p @a INT, @b NVARCHAR(3) = 'dflt', @c INT = NULL OUTPUT AS BEGIN"
         " SET NOCOUNT ON; SET @c = @a * 2; SELECT @a AS a, @b AS b; RETURN 7 END",
         "(-1)"},
        {"DECLARE @o INT, @r INT EXEC @r = p 3, @c = @o OUTPUT SELECT @o, @r", "3|dfl 6|7"},
        {"EXEC p '4', 'x'", "4|x"},
        {"EXEC p", "error 201"},
        {"EXEC p 1, 2, 3, 4", "error 8144"},
        {"EXEC p 'abc'", "error 8114"},
        {"EXEC('SELECT 5') EXEC sp_executesql N'SELECT @x + 1', N'@x INT', @x = 4", "5 5"},
        {"CREATE TABLE Kept (a int, b nvarchar(5)) INSERT INTO Kept EXEC p 8, 'y' SELECT * FROM "
         "Kept",
         "(-1) (1) 8|y"},
        {"RAISERROR('%s is %d', 16, 1, 'it', 5)", "error 50000"},
        {"THROW 51000, 'own', 1", "error 51000"},
        {"THROW 49999, 'own', 1", "error 35100"},
        {"THROW 50000 + 1, 'own', 1", "error 102"},
        {"RAISERROR(50000, 16, 1)", "error 2732"},
        // A bare word as an argument stands for its own text.
        {"CREATE PROCEDURE say @word NVARCHAR(9) AS SELECT @word", "(-1)"},
        {"EXEC say ANN EXEC say [a b] EXEC nobody ANN", "ANN a b error 2812"},
        {"say Ann", "Ann"},
        {"CREATE VIEW Open1 AS SELECT O.CRONo FROM Orders O INNER JOIN Codes C ON C.CO = O.CO",
         "(-1)"},
        {"CREATE TABLE Backed (a int DEFAULT (-1), b nvarchar(5) DEFAULT 'x')"
         " INSERT INTO Backed DEFAULT VALUES SELECT * FROM Backed",
         "(-1) (1) -1|x"},
    });
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

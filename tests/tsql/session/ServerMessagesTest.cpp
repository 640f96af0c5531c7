#include "support/EmbeddedDatabase.h"

#include <gtest/gtest.h>

using velcro::sql::SqlError;
using velcro::test::EmbeddedDatabase;

namespace {

/// What a user reads of each refusal: the server's number, grade and words.
class ServerMessagesTest : public testing::Test
{
protected:
    void SetUp() override {
        ASSERT_EQ(database_.answer(
                      "CREATE TABLE Item (RecID int IDENTITY(1,1) NOT NULL, Code nvarchar(5) NULL,"
                      " Qty int NOT NULL, Small tinyint NULL, Day datetime NULL, Price money NULL)"
                      " ALTER TABLE Item ADD CONSTRAINT Item_idx00 PRIMARY KEY (RecID)"
                      " CREATE INDEX Item_idx01 ON Item (Code)"
                      " INSERT INTO Item (Code, Qty) VALUES ('A1', 1), ('A2', 2)"),
                  "(-1) (-1) (-1) (2)");
    }

    /// "<number> <level> <text>", or "no error".
    std::string refusal(const std::string& batch) {
        try {
            database_.connection().run(batch, {}, [](velcro::sql::StatementResult&&) {});
        } catch (const SqlError& error) {
            sqlState_ = error.sqlState();
            return std::to_string(error.number()) + " " + std::to_string(error.message().level) +
                   " " + error.what();
        }
        return "no error";
    }

    EmbeddedDatabase database_;
    std::string sqlState_;
};

struct Row
{
    const char* batch;
    const char* refusal;
    const char* sqlState;
};

} // namespace

TEST_F(ServerMessagesTest, valuesThatDoNotFit) {
    const Row rows[] = {
        {"UPDATE Item SET Qty = 'x1'",
         "245 16 Conversion failed when converting the varchar value 'x1' to data type int.",
         "22018"},
        {"UPDATE Item SET Qty = N'x1'",
         "245 16 Conversion failed when converting the nvarchar value 'x1' to data type int.",
         "22018"},
        {"UPDATE Item SET Small = 300",
         "220 16 Arithmetic overflow error for data type tinyint, value = 300.", "22003"},
        {"UPDATE Item SET Small = '300'",
         "244 16 The conversion of the varchar value '300' overflowed an INT1 column. Use a larger "
         "integer column.",
         "22003"},
        {"UPDATE Item SET Qty = 2147483647 + Qty",
         "8115 16 Arithmetic overflow error converting expression to data type int.", "22003"},
        {"UPDATE Item SET Code = 'far too long'",
         "2628 16 String or binary data would be truncated in table 'Shop.dbo.Item', column "
         "'Code'. "
         "Truncated value: 'far t'.",
         "22001"},
        {"UPDATE Item SET Code = Code + '----'",
         "2628 16 String or binary data would be truncated in table 'Shop.dbo.Item', column "
         "'Code'. "
         "Truncated value: 'A1---'.",
         "22001"},
        {"UPDATE Item SET Day = '2026-02-30'",
         "242 16 The conversion of a varchar data type to a datetime data type resulted in an "
         "out-of-range value.",
         "22007"},
        {"UPDATE Item SET Price = 'dear'",
         "235 16 Cannot convert a char value to money. The char value has incorrect syntax.",
         "42000"},
        {"UPDATE Item SET Qty = NULL",
         "515 16 Cannot insert the value NULL into column 'Qty', table 'Shop.dbo.Item'; column "
         "does "
         "not allow nulls. UPDATE fails.",
         "23000"},
        {"UPDATE Item SET Qty = 5 / (Qty - Qty)", "8134 16 Divide by zero error encountered.",
         "22012"}};
    for (const auto& row : rows) {
        EXPECT_EQ(refusal(row.batch), row.refusal) << row.batch;
        EXPECT_EQ(sqlState_, row.sqlState) << row.batch;
    }
    EXPECT_EQ(database_.answer("SELECT Code, Qty FROM Item"), "A1|1;A2|2") << "nothing was changed";
}

TEST_F(ServerMessagesTest, namesAndShapes) {
    const Row rows[] = {
        {"SELECT Nope FROM Item", "207 16 Invalid column name 'Nope'.", "42S22"},
        {"SELECT * FROM Nope", "208 16 Invalid object name 'Nope'.", "42S02"},
        {"SELECT N.Code FROM Item",
         "4104 16 The multi-part identifier \"N.Code\" could not be "
         "bound.",
         "42000"},
        {"SELECT LEFT('abc')", "174 15 The left function requires 2 argument(s).", "42000"},
        {"SELECT ROUND(1)", "189 15 The round function requires 2 to 3 arguments.", "42000"},
        {"SELECT DATEADD(fortnight, 1, Day) FROM Item",
         "155 15 'fortnight' is not a recognized datepart option.", "42000"},
        {"SELECT SUBSTRING(Code, 1, -1) FROM Item",
         "537 16 Invalid length parameter passed to the LEFT or SUBSTRING function.", "42000"},
        {"DROP TABLE Nope",
         "3701 11 Cannot drop the table 'Nope', because it does not exist or you do not have "
         "permission.",
         "42S02"},
        {"CREATE TABLE Item (a int)",
         "2714 16 There is already an object named 'Item' in the database.", "42S01"},
        {"ALTER TABLE Item ADD CODE int",
         "2705 16 Column names in each table must be unique. Column name 'CODE' in table 'Item' is "
         "specified more than once.",
         "42S21"},
        {"ALTER TABLE Item DROP COLUMN Nope",
         "4924 16 ALTER TABLE DROP COLUMN failed because column 'Nope' does not exist in table "
         "'Item'.",
         "42S22"},
        {"ALTER TABLE Item ALTER COLUMN Code nvarchar(3)",
         "5074 16 The index 'Item_idx01' is dependent on column 'Code'.\nALTER TABLE ALTER COLUMN "
         "Code failed because one or more objects access this column.",
         "42000"},
        {"CREATE INDEX Item_idx01 ON Item (Qty)",
         "1913 16 The operation failed because an index or statistics with name 'Item_idx01' "
         "already "
         "exists on table 'Item'.",
         "42S11"},
        {"DROP INDEX [ Item_idx01] ON [dbo].[Item] ",
         "3701 11 Cannot drop the index 'Item. Item_idx01', because it does not exist or you do "
         "not "
         "have permission.",
         "42S02"},
        {"SET IDENTITY_INSERT Item ON INSERT INTO Item (RecID, Qty) VALUES (1, 1)",
         "2627 14 Violation of PRIMARY KEY constraint 'Item_idx00'. Cannot insert duplicate key in "
         "object 'dbo.Item'. The duplicate key value is (1).",
         "23000"}};
    for (const auto& row : rows) {
        EXPECT_EQ(refusal(row.batch), row.refusal) << row.batch;
        EXPECT_EQ(sqlState_, row.sqlState) << row.batch;
    }
}

TEST_F(ServerMessagesTest, aKeyThatIsTakenIsNamedWithItsValue) {
    ASSERT_EQ(database_.answer("CREATE TABLE Pair (A nvarchar(9) NULL, B int NULL, C float NULL,"
                               " CONSTRAINT Pair_c UNIQUE (C))"
                               " CREATE UNIQUE INDEX Pair_ab ON Pair (A, B)"
                               " INSERT INTO Pair VALUES ('O''Neil', 1, 1.5), (NULL, 2, 2)"
                               " INSERT INTO Item (Code, Qty) VALUES ('A1', 3)"),
              "(-1) (-1) (2) (1)");
    const std::string row = "2601 14 Cannot insert duplicate key row in object 'dbo.Pair' with "
                            "unique index 'Pair_ab'. The duplicate key value is ";
    const std::pair<std::string, std::string> rows[] = {
        {"INSERT INTO Pair VALUES ('x', 1, 3), ('o''neil ', 1, 4)", row + "(O'Neil, 1)."},
        {"INSERT INTO Pair VALUES ('x', 1, 3), ('X', 1, 4)", row + "(x, 1)."},
        {"INSERT INTO Pair SELECT A, B, C + 7 FROM Pair WHERE A IS NULL", row + "(<NULL>, 2)."},
        {"UPDATE Pair SET A = NULL, B = 2", row + "(<NULL>, 2)."},
        {"UPDATE Pair SET C = 1.5 WHERE B = 2",
         "2627 14 Violation of UNIQUE KEY constraint 'Pair_c'. Cannot insert duplicate key in "
         "object 'dbo.Pair'. The duplicate key value is (1.5)."},
        {"CREATE UNIQUE INDEX Item_u ON Item (Code)",
         "1505 16 The CREATE UNIQUE INDEX statement terminated because a duplicate key was found "
         "for the object name 'dbo.Item' and the index name 'Item_u'. The duplicate key value is "
         "(A1)."}};
    for (const auto& [batch, words] : rows) {
        EXPECT_EQ(refusal(batch), words) << batch;
        EXPECT_EQ(refusal("BEGIN TRAN " + batch), words) << batch;
        EXPECT_EQ(database_.answer("SELECT @@TRANCOUNT ROLLBACK SELECT A, B, C FROM Pair"),
                  "1 O'Neil|1|1.5;NULL|2|2")
            << batch;
    }
}

TEST_F(ServerMessagesTest, longTextsAndArgumentsOfTheWrongKind) {
    ASSERT_EQ(database_.answer("CREATE TABLE Paper (Notes ntext, Old text, Scan image)"
                               " INSERT INTO Paper VALUES ('n', 'o', 0x41)"),
              "(-1) (1)");
    const std::pair<const char*, const char*> rows[] = {
        {"SELECT 1 FROM Paper WHERE Notes = 'n'",
         "402 16 The data types ntext and varchar are incompatible in the equal to operator."},
        {"UPDATE Paper SET Old = '' WHERE N'' <> Old",
         "402 16 The data types nvarchar and text are incompatible in the not equal to operator."},
        {"SELECT 1 FROM Paper WHERE Scan IN (0x41)",
         "402 16 The data types image and varbinary are incompatible in the equal to operator."},
        {"SELECT Old FROM Paper ORDER BY Notes",
         "306 16 The text, ntext, and image data types cannot be compared or sorted, except when "
         "using IS NULL or LIKE operator."},
        {"SELECT COUNT(*) FROM Paper GROUP BY Old",
         "306 16 The text, ntext, and image data types cannot be compared or sorted, except when "
         "using IS NULL or LIKE operator."},
        {"SELECT DISTINCT Notes FROM Paper",
         "421 16 The ntext data type cannot be selected as DISTINCT because it is not comparable."},
        {"SELECT MAX(Notes) FROM Paper",
         "8117 16 Operand data type ntext is invalid for max operator."},
        {"SELECT LEN(Notes) FROM Paper",
         "8116 16 Argument data type ntext is invalid for argument 1 of len function."},
        {"SELECT LEFT(Old, 1) FROM Paper",
         "8116 16 Argument data type text is invalid for argument 1 of left function."},
        {"SELECT REPLACE('a', 'a', Notes) FROM Paper",
         "8116 16 Argument data type ntext is invalid for argument 3 of replace function."},
        {"SELECT SUBSTRING(Qty, 1, 1) FROM Item",
         "8116 16 Argument data type int is invalid for argument 1 of substring function."},
        {"SELECT SUBSTRING(NULL, 1, 1)",
         "8116 16 Argument data type NULL is invalid for argument 1 of substring function."},
        {"SELECT CHARINDEX(Day, Code) FROM Item",
         "8116 16 Argument data type datetime is invalid for argument 1 of charindex function."},
        {"SELECT ROUND(1.5, 'two')",
         "8116 16 Argument data type varchar is invalid for argument 2 of round function."},
        {"WITH c AS (SELECT 1 n UNION ALL SELECT n + 1 FROM c) SELECT n FROM c",
         "530 16 The statement terminated. The maximum recursion 100 has been exhausted before "
         "statement completion."},
        {"WITH c (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c AS d WHERE n < 5)"
         " SELECT * FROM c OPTION (MAXRECURSION 3)",
         "530 16 The statement terminated. The maximum recursion 3 has been exhausted before "
         "statement completion."},
        {"WITH c AS (SELECT 1 n) SELECT n FROM c OPTION (MAXRECURSION 40000)",
         "310 15 The value 40000 specified for the MAXRECURSION option exceeds the allowed maximum "
         "of 32767."},
        {"SELECT Code FROM Item WHERE Qty = (SELECT Qty FROM Item)",
         "512 16 Subquery returned more than 1 value. This is not permitted when the subquery "
         "follows =, !=, <, <= , >, >= or when the subquery is used as an expression."}};
    for (const auto& [batch, words] : rows) {
        EXPECT_EQ(refusal(batch), words) << batch;
    }
    EXPECT_EQ(database_.answer("SELECT SUBSTRING(Notes, 1, 1), PATINDEX('%o%', Old),"
                               " CHARINDEX('n', Notes), DATALENGTH(Scan) FROM Paper"
                               " WHERE Notes LIKE 'N' AND Old IS NOT NULL"),
              "n|1|1|1");
    EXPECT_EQ(database_.answer("WITH c (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c"
                               " WHERE n < 101) SELECT COUNT(*), MAX(n) FROM c"
                               " WITH c AS (SELECT 1 n UNION ALL SELECT n + 1 FROM c WHERE n < 300)"
                               " SELECT COUNT(*) FROM c OPTION (MAXRECURSION 0)"),
              "101|101 300");
    EXPECT_EQ(database_.answer("SELECT Code, (SELECT Code FROM Item I WHERE I.Qty = T.Qty + 1),"
                               " (SELECT MAX(Qty) FROM Item I WHERE I.Qty <= T.Qty) FROM Item T"),
              "A1|A2|1;A2|NULL|2");
}

TEST_F(ServerMessagesTest, textThatIsNoStatementAndValuesOfTheWrongKind) {
    ASSERT_EQ(database_.answer("CREATE PROCEDURE Asks @a int AS SELECT @a"), "(-1)");
    const std::pair<const char*, const char*> rows[] = {
        {"SELECT Code FROM Item WHERE )", "102 15 Incorrect syntax near ')'."},
        {"SELECT 'open", "105 15 Unclosed quotation mark after the character string 'open'."},
        {"SELECT FROM Item", "156 15 Incorrect syntax near the keyword 'FROM'."},
        {"EXEC Asks",
         "201 16 Procedure or function 'Asks' expects parameter '@a', which was not supplied."},
        {"INSERT INTO Item VALUES ('a')",
         "213 16 Column name or number of supplied values does not match table definition."},
        {"UPDATE Item SET Day = 'never'",
         "241 16 Conversion failed when converting date and/or time from character string."},
        {"UPDATE Item SET Qty = '99999999999'",
         "248 16 The conversion of the varchar value '99999999999' overflowed an int column."},
        {"INSERT INTO Item (RecID, Qty) VALUES (9, 1)",
         "544 16 Cannot insert explicit value for identity column in table 'Item' when "
         "IDENTITY_INSERT is set to OFF."},
        {"EXEC Nowhere", "2812 16 Could not find stored procedure 'Nowhere'."},
        {"ALTER TABLE Nowhere ADD a int",
         "4902 16 Cannot find the object \"Nowhere\" because it does not exist or you do not have "
         "permissions."},
        {"SELECT CAST('dear' AS float)", "8114 16 Error converting data type varchar to float."}};
    for (const auto& [batch, words] : rows) {
        EXPECT_EQ(refusal(batch), words) << batch;
    }
}

TEST_F(ServerMessagesTest, statesAndLines) {
    ASSERT_EQ(database_.answer("CREATE PROCEDURE Asks @a int AS SELECT @a"), "(-1)");
    const std::pair<const char*, int> rows[] = {{"SELECT Code FROM Item WHERE )", 1},
                                                {"SELECT FROM Item", 1},
                                                {"EXEC Asks", 4},
                                                {"SELECT Nope FROM Item", 1},
                                                {"INSERT INTO Item VALUES ('a')", 1},
                                                {"UPDATE Item SET Qty = 'x1'", 1},
                                                {"UPDATE Item SET Qty = NULL", 2},
                                                {"CREATE TABLE Item (a int)", 6},
                                                {"ALTER TABLE Item ADD CODE int", 4},
                                                {"EXEC Nowhere", 62},
                                                {"DROP TABLE Nope", 5},
                                                {"SELECT CAST('dear' AS float)", 5}};
    for (const auto& [batch, state] : rows) {
        try {
            database_.connection().execute(std::string("SET NOCOUNT ON\r\n\r\n") + batch);
            ADD_FAILURE() << batch;
        } catch (const SqlError& error) {
            EXPECT_EQ(error.message().state, state) << batch;
            EXPECT_EQ(error.message().line, 3) << batch;
        }
    }
}

TEST_F(ServerMessagesTest, aStatementSeenBeforeNamesTheLineItStandsInNow) {
    const std::string before = "UPDATE Item SET Qty = 3 ;\n";
    const std::pair<std::string, int> batches[] = {{before + "\nSELECT Nope FROM Item", 3},
                                                   {"SELECT Nope FROM Item", 1},
                                                   {before + "SELECT Nope FROM Item", 2},
                                                   {before + "\nSELECT Nope FROM Item", 3}};
    for (const auto& [batch, line] : batches) {
        try {
            database_.connection().execute(batch);
            ADD_FAILURE() << batch;
        } catch (const SqlError& error) {
            EXPECT_EQ(error.message().line, line) << batch;
        }
    }
}

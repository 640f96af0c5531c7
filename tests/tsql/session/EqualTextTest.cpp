// Texts that only their case or their trailing blanks tell apart are one value, whatever plan answers:
// an index, a hash, a sort, a grouping, a join or a comparison row by row.
#include "support/EmbeddedDatabase.h"

#include <gtest/gtest.h>

using velcro::test::EmbeddedDatabase;

namespace {

/// K has three spellings of one key, two of another and a NULL; so has X, under indexes.
class EqualTextTest : public testing::Test
{
protected:
    void SetUp() override {
        database_.answer("CREATE TABLE K (Id int, K nvarchar(10), J varchar(20), S sql_variant)"
                         " CREATE TABLE X (Id int, K nvarchar(10), N int)"
                         " CREATE INDEX X_1 ON X (K) CREATE UNIQUE INDEX X_2 ON X (K, Id)"
                         " INSERT INTO K VALUES (1, 'abc', 'abc', 'abc'), (2, 'ABC  ', 'x', 'ABC'),"
                         " (3, 'aBc ', 'x', 1), (4, N'größe', 'x', 2), (5, N'GRÖßE ', 'x', 3),"
                         " (6, NULL, NULL, NULL)"
                         " INSERT INTO X SELECT Id, K, NULL FROM K"
                         " SELECT K + '' AS K INTO Made FROM K");
        database_.answer("CREATE VIEW V AS SELECT Id, K + '' AS Sum, UPPER(K) AS Upper FROM K");
        database_.answer("CREATE VIEW Both AS SELECT K FROM K UNION SELECT K + '' FROM X");
        database_.answer("CREATE VIEW Groups AS SELECT K, COUNT(*) AS N FROM K GROUP BY K");
    }

    EmbeddedDatabase database_;
};

struct Count
{
    const char* from; // behind SELECT COUNT(*) FROM
    const char* answer;
};

} // namespace

TEST_F(EqualTextTest, joinsOfTextWithoutAnIndexLoseNoRows) {
    const auto join = [this](const std::string& one, const std::string& other) {
        database_.answer("TRUNCATE TABLE F1 TRUNCATE TABLE F2");
        for (int i = 0; i < 40; ++i) {
            const std::string number = std::to_string(i);
            database_.answer("INSERT INTO F1 VALUES (N'" + one + "', '" + number +
                             "') INSERT INTO F2 VALUES (N'" + other + "', NULL)");
        }
        return database_.answer("SELECT COUNT(*) FROM F1 T0 INNER JOIN F2 T1"
                                " ON T1.A = T0.A AND T1.N IS NULL WHERE T0.B <> '4'");
    };
    database_.answer("CREATE TABLE F1 (A nvarchar(9), B nvarchar(9))"
                     " CREATE TABLE F2 (A nvarchar(9), N int)");
    EXPECT_EQ(join("abc ", "abc"), "1560");
    // The small form of this letter is a byte longer than the capital.
    EXPECT_EQ(join("\u023A", "\u2C65"), "1560");
    EXPECT_EQ(join("abc", "ABD"), "0");
}

TEST_F(EqualTextTest, everyPlanComparesByTheCollation) {
    const Count counts[] = {
        {"K A JOIN X B ON A.K = B.K", "13"},
        {"V A JOIN V B ON A.Sum = B.Upper", "13"},
        {"V A JOIN X B ON A.Upper = B.K", "13"},
        {"X A LEFT JOIN K B ON A.K = B.K AND B.Id = 1 WHERE B.Id IS NOT NULL", "3"},
        {"X A FULL JOIN K B ON A.K = B.K", "15"},
        {"X A JOIN K B ON A.K = B.K AND B.K = 'abc' AND A.K = 'ABC '", "9"},
        {"X A JOIN X B ON LEFT(A.K, 3) = SUBSTRING(B.K, 1, 3)", "13"},
        {"Made A JOIN K B ON A.K = B.K", "13"},
        {"(VALUES ('abc'), ('ABC  ')) A (Q) JOIN X ON X.K = A.Q", "6"},
        {"(SELECT UPPER(K) AS Q FROM K UNION ALL SELECT K FROM K) T JOIN X ON X.K = T.Q", "26"},
        {"(SELECT DISTINCT K FROM X) T", "3"},
        {"(SELECT DISTINCT K + '' AS Q FROM K) T", "3"},
        {"(SELECT DISTINCT S FROM K WHERE Id < 3) T", "1"},
        {"(SELECT K FROM X GROUP BY K) T", "3"},
        {"(SELECT Upper FROM V GROUP BY Upper) T", "3"},
        {"(SELECT K, SUM(Id) AS S FROM X GROUP BY K HAVING K = 'ABC') T WHERE S = 6", "1"},
        {"Both", "3"},
        {"Groups WHERE K = 'ABC' AND N = 3", "1"},
        {"(SELECT K FROM X INTERSECT SELECT J FROM K) T", "2"},
        {"(SELECT K FROM X EXCEPT SELECT J FROM K) T", "1"},
        {"K WHERE K IN ('ABC', 'q')", "3"},
        {"X WHERE K NOT IN ('ABC', 'q')", "2"},
        {"X WHERE 'abc ' IN (J, K)", "error 207"},
        {"K WHERE 'abc ' IN (J, K)", "3"},
        {"K WHERE K + '' IN (SELECT K FROM X)", "5"},
        {"X WHERE K IN (SELECT Upper FROM V)", "5"},
        {"K WHERE K NOT IN (SELECT J FROM K WHERE J IS NOT NULL)", "2"},
        {"K WHERE 'ABC' IN (SELECT J FROM K)", "6"},
        {"K WHERE EXISTS (SELECT 1 FROM X WHERE X.K = K.K AND X.Id = 1)", "3"},
        {"K WHERE K <> ALL (SELECT K FROM X WHERE Id < 4)", "2"},
        {"K WHERE (SELECT K) = 'ABC'", "3"},
        {"K A WHERE (SELECT MAX(K) FROM X WHERE X.K = A.K) = 'ABC'", "3"},
        {"(SELECT MAX(K) AS A, MIN(K + '') AS B FROM X WHERE Id < 4) T WHERE A = B", "1"},
        {"(SELECT COUNT(DISTINCT K) AS A, COUNT(DISTINCT K + '') AS B FROM X) T WHERE A + B = 4",
         "1"},
        {"X WHERE K BETWEEN 'ABC' AND 'abc  ' OR K = N'Größe'", "5"},
        {"K WHERE CASE K WHEN 'ABC' THEN 1 END = 1", "3"},
        {"K WHERE NULLIF(K, 'ABC') IS NULL", "4"},
        {"K WHERE COALESCE(K, 'x') = 'ABC'", "3"},
        {"K WHERE S = 'ABC'", "2"},
        {"K WHERE CASE WHEN Id > 0 THEN S END = 'aBC '", "2"},
        {"(SELECT ROW_NUMBER() OVER (PARTITION BY K ORDER BY Id) AS N FROM X) T WHERE N = 3", "1"},
        {"(SELECT RANK() OVER (ORDER BY K + '') AS N FROM X) T WHERE N = 5", "2"},
        {"INFORMATION_SCHEMA.COLUMNS WHERE 'NVARCHAR' = DATA_TYPE AND TABLE_NAME = 'k '", "1"},
        {"sys.objects O JOIN INFORMATION_SCHEMA.TABLES T ON O.name = LOWER(T.TABLE_NAME) + ' '",
         "6"},
    };
    for (const auto& [from, answer] : counts) {
        EXPECT_EQ(database_.answer(std::string("SELECT COUNT(*) FROM ") + from), answer) << from;
    }
}

TEST_F(EqualTextTest, changesMeetTheSameRows) {
    const auto expect = [this](const char* batch, const char* answer) {
        EXPECT_EQ(database_.answer(batch), answer) << batch;
    };
    expect("CREATE TABLE U (K nvarchar(9) NULL UNIQUE, S sql_variant NULL UNIQUE)", "(-1)");
    expect("INSERT INTO U VALUES ('abc', 'abc')", "(1)");
    expect("INSERT INTO U VALUES ('ABC ', 'x')", "error 2627");
    expect("INSERT INTO U VALUES ('x', 'ABC')", "error 2627");
    expect("UPDATE A SET N = 1 FROM X A JOIN K B ON A.K = B.K WHERE B.Id = 1", "(3)");
    expect("MERGE INTO X USING (VALUES ('Abc')) S (K) ON X.K = S.K WHEN MATCHED THEN UPDATE"
           " SET N = 2 WHEN NOT MATCHED THEN INSERT (K) VALUES (S.K);",
           "(3)");
    expect("DECLARE @k nvarchar(9) = 'ABC' DELETE FROM X WHERE K = @k AND N = 2", "(3)");
}

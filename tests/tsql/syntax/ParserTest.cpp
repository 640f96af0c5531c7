#include "tsql/syntax/Parser.h"

#include "tsql/syntax/TreeText.h"
#include "tsql/values/Errors.h"

#include <gtest/gtest.h>

using namespace velcro::sql::tsql;

namespace {

struct Reading
{
    std::string_view text;
    std::string_view tree = {}; // without the last semicolon; blank when it is the text itself
};

/// Parses the text, compares its tree, and checks that the tree's text gives the same tree again.
void expectReading(const Reading& reading) {
    try {
        const std::string tree = treeText(parse(reading.text));
        const std::string expected(reading.tree.empty() ? reading.text : reading.tree);
        EXPECT_EQ(tree, expected.ends_with(';') ? expected : expected + ";");
        EXPECT_EQ(treeText(parse(tree)), tree);
    } catch (const Fault& fault) {
        ADD_FAILURE() << reading.text << "\n" << fault.number() << " " << fault.what();
    }
}

template <std::size_t Count>
void expectAll(const Reading (&readings)[Count]) {
    for (const Reading& reading : readings) {
        expectReading(reading);
    }
}

TEST(ParserTest, BindsOperatorsAsTheServerDoes) {
    const Reading readings[] = {
        {"SELECT 1 + 2 * 3 - -4 % 5", "SELECT ((1 + (2 * 3)) - ((- 4) % 5))"},
        {"SELECT (1 + 2) * 3 & 4 | ~5 ^ 6", "SELECT (((((1 + 2) * 3) & 4) | (~ 5)) ^ 6)"},
        {"SELECT a WHERE a = 1 OR b <> 2 AND NOT c < 3",
         "SELECT a WHERE ((a = 1) OR ((b <> 2) AND (NOT (c < 3))))"},
        {"SELECT a WHERE (a = 1 OR b = 2) AND c IS NOT NULL AND d IS NULL",
         "SELECT a WHERE (((a = 1) OR (b = 2)) AND (c IS NOT NULL) AND (d IS NULL))"},
        {"SELECT a WHERE a BETWEEN 1 AND 2 AND b NOT BETWEEN @x + 1 AND @@ROWCOUNT",
         "SELECT a WHERE ((a BETWEEN 1 AND 2) AND (b NOT BETWEEN (@x + 1) AND @@ROWCOUNT))"},
        {"SELECT a WHERE a LIKE '%' + :P + '[_]' ESCAPE '\\' OR b NOT LIKE N'x'",
         "SELECT a WHERE ((a LIKE (('%' + :P) + '[_]') ESCAPE '\\') OR (b NOT LIKE N'x'))"},
        {"SELECT a WHERE a IN ('O', 'N') AND b NOT IN (SELECT c FROM t)",
         "SELECT a WHERE ((a IN ('O', 'N')) AND (b NOT IN (SELECT c FROM t)))"},
        {"SELECT a WHERE EXISTS (SELECT * FROM t) AND a >= ALL (SELECT b FROM t) AND a = SOME "
         "(SELECT 1)",
         "SELECT a WHERE (EXISTS (SELECT * FROM t) AND (a >= ALL (SELECT b FROM t)) AND (a = ANY "
         "(SELECT 1)))"},
        {"SELECT CASE WHEN a = 1 THEN 'x' ELSE NULL END, CASE a WHEN 1 THEN 2 END",
         "SELECT CASE WHEN (a = 1) THEN 'x' ELSE NULL END, CASE a WHEN 1 THEN 2 END"},
        {"SELECT a COLLATE Latin1_General_BIN + 'x', (SELECT MAX(b) FROM t)",
         "SELECT (a COLLATE Latin1_General_BIN + 'x'), (SELECT MAX(b) FROM t)"},
    };
    expectAll(readings);
}

TEST(ParserTest, ReadsCallsCastsAndTypes) {
    const Reading readings[] = {
        {"SELECT CAST(CONCAT([TranDate], ' ', [TranTime]) AS DATETIME) AS [TimeStamp], *",
         "SELECT CAST(CONCAT(TranDate, ' ', TranTime) AS datetime) AS TimeStamp, *"},
        {"SELECT CONVERT(NVARCHAR(MAX), a, 121), TRY_CONVERT(decimal(9, 2), a), TRY_CAST(a AS "
         "DOUBLE PRECISION)",
         "SELECT CONVERT(nvarchar(max), a, 121), TRY_CONVERT(decimal(9, 2), a), TRY_CAST(a AS "
         "float)"},
        {"SELECT current_timestamp as SDate, GETDATE(), @@SPID",
         "SELECT current_timestamp AS SDate, GETDATE(), @@SPID"},
        {"SELECT COUNT(*), COUNT(DISTINCT a), LEFT(a, 2), RIGHT(a, 2), COALESCE(a, b), "
         "NULLIF(a, ''), dbo.f(1), IIF(a = 1, 2, 3)",
         "SELECT COUNT(*), COUNT(DISTINCT a), LEFT(a, 2), RIGHT(a, 2), COALESCE(a, b), "
         "NULLIF(a, ''), dbo.f(1), IIF((a = 1), 2, 3)"},
        {"SELECT ROW_NUMBER() OVER (PARTITION BY a ORDER BY CAST(b AS INT), c DESC) n, SUM(a) "
         "OVER (ORDER BY b ROWS UNBOUNDED PRECEDING), DATEADD(day, -1, d)",
         "SELECT ROW_NUMBER() OVER (PARTITION BY a ORDER BY CAST(b AS int), c DESC) AS n, SUM(a) "
         "OVER (ORDER BY b ROWS BETWEEN UNBOUNDED PRECEDING AND CURRENT ROW), DATEADD(day, (- 1), "
         "d)"},
        {"SELECT T0.*, db..t.c, [a ]] b].[select], 0x1F, $5, 1e3, 'it''s'"},
    };
    expectAll(readings);
}

TEST(ParserTest, ReadsQueries) {
    const Reading readings[] = {
        {"SELECT TOP(2000) [Account], [Name] FROM DEBMaster WITH (NOLOCK) WHERE [CO] = '1' ORDER "
         "BY [Name]",
         "SELECT TOP (2000) Account, Name FROM DEBMaster WITH (NOLOCK) WHERE (CO = '1') ORDER BY "
         "Name"},
        {"SELECT DISTINCT TOP 5 a FROM t (NOLOCK), u x (UPDLOCK, INDEX(ix))",
         "SELECT DISTINCT TOP (5) a FROM t WITH (NOLOCK), u AS x WITH (UPDLOCK, "
         "INDEX = 0)"},
        {"SELECT a FROM u x (UPDLOCK, INDEX(i1, [INDEX], i2) HOLDLOCK), v WITH (INDEX = (i), "
         "TABLOCK)",
         "SELECT a FROM u AS x WITH (UPDLOCK, INDEX = 0, HOLDLOCK), v WITH (INDEX = 0, TABLOCK)"},
        {"SELECT T0.*, T2.d FROM a T0 LEFT OUTER JOIN b T1 ON T1.c = T0.c INNER JOIN e AS T2 ON "
         "T2.c = T1.c",
         "SELECT T0.*, T2.d FROM a AS T0 LEFT JOIN b AS T1 ON (T1.c = T0.c) INNER JOIN e AS T2 ON "
         "(T2.c = T1.c)"},
        {"SELECT 1 FROM a JOIN b JOIN c ON b.x = c.x ON a.x = b.x CROSS JOIN d FULL JOIN e ON 1 = "
         "1 RIGHT JOIN f ON 2 = 2",
         "SELECT 1 FROM a INNER JOIN (b INNER JOIN c ON (b.x = c.x)) ON (a.x = b.x) CROSS JOIN d "
         "FULL JOIN e ON (1 = 1) RIGHT JOIN f ON (2 = 2)"},
        {"SELECT x.a FROM (SELECT 1 AS a) x, (VALUES (1, 'p'), (2, 'q')) AS y (n, s)",
         "SELECT x.a FROM (SELECT 1 AS a) AS x, (VALUES (1, 'p'), (2, 'q')) AS y (n, s)"},
        {"SELECT a, SUM(b) AS s FROM t GROUP BY a HAVING SUM(b) > 1 ORDER BY 2 DESC, a ASC",
         "SELECT a, SUM(b) AS s FROM t GROUP BY a HAVING (SUM(b) > 1) ORDER BY 2 DESC, a"},
        {"SELECT a FROM t ORDER BY a OFFSET 0 ROWS FETCH NEXT @PageSize ROWS ONLY OPTION (OPTIMIZE "
         "FOR UNKNOWN, RECOMPILE)"},
        {"SELECT 1 UNION ALL SELECT 2 UNION SELECT 3 EXCEPT SELECT 4 INTERSECT SELECT 5 ORDER BY 1",
         "((SELECT 1 UNION ALL SELECT 2) UNION SELECT 3) EXCEPT (SELECT 4 INTERSECT SELECT 5) "
         "ORDER "
         "BY 1"},
        {"SELECT 1 UNION (SELECT 2 UNION ALL SELECT 3)"},
        {"SELECT ((SELECT 1) UNION SELECT 2), ((SELECT 1) + 2) FROM ((SELECT 3) EXCEPT SELECT 4) x",
         "SELECT (SELECT 1 UNION SELECT 2), ((SELECT 1) + 2) FROM (SELECT 3 EXCEPT SELECT 4) AS x"},
        {"WITH c (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c WHERE n < 9), d AS (SELECT 2 m) "
         "SELECT * FROM c, d OPTION (MAXRECURSION 0)",
         "WITH c (n) AS (SELECT 1 UNION ALL SELECT (n + 1) FROM c WHERE (n < 9)), d AS (SELECT 2 "
         "AS m) SELECT * FROM c, d OPTION (MAXRECURSION 0)"},
        {"SELECT @x = a, n = b, 'm' = c, d 'e' INTO #t FROM db.dbo.u",
         "SELECT @x = a, b AS n, c AS m, d AS e INTO #t FROM db.dbo.u"},
        {"SELECT * FROM INFORMATION_SCHEMA.[Columns] WHERE COLUMN_NAME IN ('A','B')",
         "SELECT * FROM INFORMATION_SCHEMA.Columns WHERE (COLUMN_NAME IN ('A', 'B'))"},
    };
    expectAll(readings);
}

TEST(ParserTest, ReadsStatementsOnRows) {
    const Reading readings[] = {
        {"INSERT INTO t ( [a], b ) VALUES ( 'x', 1 ), (NULL, DEFAULT)",
         "INSERT INTO t (a, b) VALUES ('x', 1), (NULL, DEFAULT)"},
        {"INSERT t (SELECT 1)", "INSERT INTO t SELECT 1"},
        {"INSERT t WITH (TABLOCK) DEFAULT VALUES", "INSERT INTO t DEFAULT VALUES"},
        {"INSERT INTO t (a) EXEC p @x", "INSERT INTO t (a) EXEC p @x"},
        {"INSERT INTO t (a) OUTPUT inserted.a SELECT a FROM u WHERE 1 = 1",
         "INSERT INTO t (a) OUTPUT inserted.a SELECT a FROM u WHERE (1 = 1)"},
        {"UPDATE vcVersions SET [Version] = '2',[LastPCName] = 'PC' WHERE [Suite] = 'S'",
         "UPDATE vcVersions SET Version = '2', LastPCName = 'PC' WHERE (Suite = 'S')"},
        {"WITH CTE AS (SELECT [RecID], ROW_NUMBER() OVER (ORDER BY CAST(ImageID AS INT)) AS "
         "[NewImageID] FROM CRORepItmImages) UPDATE CRORepItmImages SET [ImageID] = CTE.NewImageID "
         "FROM CRORepItmImages INNER JOIN CTE ON CRORepItmImages.RecID = CTE.RecID",
         "WITH CTE AS (SELECT RecID, ROW_NUMBER() OVER (ORDER BY CAST(ImageID AS int)) AS "
         "NewImageID FROM CRORepItmImages) UPDATE CRORepItmImages SET ImageID = CTE.NewImageID "
         "FROM CRORepItmImages INNER JOIN CTE ON (CRORepItmImages.RecID = CTE.RecID)"},
        {"UPDATE TOP (1) t SET @n = a = a + 1, b += 2, @m = 3, t.c = DEFAULT OUTPUT deleted.a",
         "UPDATE TOP (1) t SET @n = a = (a + 1), b += 2, @m = 3, t.c = DEFAULT OUTPUT deleted.a"},
        {"DELETE T0 FROM t T0 JOIN u ON u.a = T0.a WHERE u.b = 1",
         "DELETE FROM T0 FROM t AS T0 INNER JOIN u ON (u.a = T0.a) WHERE (u.b = 1)"},
        {"MERGE INTO SYSSaveGrids AS [Target] USING (VALUES (:CO, :UserCode)) AS [Source] ([CO], "
         "[UserCode]) ON Target.CO = Source.CO WHEN MATCHED THEN UPDATE SET [GridSettings] = :G "
         "WHEN NOT MATCHED THEN INSERT ([CO], [UserCode]) VALUES (:CO, :UserCode);",
         "MERGE INTO SYSSaveGrids AS Target USING (VALUES (:CO, :UserCode)) AS Source (CO, "
         "UserCode) ON (Target.CO = Source.CO) WHEN MATCHED THEN UPDATE SET GridSettings = :G WHEN "
         "NOT MATCHED THEN INSERT (CO, UserCode) VALUES (:CO, :UserCode)"},
        {"MERGE t USING u ON t.a = u.a WHEN MATCHED AND u.b = 1 THEN DELETE WHEN NOT MATCHED BY "
         "SOURCE THEN DELETE;",
         "MERGE INTO t USING u ON (t.a = u.a) WHEN MATCHED AND (u.b = 1) THEN DELETE WHEN NOT "
         "MATCHED BY SOURCE THEN DELETE"},
        {"TRUNCATE TABLE dbo.t"},
    };
    expectAll(readings);
}

TEST(ParserTest, ReadsDefinitions) {
    const Reading readings[] = {
        {"CREATE TABLE [dbo].[t] ([RecID] bigint IDENTITY(1,1) NOT NULL, [a] nvarchar (10) NULL "
         "DEFAULT (''), b varbinary(max), c float NOT NULL CONSTRAINT [df] DEFAULT ((0)) )",
         "CREATE TABLE dbo.t (RecID bigint IDENTITY(1, 1) NOT NULL, a nvarchar(10) NULL DEFAULT "
         "'', b varbinary(max), c float NOT NULL CONSTRAINT df DEFAULT 0)"},
        {"CREATE TABLE t (a int PRIMARY KEY CLUSTERED, b int UNIQUE, CONSTRAINT pk PRIMARY KEY "
         "NONCLUSTERED (a ASC, b DESC) WITH (PAD_INDEX = OFF, FILLFACTOR = 80) ON [PRIMARY]) ON "
         "[PRIMARY] TEXTIMAGE_ON [PRIMARY]",
         "CREATE TABLE t (a int PRIMARY KEY CLUSTERED, b int UNIQUE, CONSTRAINT pk PRIMARY KEY "
         "NONCLUSTERED (a, b DESC) WITH (PAD_INDEX = OFF, FILLFACTOR = 80) ON [PRIMARY]) ON "
         "[PRIMARY] TEXTIMAGE_ON [PRIMARY]"},
        {"ALTER TABLE [dbo].[t] ADD [c] nvarchar(10) NOT NULL DEFAULT '' WITH VALUES",
         "ALTER TABLE dbo.t ADD c nvarchar(10) NOT NULL DEFAULT '' WITH VALUES"},
        {"ALTER TABLE [dbo].[t]  ADD CONSTRAINT [t_idx00] PRIMARY KEY ([RecID])",
         "ALTER TABLE dbo.t ADD CONSTRAINT t_idx00 PRIMARY KEY (RecID)"},
        {"ALTER TABLE t WITH NOCHECK ADD CONSTRAINT d DEFAULT 1 FOR a",
         "ALTER TABLE t ADD CONSTRAINT d DEFAULT 1 FOR a"},
        {"ALTER TABLE [dbo].[t]  ALTER COLUMN [c] nvarchar(150) COLLATE Latin1_General_CI_AS NOT "
         "NULL",
         "ALTER TABLE dbo.t ALTER COLUMN c nvarchar(150) COLLATE Latin1_General_CI_AS NOT NULL"},
        {"ALTER TABLE [dbo].[t]  DROP COLUMN [c], d", "ALTER TABLE dbo.t DROP COLUMN c, COLUMN d"},
        {"ALTER TABLE dbo.t DROP CONSTRAINT IF EXISTS d"},
        {"ALTER TABLE t NOCHECK CONSTRAINT ALL"},
        {"CREATE NONCLUSTERED INDEX [ix] ON [dbo].[t]  ([CO], [Branch]) INCLUDE ([a]) WITH (  "
         "PAD_INDEX = OFF,  ONLINE = OFF,  ALLOW_PAGE_LOCKS = ON)  ON [PRIMARY] ",
         "CREATE NONCLUSTERED INDEX ix ON dbo.t (CO, Branch) INCLUDE (a) WITH (PAD_INDEX = OFF, "
         "ONLINE = OFF, ALLOW_PAGE_LOCKS = ON) ON [PRIMARY]"},
        {"CREATE UNIQUE CLUSTERED INDEX ix ON t (a DESC)"},
        {"DROP INDEX [ ix] ON [dbo].[t] ", "DROP INDEX [ ix] ON dbo.t"},
        {"DROP INDEX t.ix, dbo.t.iy", "DROP INDEX ix ON t, iy ON dbo.t"},
        {"DROP TABLE IF EXISTS a, [b c]"},
        {"DROP PROC p", "DROP PROCEDURE p"},
        {"CREATE VIEW v (a) AS SELECT 1"},
        {"CREATE OR ALTER PROC dbo.p @a NVARCHAR(10), @b BIT = 0, @c INT = NULL OUT AS BEGIN SET "
         "NOCOUNT ON; RETURN @b END",
         "CREATE OR ALTER PROCEDURE dbo.p @a nvarchar(10), @b bit = 0, @c int = NULL OUTPUT AS "
         "BEGIN SET NOCOUNT ON; RETURN @b; END"},
    };
    expectAll(readings);
}

TEST(ParserTest, ReadsControlFlow) {
    const Reading readings[] = {
        {"IF  EXISTS ( SELECT * FROM sys.objects   WHERE object_id = OBJECT_ID(N'p')    AND type "
         "in (N'P', N'PC')) DROP PROCEDURE p",
         "IF EXISTS (SELECT * FROM sys.objects WHERE ((object_id = OBJECT_ID(N'p')) AND (type IN "
         "(N'P', N'PC')))) DROP PROCEDURE p;"},
        {"IF EXISTS (SELECT 1) UPDATE t SET a = 1 ELSE INSERT INTO t (a) VALUES (1)",
         "IF EXISTS (SELECT 1) UPDATE t SET a = 1; ELSE INSERT INTO t (a) VALUES (1);"},
        {"IF @a = 1 BEGIN SELECT 1 SELECT 2 END; ELSE IF @a = 2 PRINT 'x' + @b",
         "IF (@a = 1) BEGIN SELECT 1; SELECT 2; END; ELSE IF (@a = 2) PRINT ('x' + @b);"},
        {"DECLARE @x INT = CASE WHEN @y IS NULL THEN 1 ELSE 2147483647 END, @t TABLE (a int "
         "PRIMARY KEY), @z AS nvarchar(max)",
         "DECLARE @x int = CASE WHEN (@y IS NULL) THEN 1 ELSE 2147483647 END, @t TABLE (a int "
         "PRIMARY KEY), @z nvarchar(max)"},
        {"SET @x = (SELECT MAX(a) FROM t) SET @x += 1 SET NOCOUNT, XACT_ABORT ON",
         "SET @x = (SELECT MAX(a) FROM t); SET @x += 1; SET NOCOUNT, XACT_ABORT ON"},
        {"SET IDENTITY_INSERT dbo.t ON; SET TRANSACTION ISOLATION LEVEL READ COMMITTED; SET "
         "DATEFORMAT ymd; SET LOCK_TIMEOUT -1",
         "SET IDENTITY_INSERT dbo.t ON; SET TRANSACTION ISOLATION LEVEL READ COMMITTED; SET "
         "DATEFORMAT YMD; SET LOCK_TIMEOUT -1"},
        {"WHILE @i < 3 BEGIN SET @i += 1 IF @i = 2 CONTINUE BREAK END",
         "WHILE (@i < 3) BEGIN SET @i += 1; IF (@i = 2) CONTINUE; BREAK; END"},
        {"BEGIN TRY BEGIN TRAN COMMIT TRANSACTION END TRY BEGIN CATCH ROLLBACK; THROW; END CATCH",
         "BEGIN TRY BEGIN TRANSACTION; COMMIT TRANSACTION; END TRY BEGIN CATCH ROLLBACK "
         "TRANSACTION; THROW; END CATCH"},
        {"THROW 50000, 'x', 1; RAISERROR('%s', 16, 1, @a) WITH NOWAIT; SAVE TRAN a; RETURN",
         "THROW 50000, 'x', 1; RAISERROR('%s', 16, 1, @a) WITH NOWAIT; SAVE TRANSACTION a; RETURN"},
        {"EXEC VELMARA_GENERATE_NUMBER :CO, :BRANCH, :MODCODE, :TXTP"},
        {"EXECUTE @r = db.dbo.p 1, -2, @b = N'x', @c = @d OUTPUT, @e = DEFAULT, @f = word",
         "EXEC @r = db.dbo.p 1, -2, @b = N'x', @c = @d OUTPUT, @e = DEFAULT, @f = 'word'"},
        {"sp_rename 'a', 'b'; EXEC ('SELECT ' + @x); USE [master]",
         "EXEC sp_rename 'a', 'b'; EXEC (('SELECT ' + @x)); USE master"},
    };
    expectAll(readings);
}

struct Refusal
{
    std::string_view text;
    int number;
    int line;
    int column;
    std::string_view near;
};

TEST(ParserTest, RefusesWithNumberAndPlace) {
    const Refusal refusals[] = {
        {"SELECT a FORM t", 102, 1, 15, "'t'"},
        {"SELECT *\n  FRM t WHERE a = 1", 102, 2, 3, "'FRM'"},
        {"SELECT a FROM WHERE b = 1", 156, 1, 15, "keyword 'WHERE'"},
        {"SELECT a FROM t WHERE", 102, 1, 17, "'WHERE'"},
        {"SELECT a,\n FROM t", 156, 2, 2, "keyword 'FROM'"},
        {"SELECT (1 + 2", 102, 1, 13, "'2'"},
        {"SELECT a FROM t WHERE a", 4145, 1, 24, "near 'a'"},
        {"SELECT a FROM t WHERE a AND b = 1", 4145, 1, 25, "near 'AND'"},
        {"SELECT a = 1 = 2", 102, 1, 14, "'='"},
        {"INSERT INTO t (a) VALUES (1", 102, 1, 27, "'1'"},
        {"INSERT INTO t (a VALUES (1)", 156, 1, 18, "keyword 'VALUES'"},
        {"UPDATE t a = 1", 102, 1, 10, "'a'"},
        {"SELECT a FROM t WITH (NOLOK)", 321, 1, 23, "NOLOK"},
        {"MERGE t USING u ON t.a = u.a WHEN MATCHED THEN DELETE", 10713, 1, 54, "semi-colon"},
        {"SELECT 1 CREATE PROCEDURE p AS SELECT 1", 111, 1, 17, "'CREATE/ALTER PROCEDURE'"},
        {"BREAK", 135, 1, 1, "BREAK"},
        {"RETURN 1", 178, 1, 8, "RETURN"},
        {"SELECT 1; FOO", 102, 1, 11, "'FOO'"},
        {"BEGIN END", 156, 1, 7, "keyword 'END'"},
        {"CREATE TABLE t (a int,, b int)", 102, 1, 23, "','"},
        {"ALTER TABLE t ALTER COLUMN", 102, 1, 21, "'COLUMN'"},
        {"EXEC p @a = ", 102, 1, 11, "'='"},
        {"DROP INDEX t..ix", 102, 1, 12, "'t'"},
        {"DECLARE x int", 102, 1, 9, "'x'"},
        {"SELECT [] FROM t", 1038, 1, 8, "missing or empty"},
        {"SELECT a FROM t FOR XML AUTO", unsupportedNumber, 1, 17, "SELECT ... FOR"},
        {"CREATE TRIGGER x ON t FOR INSERT AS SELECT 1", unsupportedNumber, 1, 8, "TRIGGER"},
        {"CREATE SEQUENCE dbo.s AS bigint", unsupportedNumber, 1, 8, "CREATE SEQUENCE"},
        {"DROP DATABASE d", unsupportedNumber, 1, 6, "DROP DATABASE"},
        {"SELECT NEXT VALUE FOR dbo.Numbers", unsupportedNumber, 1, 8, "NEXT VALUE FOR"},
        {"SELECT TOP 5 PERCENT a FROM t", unsupportedNumber, 1, 14, "TOP PERCENT"},
        {"SELECT TOP 5 WITH TIES a FROM t", unsupportedNumber, 1, 14, "TOP WITH TIES"},
        {"SELECT 1 FROM a CROSS APPLY g(a.x) h", unsupportedNumber, 1, 17, "APPLY"},
        {"SELECT 1 FROM a OUTER APPLY g(a.x) h", unsupportedNumber, 1, 17, "APPLY"},
        {"SELECT 1 FROM g(1) h", unsupportedNumber, 1, 16, "table function g"},
        {"CREATE TABLE t (a AS 1)", unsupportedNumber, 1, 19, "computed column"},
        {"CREATE TABLE t (a int CHECK (a > 0))", unsupportedNumber, 1, 23, "CHECK and FOREIGN"},
        {"CREATE TABLE t (a int REFERENCES u)", unsupportedNumber, 1, 23, "CHECK and FOREIGN"},
        {"ALTER TABLE t ADD FOREIGN KEY (a) REFERENCES u", unsupportedNumber, 1, 19, "CHECK and"},
        {"CREATE INDEX i ON t (a) WHERE a > 1", unsupportedNumber, 1, 25, "index with WHERE"},
        {"INSERT TOP (1) INTO t SELECT 1", unsupportedNumber, 1, 8, "INSERT TOP"},
        {"DELETE t OUTPUT deleted.a INTO u", unsupportedNumber, 1, 27, "OUTPUT INTO"},
        {"MERGE t USING u ON t.a = u.a WHEN MATCHED THEN DELETE OUTPUT $action;", unsupportedNumber,
         1, 55, "OUTPUT in a MERGE"},
        {"GRANT SELECT ON t TO u", 156, 1, 1, "keyword 'GRANT'"},
    };
    for (const Refusal& refusal : refusals) {
        try {
            ADD_FAILURE() << "taken: " << refusal.text << "\n" << treeText(parse(refusal.text));
        } catch (const Fault& fault) {
            const velcro::sql::SqlMessage& message = fault.message();
            EXPECT_EQ(message.number, refusal.number) << refusal.text;
            EXPECT_EQ(message.line, refusal.line) << refusal.text;
            EXPECT_EQ(message.column, refusal.column) << refusal.text;
            EXPECT_NE(message.text.find(refusal.near), std::string::npos) << message.text;
        }
    }
}

std::string repeated(std::string_view text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i) {
        result += text;
    }
    return result;
}

TEST(ParserTest, RefusesWhatIsNestedTooDeeplyBeforeTheStackEnds) {
    const int many = 5000;
    const std::string texts[] = {
        "SELECT " + repeated("(", many),
        "SELECT " + repeated("- ", many) + "1",
        "SELECT 1 WHERE " + repeated("NOT ", many) + "1 = 1",
        "SELECT 1" + repeated(" + 1", many),
        "SELECT a" + repeated(" COLLATE b", many),
        "SELECT " + repeated("f(", many),
        "SELECT " + repeated("CASE WHEN ", many),
        "SELECT " + repeated("(SELECT ", many),
        "SELECT 1" + repeated(" UNION SELECT 1", many),
        "SELECT 1 FROM " + repeated("(", many),
        "SELECT 1 FROM t" + repeated(" JOIN t", many),
        "SELECT 1 FROM t" + repeated(" CROSS JOIN t", many),
        repeated("IF 1 = 1 ", many),
        "IF 1 = 1 SELECT 1" + repeated(" ELSE IF 1 = 1 SELECT 1", many),
        repeated("BEGIN ", many),
        repeated("WHILE 1 = 1 ", many),
        repeated("(", many) + "SELECT 1",
    };
    for (const std::string& text : texts) {
        try {
            parse(text);
            ADD_FAILURE() << "taken: " << text.substr(0, 60);
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 191) << text.substr(0, 60);
        }
    }
}

TEST(ParserTest, TakesWideStatements) {
    const int many = 5000;
    const std::string texts[] = {
        "SELECT a WHERE 1 = 1" + repeated(" OR a = 2", many),
        "SELECT a WHERE a IN (0" + repeated(", 1", many) + ")",
        "INSERT INTO t VALUES (0)" + repeated(", (1)", many),
        "SELECT 1" + repeated("; SELECT 1", many),
        "SELECT " + repeated("(", 50) + "1" + repeated(")", 50) + repeated(" + 1", 300),
    };
    for (const std::string& text : texts) {
        EXPECT_NO_THROW(parse(text)) << text.substr(0, 60);
    }
}

TEST(ParserTest, KeepsWhatDefinitionsAreMadeFrom) {
    const std::string_view text = " CREATE PROCEDURE p @a int = 1 AS\r\n SELECT  @a -- end\r\n";
    const Batch batch = parse(text);
    EXPECT_FALSE(batch.reusable);
    const auto& procedure = std::get<CreateProcedure>(batch.statements.at(0)->node);
    const auto part = [text](SourceRange range) {
        return text.substr(range.begin, range.end - range.begin);
    };
    EXPECT_EQ(part(procedure.source), "CREATE PROCEDURE p @a int = 1 AS\r\n SELECT  @a");
    EXPECT_EQ(part(procedure.body), "SELECT  @a");
    const std::string_view table = "CREATE TABLE t (a int DEFAULT ( 1 ) NOT NULL)";
    const Batch definition = parse(table);
    const auto& column = std::get<CreateTable>(definition.statements.at(0)->node).columns.at(0);
    const SourceRange range = column.constraints.at(0).expr.source;
    EXPECT_EQ(table.substr(range.begin, range.end - range.begin), "( 1 )");
}

} // namespace

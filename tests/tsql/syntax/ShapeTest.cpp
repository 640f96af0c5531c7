#include "tsql/syntax/Shape.h"

#include "tsql/syntax/Parser.h"

#include <gtest/gtest.h>

using namespace velcro::sql::tsql;

namespace {

std::vector<Shape> shapes(std::string_view batch) {
    std::vector<Shape> result;
    ShapeReader reader(batch);
    Shape shape;
    while (reader.next(shape)) {
        result.push_back(shape);
    }
    return result;
}

std::string key(std::string_view statement) {
    return shapes(statement).at(0).key;
}

TEST(ShapeTest, OnlyLiteralsBlanksAndCommentsMayDiffer) {
    const std::string_view one = "INSERT INTO t ([a], b) VALUES ('x', 5)";
    EXPECT_EQ(key(one), key("INSERT  INTO t([a],b)\r\nVALUES('O''Neil' /* who */, 70000) -- end"));
    const std::string_view others[] = {
        "INSERT INTO t ([a], b) VALUES (N'x', 5)",  "INSERT INTO t ([a], b) VALUES ('x', 5.0)",
        "INSERT INTO t ([a], b) VALUES ('x', 5e0)", "INSERT INTO t ([a], b) VALUES ('x', NULL)",
        "INSERT INTO t ([a], b) VALUES ('x', @5)",  "INSERT INTO t (a, b) VALUES ('x', 5)",
        "INSERT INTO t ([a], b) VALUES ('x', $5)",  "INSERT INTO t ([a], b) VALUES ('x', -5)",
        "INSERT INTO t ([a], B) VALUES ('x', 5)"};
    for (const std::string_view other : others) {
        EXPECT_NE(key(one), key(other)) << other;
    }
    EXPECT_NE(key("SELECT a b"), key("SELECT ab"));
}

TEST(ShapeTest, LiftsTheValuesInOrder) {
    const Shape shape = shapes("SELECT 'it''s', N'\xC3\xA9', 12, 1.5, 1e3, $7, 0xFF, '', :P").at(0);
    std::string values;
    std::string scratch;
    for (const LiftedLiteral& literal : shape.literals) {
        values += std::string(literal.value(scratch)) + "|";
    }
    EXPECT_EQ(values, "it's|\xC3\xA9|12|1.5|1e3|7|0xFF||");
    EXPECT_EQ(shape.literals[1].kind, LiteralKind::NationalString);
    EXPECT_EQ(shape.literals[5].kind, LiteralKind::Money);
}

struct Pieces
{
    std::string_view batch;
    std::vector<std::string_view> texts;
};

TEST(ShapeTest, CutsABatchWhereStatementsStandForThemselves) {
    const Pieces batches[] = {
        {"UPDATE t SET a = 1 ;\r\nDELETE FROM t;\r\nINSERT INTO t VALUES (';') ;",
         {"UPDATE t SET a = 1 ;", "DELETE FROM t;", "INSERT INTO t VALUES (';') ;"}},
        {" ;; SELECT 1 SELECT 2", {"SELECT 1 SELECT 2"}},
        {"SELECT 1; DECLARE @x INT = 1; SELECT @x;",
         {"SELECT 1;", "DECLARE @x INT = 1; SELECT @x;"}},
        {"IF EXISTS (SELECT 1) UPDATE t SET a = 1; ELSE DELETE t;",
         {"IF EXISTS (SELECT 1) UPDATE t SET a = 1; ELSE DELETE t;"}},
        {"SELECT 1 IF 1 = 1 DELETE t; ELSE DELETE u;",
         {"SELECT 1 IF 1 = 1 DELETE t; ELSE DELETE u;"}},
        {"EXEC p 1; WITH c AS (SELECT 1 a) SELECT * FROM c;",
         {"EXEC p 1;", "WITH c AS (SELECT 1 a) SELECT * FROM c;"}},
        {"CREATE PROCEDURE p AS SELECT 1; SELECT 2;",
         {"CREATE PROCEDURE p AS SELECT 1; SELECT 2;"}},
        {"-- nothing\n;", {}},
    };
    for (const Pieces& batch : batches) {
        const std::vector<Shape> cut = shapes(batch.batch);
        ASSERT_EQ(cut.size(), batch.texts.size()) << batch.batch;
        for (std::size_t i = 0; i < cut.size(); ++i) {
            EXPECT_EQ(cut[i].text, batch.texts[i]);
            EXPECT_EQ(cut[i].beginsBatch, i == 0);
        }
    }
    EXPECT_EQ(shapes("SELECT 1;\n\n SELECT 2").at(1).firstLine, 3u);
}

/// What an executor does: the number of times it had to parse.
class Compiler
{
public:
    int run(std::string_view statement) {
        const Shape shape = shapes(statement).at(0);
        if (const int* known = cache.find(shape)) {
            return *known;
        }
        return cache.insert(shape, parse(shape.text).structuralLiterals, ++parsed);
    }
    ShapeCache<int> cache{3};
    int parsed = 0;
};

TEST(ShapeTest, FindsWhatWasCompiledUnlessAShapingLiteralDiffers) {
    Compiler compiler;
    const int first = compiler.run("SELECT a, CAST('1' AS nvarchar(5)) FROM t WHERE b = 1");
    EXPECT_EQ(compiler.run("SELECT a, CAST('2' AS nvarchar(5)) FROM t WHERE b = 2"), first);
    EXPECT_NE(compiler.run("SELECT a, CAST('1' AS nvarchar(6)) FROM t WHERE b = 1"), first);
    EXPECT_EQ(compiler.run("SELECT a, CAST('3' AS nvarchar(5)) FROM t WHERE b = 3"), first);
    const int byFirst = compiler.run("SELECT a, b FROM t WHERE a = 1 ORDER BY 1");
    EXPECT_NE(compiler.run("SELECT a, b FROM t WHERE a = 1 ORDER BY 2"), byFirst);
    EXPECT_EQ(compiler.parsed, 4);
}

TEST(ShapeTest, ForgetsTheLongestUnused) {
    Compiler compiler;
    compiler.run("SELECT a");
    compiler.run("SELECT b");
    compiler.run("SELECT c");
    compiler.run("SELECT a");
    compiler.run("SELECT d"); // b goes
    EXPECT_EQ(compiler.cache.size(), 3u);
    EXPECT_EQ(compiler.cache.makes(), 3u) << "what is forgotten takes no memory";
    compiler.run("SELECT a");
    compiler.run("SELECT c");
    EXPECT_EQ(compiler.parsed, 4);
    compiler.run("SELECT b");
    EXPECT_EQ(compiler.parsed, 5);
    for (int i = 0; i < 20; ++i) {
        compiler.run("SELECT x" + std::to_string(i));
    }
    EXPECT_EQ(compiler.cache.size(), 3u);
}

} // namespace

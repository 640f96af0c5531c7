#include "tsql/syntax/TextPattern.h"

#include "tsql/syntax/Parser.h"

#include <gtest/gtest.h>

using namespace velcro::sql::tsql;

namespace {

Shape shapeOf(std::string_view batch) {
    Shape shape;
    ShapeReader(batch).next(shape);
    return shape;
}

std::optional<TextPattern> patternOf(std::string_view batch,
                                     std::span<const std::uint32_t> structural = {}) {
    const Shape shape = shapeOf(batch);
    return TextPattern::of(batch, shape.text, shape.literals, structural);
}

bool matches(std::string_view known, std::string_view text) {
    std::vector<LiftedLiteral> literals;
    return patternOf(known).value().matches(text, literals);
}

constexpr std::string_view texts[] = {
    "SELECT a FROM t WHERE b='x' AND c=5",
    "SELECT a FROM t WHERE b='it''s' AND c=70000",
    "SELECT a FROM t WHERE b='' AND c=0",
    "SELECT a FROM t WHERE b='x' AND c=5 ",
    "SELECT a FROM t WHERE b='x' AND c=-5",
    "SELECT a FROM t WHERE b='x' AND c=5.5",
    "SELECT a FROM t WHERE b='x' AND c=99999999999999999999",
    "SELECT a FROM t WHERE b='x' AND c=5e5",
    "SELECT a FROM t WHERE b='x' AND c=$5",
    "SELECT a FROM t WHERE b='x' AND c=0x5",
    "SELECT a FROM t WHERE b='x' AND c=.5",
    "SELECT a FROM t WHERE b='x' AND c=5a",
    "SELECT a FROM t WHERE b=N'x' AND c=5",
    "SELECT a FROM t WHERE b='x' AND c=N'5'",
    "SELECT a FROM t WHERE b='x' OR 1=1 AND c=5",
    "SELECT a FROM t WHERE b='x'' AND c=5'",
    "SELECT a FROM t WHERE b='x' AND c=5 -- five",
    "SELECT a FROM t WHERE b='x' AND c=5; SELECT 1",
    "SELECT a FROM t WHERE b='two\nlines' AND c=5",
    "  SELECT a FROM t WHERE b='x' AND c=5\n",
    "INSERT INTO t VALUES ('x', 5,N'y',$1,0xFF)",
    "INSERT INTO t VALUES ('--', 6,N'/*',$2,0x)",
};

/// Whatever matches is a text that the lexer sees in the same way.
TEST(TextPatternTest, AMatchIsTheSameShapeWithTheSameLiterals) {
    int found = 0;
    for (const std::string_view known : texts) {
        for (const std::string_view text : texts) {
            std::vector<LiftedLiteral> literals;
            const auto pattern = patternOf(known);
            ASSERT_TRUE(pattern) << known;
            if (!pattern->matches(text, literals)) {
                EXPECT_NE(known, text);
                continue;
            }
            ++found;
            const Shape shape = shapeOf(text);
            EXPECT_EQ(shapeOf(known).key, shape.key) << known << "\n" << text;
            EXPECT_EQ(pattern->shapeText(text), shape.text);
            ASSERT_EQ(literals.size(), shape.literals.size()) << text;
            for (std::size_t i = 0; i < literals.size(); ++i) {
                EXPECT_EQ(literals[i].raw, shape.literals[i].raw) << text;
                EXPECT_EQ(literals[i].kind, shape.literals[i].kind) << text;
                EXPECT_EQ(literals[i].doubled, shape.literals[i].doubled) << text;
            }
        }
    }
    EXPECT_GT(found, static_cast<int>(std::size(texts)));
}

TEST(TextPatternTest, OtherValuesOfTheSameKindMatch) {
    EXPECT_TRUE(matches(texts[0], texts[1]));
    EXPECT_TRUE(matches(texts[1], texts[0]));
    EXPECT_TRUE(matches(texts[0], "SELECT a FROM t WHERE b='two\nlines' AND c=5"));
    EXPECT_TRUE(matches("SELECT 1", "SELECT 22"));
    EXPECT_FALSE(matches(texts[0], "SELECT a FROM t WHERE b='not closed"));
    EXPECT_FALSE(matches(texts[0], ""));
    EXPECT_FALSE(matches(texts[0], "SELECT a FROM t WHERE b="));
}

TEST(TextPatternTest, LiteralsThatMightRunIntoTheirNeighbourAreLeftToTheLexer) {
    EXPECT_FALSE(patternOf("SELECT a'x'"));
    EXPECT_FALSE(patternOf("'x'"));
    EXPECT_FALSE(patternOf("SELECT 1/2"));
    EXPECT_TRUE(patternOf("SELECT 1 / 2"));
}

TEST(TextPatternTest, StructuralLiteralsMustBeTheSame) {
    const std::uint32_t second[] = {1};
    const auto pattern = patternOf("SELECT 'a', 1", second).value();
    std::vector<LiftedLiteral> literals;
    EXPECT_TRUE(pattern.matches("SELECT 'b', 1", literals));
    EXPECT_FALSE(pattern.matches("SELECT 'b', 2", literals));
}

TEST(TextPatternTest, AFullCacheStillFindsWhatCameLast) {
    PatternCache<int> cache(20);
    std::vector<LiftedLiteral> literals;
    for (int i = 0; i < 100; ++i) {
        const std::string text = "SELECT c" + std::string(i % 30 + 1, 'x') + " FROM t" +
                                 std::to_string(i) + " WHERE a = 'v'";
        cache.insert(patternOf(text).value(), i);
        const auto* entry = cache.find(text, literals);
        ASSERT_NE(entry, nullptr) << text;
        EXPECT_EQ(entry->compiled, i);
    }
    EXPECT_EQ(cache.find("SELECT cx FROM t0 WHERE a = 'v'", literals), nullptr);
}

} // namespace

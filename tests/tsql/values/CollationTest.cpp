#include "tsql/values/Collation.h"

#include <gtest/gtest.h>

namespace velcro::sql::tsql {
namespace {

TEST(CollationTest, CaseAndTrailingBlanksDoNotCountAccentsDo) {
    const std::pair<const char*, const char*> equal[] = {
        {"abc", "ABC"},   {"abc", "abc   "}, {"", "   "},  {"ÄÖÜ", "äöü"},       {"Žluť", "žLUŤ"},
        {"ДОМ", "дом  "}, {"a_-", "A_-"},    {"É  ", "é"}, {"\xC3 x", "\xC3 X"}, {"ΩΑ", "ωα"}};
    for (const auto& [a, b] : equal) {
        EXPECT_EQ(compareText(a, b), 0) << a << " = " << b;
        EXPECT_EQ(foldText(a), foldText(b)) << a << " = " << b;
    }
}

TEST(CollationTest, SignsThenDigitsThenLettersAccentsBehindTheirBase) {
    const std::pair<const char*, const char*> inOrder[] = {
        {"abc", "abd"}, {"abc", "abcd"}, {"e", "é"},   {"é", "f"},  {"éa", "eb"},
        {"_a", "1a"},   {"1a", "aa"},    {"äb", "zz"}, {" a", "a"}, {"a-b", "ab"},
        {"Z", "Ω"},     {"", "a"},       {"a\t", "a"}, {"ö", "z"},  {"10", "9"}};
    for (const auto& [a, b] : inOrder) {
        EXPECT_LT(compareText(a, b), 0) << a << " < " << b;
        EXPECT_GT(compareText(b, a), 0) << b << " > " << a;
        EXPECT_NE(foldText(a), foldText(b));
    }
}

// An index built on an order that contradicts itself loses rows.
TEST(CollationTest, TheOrderNeverContradictsItself) {
    std::vector<std::string> texts{""};
    for (const std::string first : {"a", "A", " ", "\t", "ä", "Ä", "\xC3", "_", "Ω"}) {
        texts.push_back(first);
        for (const std::string second : {"a", " ", "\t", "é", "\xC3", "1"}) {
            texts.push_back(first + second);
        }
    }
    for (const auto& a : texts) {
        for (const auto& b : texts) {
            const int ab = compareText(a, b);
            ASSERT_EQ(ab<0, compareText(b, a)> 0) << a << "," << b;
            ASSERT_EQ(ab == 0, foldText(a) == foldText(b)) << a << "," << b;
            for (const auto& c : texts) {
                const bool contradicts = ab <= 0 && compareText(b, c) <= 0 && compareText(a, c) > 0;
                ASSERT_FALSE(contradicts) << a << "," << b << "," << c;
            }
        }
    }
}

TEST(CollationTest, EveryCaseMappingHasItsWayBack) {
    int pairs = 0;
    for (char32_t c = 'A'; c < 0x1F000; ++c) {
        const char32_t small = lowerCase(c);
        if (small != c) {
            EXPECT_EQ(upperCase(small), c) << std::hex << static_cast<unsigned>(c);
            EXPECT_EQ(lowerCase(small), small);
            ++pairs;
        }
    }
    EXPECT_GT(pairs, 1300);
    EXPECT_EQ(upperText("straße éß"), "STRAßE Éß");
    EXPECT_EQ(lowerText("\xFF\xC3"
                        "A"),
              "\xFF\xC3"
              "a")
        << "bytes that are no UTF-8 survive";
}

struct LikeRow
{
    const char* text;
    const char* pattern;
    bool matches;
    char32_t escape = 0;
};

TEST(CollationTest, LikeKnowsRunsSetsAndEscapes) {
    const LikeRow rows[] = {{"Smith", "smi%", true},
                            {"Smith", "%MIT%", true},
                            {"Smith", "%ith", true},
                            {"Smith", "smith", true},
                            {"Smith", "smith ", false},
                            {"Smith ", "smith", false},
                            {"Smith", "", false},
                            {"", "", true},
                            {"", "%", true},
                            {"x", "%", true},
                            {"x", "%%", true},
                            {"Smith", "s_ith", true},
                            {"Smith", "s_th", false},
                            {"Smith", "s%t_", true},
                            {"aXbXc", "%x%x%", true},
                            {"aXbc", "%x%x%", false},
                            {"mississippi", "%issip%", true},
                            {"bat", "[abc]at", true},
                            {"Cat", "[a-c]at", true},
                            {"hat", "[a-c]at", false},
                            {"hat", "[^a-c]at", true},
                            {"a]b", "a[]]b", true},
                            {"a[b", "a[[]b", true},
                            {"50%", "50[%]", true},
                            {"505", "50[%]", false},
                            {"a-b", "a[-]b", true},
                            {"abc", "a[b", false},
                            {"50% off", "%50!% %", true, '!'},
                            {"502 off", "%50!% %", false, '!'},
                            {"Müller", "mÜ%", true},
                            {"Müller", "mu%", false},
                            {"Müller", "m_ller", true},
                            {"naïve café", "%CAFÉ", true},
                            {"日本語", "_本_", true},
                            {"line\nbreak", "line%break", true}};
    for (const auto& row : rows) {
        EXPECT_EQ(LikePattern(row.pattern, row.escape).matches(row.text), row.matches)
            << row.text << " LIKE " << row.pattern;
    }
}

TEST(CollationTest, LikeWithManyRunsStaysQuick) {
    const std::string text(20000, 'a');
    EXPECT_FALSE(LikePattern("%a_a%a_a%a_a%a_a%b").matches(text));
    EXPECT_FALSE(LikePattern("%a%a%a%a%a%a%a%a%[b]%").matches(text));
}

TEST(CollationTest, PatternIndexCountsFromOneInUnits) {
    EXPECT_EQ(LikePattern("%b%").indexIn("abc"), 2u);
    EXPECT_EQ(LikePattern("%[0-9]%").indexIn("äöü7"), 4u);
    EXPECT_EQ(LikePattern("%x%").indexIn("abc"), 0u);
    EXPECT_EQ(LikePattern("abc").indexIn("ABC"), 1u);
    EXPECT_EQ(LikePattern("%c").indexIn("abc"), 3u);
}

} // namespace
} // namespace velcro::sql::tsql

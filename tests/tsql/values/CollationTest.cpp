#include "tsql/values/Collation.h"

#include <gtest/gtest.h>

namespace velcro::sql::tsql {
namespace {

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

TEST(CollationTest, LikeWithManyRunsStaysQuick) {
    const std::string text(20000, 'a');
    EXPECT_FALSE(LikePattern("%a_a%a_a%a_a%a_a%b").matches(text));
    EXPECT_FALSE(LikePattern("%a%a%a%a%a%a%a%a%[b]%").matches(text));
}

} // namespace
} // namespace velcro::sql::tsql

#include "reports/SysNumToWords.h"

#include "support/FailureOf.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

// Another way to the same words: group after group from the left, each told by its value.
std::string spelledGroup(int value) {
    static const char* const names[] = {"",          "ONE ",        "TWO ",       "THREE ",
                                        "FOUR ",     "FIVE ",       "SIX ",       "SEVEN ",
                                        "EIGHT ",    "NINE ",       " TEN ",      " ELEVEN ",
                                        " TWELVE ",  " THIRTEEN ",  " FOURTEEN ", " FIFTEEN ",
                                        " SIXTEEN ", " SEVENTEEN ", " EIGHTEEN ", " NINETEEN "};
    static const char* const decades[] = {"TWENTY ", "THIRTY ",  "FORTY ",  "FIFTY ",
                                          "SIXTY ",  "SEVENTY ", "EIGHTY ", "NINETY "};
    const std::string hundreds = value < 100 ? "" : std::string(names[value / 100]) + "HUNDRED ";
    const int rest = value % 100;
    return hundreds + (rest < 20 ? std::string(names[rest])
                                 : std::string(decades[rest / 10 - 2]) + names[rest % 10]);
}

std::string spelled(int number) {
    static const auto groups = [] {
        std::vector<std::string> texts;
        for (int value = 0; value < 1000; ++value) {
            texts.push_back(spelledGroup(value));
        }
        return texts;
    }();
    if (number == 0) {
        return "ZERO ";
    }
    std::string text;
    for (const auto& [unit, name] :
         {std::pair(1'000'000'000U, "BILLION "), std::pair(1'000'000U, "MILLION "),
          std::pair(1'000U, "THOUSAND ")}) {
        if (const auto& group = groups[unsigned(number) / unit % 1000]; !group.empty()) {
            text += group;
            text += name;
        }
    }
    return text += groups[unsigned(number) % 1000];
}

testing::AssertionResult isSpelledAlike(int number) {
    const std::string expected = spelled(number);
    const QString words = ntw_GetWords(number);
    if (words == QLatin1String(expected.data(), qsizetype(expected.size()))) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure()
           << number << ": " << words.toStdString() << "| not |" << expected << '|';
}

} // namespace

TEST(SysNumToWordsTest, everyNumberIsSpelledAsTheOtherWaySpellsIt) {
    for (int number = 0; number <= 1'100'000; ++number) {
        ASSERT_TRUE(isSpelledAlike(number));
    }
    std::mt19937 random(20261123);
    std::uniform_int_distribution<int> any(0, std::numeric_limits<int>::max());
    for (int i = 0; i < 1'000'000; ++i) {
        ASSERT_TRUE(isSpelledAlike(any(random)));
    }
    ASSERT_TRUE(isSpelledAlike(std::numeric_limits<int>::max()));
}

TEST(SysNumToWordsTest, amountsReadAsTheyArePrinted) {
    const struct
    {
        double amount;
        const char* words;
    } amounts[] = {
        {5, "FIVE RANDS ONLY "},
        {5.5, "FIVE RANDS AND FIFTY  CENTS "},
        {0, "ZERO RANDS ONLY "},
        {0.05, "ZERO RANDS AND FIVE  CENTS "},
        {0.29, "ZERO RANDS AND TWENTY NINE  CENTS "},
        {1.15, "ONE RANDS AND  FIFTEEN  CENTS "},
        {1000, "ONE THOUSAND RANDS ONLY "},
        {1020, "ONE THOUSAND TWENTY RANDS ONLY "},
        {15000, " FIFTEEN THOUSAND RANDS ONLY "},
        {20000, "TWENTY THOUSAND RANDS ONLY "},
        {1000000, "ONE MILLION RANDS ONLY "},
        {2147483647.99, "TWO BILLION ONE HUNDRED FORTY SEVEN MILLION FOUR HUNDRED EIGHTY THREE "
                        "THOUSAND SIX HUNDRED FORTY SEVEN RANDS AND NINETY NINE  CENTS "},
    };
    for (const auto& [amount, words] : amounts) {
        EXPECT_EQ(ntw_NumToWords(amount).toStdString(), words) << amount;
    }
}

TEST(SysNumToWordsTest, whatHasNoWordsIsRefused) {
    const struct
    {
        double amount;
        const char* reason;
    } refusals[] = {
        {12.345, "'.5' is not a valid integer value"},
        {1e-9, "'-' is not a valid integer value"},
        {-5, "'-' is not a valid integer value"},
        {-0.05, "'-' is not a valid integer value"},
        {2147483648.0, "Range check error"},
        {-1e20, "Range check error"},
        {std::numeric_limits<double>::infinity(), "Range check error"},
        {std::numeric_limits<double>::quiet_NaN(), "Range check error"},
    };
    for (const auto& [amount, reason] : refusals) {
        EXPECT_EQ(failureOf([amount = amount] { ntw_NumToWords(amount); }).toStdString(), reason)
            << amount;
    }
}

#include "reports/SysNumToWords.h"

#include "support/FailureOf.h"

#include <gtest/gtest.h>

#include <limits>

TEST(SysNumToWordsTest, numbersAreSpelledGroupByGroup) {
    const std::pair<int, const char*> numbers[] = {
        {0, "ZERO "},
        {1, "ONE "},
        {10, " TEN "},
        {20, "TWENTY "},
        {100, "ONE HUNDRED "},
        {101, "ONE HUNDRED ONE "},
        {110, "ONE HUNDRED  TEN "},
        {1000, "ONE THOUSAND "},
        {1001, "ONE THOUSAND ONE "},
        {20'030, "TWENTY THOUSAND THIRTY "},
        {100'000, "ONE HUNDRED THOUSAND "},
        {1'000'000, "ONE MILLION "},
        {1'000'001, "ONE MILLION ONE "},
        {1'100'000, "ONE MILLION ONE HUNDRED THOUSAND "},
        {2'000'000'000, "TWO BILLION "},
        {11'012'013, " ELEVEN MILLION  TWELVE THOUSAND  THIRTEEN "},
        {14'015'016, " FOURTEEN MILLION  FIFTEEN THOUSAND  SIXTEEN "},
        {17'018'019, " SEVENTEEN MILLION  EIGHTEEN THOUSAND  NINETEEN "},
        {22'033'044, "TWENTY TWO MILLION THIRTY THREE THOUSAND FORTY FOUR "},
        {55'066'077, "FIFTY FIVE MILLION SIXTY SIX THOUSAND SEVENTY SEVEN "},
        {88'099'101, "EIGHTY EIGHT MILLION NINETY NINE THOUSAND ONE HUNDRED ONE "},
        {204'306'407, "TWO HUNDRED FOUR MILLION THREE HUNDRED SIX THOUSAND FOUR HUNDRED SEVEN "},
        {508'609'210, "FIVE HUNDRED EIGHT MILLION SIX HUNDRED NINE THOUSAND TWO HUNDRED  TEN "},
        {312'000'045, "THREE HUNDRED  TWELVE MILLION FORTY FIVE "},
        {2'147'483'647, "TWO BILLION ONE HUNDRED FORTY SEVEN MILLION FOUR HUNDRED EIGHTY THREE "
                        "THOUSAND SIX HUNDRED FORTY SEVEN "}};
    for (const auto& [number, words] : numbers) {
        EXPECT_EQ(ntw_GetWords(number).toStdString(), words) << number;
    }
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

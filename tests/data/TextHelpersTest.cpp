#include "data/TextHelpers.h"

#include "data/Errors.h"
#include "data/Validators.h"
#include "screens/Combos.h"

#include <QComboBox>

#include <gtest/gtest.h>

TEST(TextHelpersTest, fillingNeverCuts) {
    EXPECT_EQ(sfg_PADL("7", '0', 3), "007");
    EXPECT_EQ(sfg_PADR("7", '0', 3), "700");
    EXPECT_EQ(sfg_PADL("12345", '0', 3), "12345");
    EXPECT_EQ(sfg_PADR("12345", '0', 3), "12345");
}

TEST(TextHelpersTest, aCodeIsWhatStandsBeforeTheDash) {
    EXPECT_EQ(sfg_StripCode("AB - Shop", '-', "Y"), "AB");
    EXPECT_EQ(sfg_StripCode("A B - Shop", '-', "N"), "AB");
    EXPECT_EQ(sfg_StripCode("A B - Shop", '-', "Y"), "A B");
    EXPECT_EQ(sfg_StripCode("AB", '-', "Y"), "AB");
    EXPECT_EQ(sfg_StripCode(" - Shop", '-', "Y"), "");
    EXPECT_EQ(sfg_StripCodeSpace("AB CD"), "AB");
}

TEST(TextHelpersTest, aComboItemIsFoundByItsTextOrItsCode) {
    QComboBox combo;
    combo.addItems({" ", "ab - Other", "AB - Shop ", "AB - Again"});
    EXPECT_EQ(sfg_FindComboIndex(" AB ", combo, true), 2);
    EXPECT_EQ(sfg_FindComboIndex("ab", combo, true), 1);
    EXPECT_EQ(sfg_FindComboIndex("AB - Shop", combo, false), 2);
    EXPECT_EQ(sfg_FindComboIndex("AB", combo, false), -1);
    EXPECT_EQ(sfg_FindComboIndex("", combo, true), 0);
}

TEST(TextHelpersTest, textThatIsNoNumberCountsAsNothing) {
    const std::vector<std::pair<const char*, double>> cases = {
        {"", 0},   {"  ", 0},  {"12a", 0}, {"1 2", 0},     {"1,5", 0},
        {"+1", 0}, {"1e3", 0}, {"12", 12}, {"-1.5", -1.5}, {".5", .5}};
    for (const auto& [text, number] : cases) {
        EXPECT_DOUBLE_EQ(sfg_IsNumeric(text), number) << text;
    }
    for (const char* text : {"1-2", "--", "1.2.3", "-"}) {
        EXPECT_THROW(sfg_IsNumeric(text), ConversionError) << text;
    }
}

TEST(TextHelpersTest, telephoneNumbersHaveTenDigitsWithTheirSeparators) {
    for (const char* good : {"0831234567", "083-123-4567", "083.123.4567", "(083)123-4567",
                             "083●123●4567", "(0)831234567"}) {
        EXPECT_TRUE(sfg_Validate_PhoneNo(good)) << good;
    }
    for (const char* bad : {"", "0801234567", "1831234567", "083123456", "08312345678",
                            "083 123 4567", "08312345a7", "0031234567"}) {
        EXPECT_FALSE(sfg_Validate_PhoneNo(bad)) << bad;
    }
}

TEST(TextHelpersTest, mailAddressesNeedANameAndADottedPlace) {
    for (const char* good : {"a@b.c", "first.last+tag@shop-1.co.za", "A_1@x.y9"}) {
        EXPECT_TRUE(sfg_Validate_ValidateEmailAddy(good)) << good;
    }
    for (const char* bad : {"", "a@b", "a b@c.d", "@b.c", "a@b.c.", "ä@b.c", "a@b.c-"}) {
        EXPECT_FALSE(sfg_Validate_ValidateEmailAddy(bad)) << bad;
    }
    EXPECT_FALSE(sfg_Validate_ValidateEmailAddy(QString(QChar(0xD800)) + "@b.c"));
    EXPECT_THROW(matchesPattern("(", "x"), VelmaraError);
}

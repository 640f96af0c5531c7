#include "tsql/values/Errors.h"
#include "tsql/values/Values.h"

#include <gtest/gtest.h>

namespace velcro::sql::tsql {
namespace {

constexpr Type text = nvarcharType(maxLength);
constexpr Type smallInt{TypeId::SmallInt};
constexpr Type tinyInt{TypeId::TinyInt};
constexpr Type dateType{TypeId::Date};
constexpr Type smallDateTime{TypeId::SmallDateTime};
constexpr Type dateTime2{TypeId::DateTime2, 0, 0, 7};
constexpr Type uniqueId{TypeId::UniqueIdentifier};

std::string shown(const Value& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*integer);
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return valueText(*number, floatType);
    }
    if (const auto* blob = std::get_if<Blob>(&value)) {
        return std::get<std::string>(convert(*blob, varbinaryType(maxLength), text, 1));
    }
    return std::holds_alternative<std::string>(value) ? std::get<std::string>(value) : "NULL";
}

std::string converted(const Value& value, const Type& from, const Type& to, int style) {
    try {
        return shown(convert(value, from, to, style));
    } catch (const Fault& fault) {
        return "error " + std::to_string(fault.number());
    }
}

struct Row
{
    Value value;
    Type from;
    Type to;
    std::string expected;
    int style = 0;
};

std::string s(const char* bytes) {
    return bytes;
}
Value n(std::int64_t value) {
    return value;
}

void check(const std::vector<Row>& rows) {
    for (const auto& row : rows) {
        EXPECT_EQ(converted(row.value, row.from, row.to, row.style), row.expected)
            << shown(row.value) << " from " << typeName(row.from) << " to " << typeName(row.to)
            << " style " << row.style;
    }
}

TEST(ConversionTest, TextBecomesNumbersOrIsRefusedWithTheServersNumber) {
    check({{s(""), text, intType, "0"},
           {s("  42 "), text, intType, "42"},
           {s("-7"), text, intType, "-7"},
           {s("- 7"), text, intType, "-7"},
           {s("12.5"), text, intType, "error 245"},
           {s("abc"), text, intType, "error 245"},
           {s("2147483647"), text, intType, "2147483647"},
           {s("-2147483648"), text, intType, "-2147483648"},
           {s("2147483648"), text, intType, "error 248"},
           {s("99999999999999999999999"), text, intType, "error 248"},
           {s("70000"), text, smallInt, "error 244"},
           {s("-1"), text, tinyInt, "error 244"},
           {s("9223372036854775807"), text, bigIntType, "9223372036854775807"},
           {s("-9223372036854775808"), text, bigIntType, "-9223372036854775808"},
           {s("9223372036854775808"), text, bigIntType, "error 8115"},
           {s("x"), text, bigIntType, "error 8114"},
           {s(""), text, floatType, "0"},
           {s("1e3"), text, floatType, "1000"},
           {s("+.5"), text, floatType, "0.5"},
           {s("1,5"), text, floatType, "error 8114"},
           {s("inf"), text, floatType, "error 8114"},
           {s("0x10"), text, floatType, "error 8114"},
           {s(""), text, decimalType(10, 2), "error 8114"},
           {s("19.995"), text, decimalType(10, 2), "20"},
           {s("123456789.5"), text, decimalType(6, 2), "error 8115"},
           {s("$1,234.5"), text, moneyType, "1234.5"},
           {s("abc"), text, moneyType, "error 235"},
           {s("TRUE"), text, bitType, "1"},
           {s("false"), text, bitType, "0"},
           {s("12"), text, bitType, "1"},
           {s(""), text, bitType, "0"},
           {s("yes"), text, bitType, "error 245"}});
}

TEST(ConversionTest, NumbersKeepTheirRange) {
    check({{n(300), intType, tinyInt, "error 220"},
           {n(40000), intType, smallInt, "error 220"},
           {n(3000000000), bigIntType, intType, "error 8115"},
           {n(5), intType, bitType, "1"},
           {-2.9, floatType, intType, "-2"},
           {3e9, floatType, intType, "error 232"},
           {2.5, moneyType, intType, "3"},
           {1.005, floatType, decimalType(5, 2), "1.01"},
           {1000.0, floatType, decimalType(5, 2), "error 8115"},
           {0.1, floatType, Type{TypeId::Real}, "0.1"}});
}

TEST(ConversionTest, NumbersBecomeTextAsTheServerWritesThem) {
    check({{19.99, floatType, text, "19.99"},
           {1234567.0, floatType, text, "1.23457e+006"},
           {0.00001, floatType, text, "1e-005"},
           {100.0, floatType, text, "100"},
           {1.0, floatType, text, "1.0000000e+000", 1},
           {19.9, decimalType(10, 2), text, "19.90"},
           {-0.001, decimalType(10, 2), text, "0.00"},
           {n(7), decimalType(10, 2), text, "7.00"},
           {1234567.891, moneyType, text, "1234567.89"},
           {1234567.891, moneyType, text, "1,234,567.89", 1},
           {1.5, moneyType, text, "1.5000", 2},
           {n(12345), intType, varcharType(3), "*"},
           {n(12345), intType, nvarcharType(3), "error 8115"},
           {n(5), intType, Type{TypeId::Char, 3}, "5  "}});
}

TEST(ConversionTest, DateTextIsReadInTheServersForms) {
    const Type d = dateTimeType;
    check({{s(""), text, d, "1900-01-01 00:00:00.000"},
           {s("   "), text, d, "1900-01-01 00:00:00.000"},
           {s("2026-11-22"), text, d, "2026-11-22 00:00:00.000"},
           {s("20261122"), text, d, "2026-11-22 00:00:00.000"},
           {s("2026/11/22 14:05:09"), text, d, "2026-11-22 14:05:09.000"},
           {s("2026-11-22 14:05:09.128"), text, d, "2026-11-22 14:05:09.127"},
           {s("2026-11-22 23:59:59.999"), text, d, "2026-11-23 00:00:00.000"},
           {s("2026-11-22T14:05:09.12"), text, d, "2026-11-22 14:05:09.120"},
           {s("11/22/2026 2:05 PM"), text, d, "2026-11-22 14:05:00.000"},
           {s("22/11/2026"), text, d, "error 242"},
           {s("22/11/2026"), text, d, "2026-11-22 00:00:00.000", 103},
           {s("22.11.26"), text, d, "2026-11-22 00:00:00.000", 4},
           {s("Nov 22 2026 12:00AM"), text, d, "2026-11-22 00:00:00.000"},
           {s("22 November 2026"), text, d, "2026-11-22 00:00:00.000"},
           {s("22-Nov-2026"), text, d, "2026-11-22 00:00:00.000"},
           {s("10:30"), text, d, "1900-01-01 10:30:00.000"},
           {s("10:30:15 pm"), text, d, "1900-01-01 22:30:15.000"},
           {s("2026-02-30"), text, d, "error 242"},
           {s("2026-13-01"), text, d, "error 242"},
           {s("2026-11-22 25:00"), text, d, "error 242"},
           {s("1752-12-31"), text, d, "error 242"},
           {s("soon"), text, d, "error 241"},
           {s("2026-11-22 x"), text, d, "error 241"},
           {s("2026-11-22 10:00:00.1234567"), text, d, "error 241"},
           {s("2026-11-22 10:00:00.1234567"), text, dateTime2, "2026-11-22 10:00:00.1234567"},
           {s("2026-02-30"), text, dateType, "error 241"},
           {s("0001-01-01"), text, dateType, "0001-01-01"},
           {s("2026-11-22 14:05:31"), text, smallDateTime, "2026-11-22 14:06:00"},
           {n(1), intType, d, "1900-01-02 00:00:00.000"},
           {0.5, floatType, d, "1900-01-01 12:00:00.000"},
           {n(1), intType, dateType, "error 529"}});
}

TEST(ConversionTest, DatesBecomeTextByStyle) {
    const Type d = dateTimeType;
    const std::string moment = "2026-03-05 14:05:09.127";
    check({{moment, d, text, "Mar  5 2026  2:05PM"},
           {moment, d, text, "03/05/2026", 101},
           {moment, d, text, "03/05/26", 1},
           {moment, d, text, "2026.03.05", 102},
           {moment, d, text, "05/03/2026", 103},
           {moment, d, text, "05.03.2026", 104},
           {moment, d, text, "05 Mar 2026", 106},
           {moment, d, text, "14:05:09", 108},
           {moment, d, text, "2026/03/05", 111},
           {moment, d, text, "20260305", 112},
           {moment, d, text, "14:05:09:127", 114},
           {moment, d, text, "2026-03-05 14:05:09", 120},
           {moment, d, text, "2026-03-05 14:05:09.127", 121},
           {moment, d, text, "2026-03-05", 23},
           {moment, d, text, "2026-03-05T14:05:09.127", 126},
           {moment, d, text, "error 281", 99},
           {moment, d, nvarcharType(10), "2026-03-05", 120},
           {moment, d, dateType, "2026-03-05"},
           {s("2026-03-05"), dateType, text, "2026-03-05"}});
}

TEST(ConversionTest, BinaryAndIdentifiers) {
    check({{s("0x41ff"), text, varbinaryType(8), "0x41FF", 1},
           {s("41f"), text, varbinaryType(8), "error 8114", 2},
           {s("A"), text, varbinaryType(8), "0x4100"},
           {s("A"), varcharType(8), varbinaryType(8), "0x41"},
           {Blob{std::string("\x01\x02", 2)}, varbinaryType(8), intType, "258"},
           {n(258), intType, varbinaryType(8), "0x00000102"},
           {s("6f9619ff-8b86-d011-b42d-00c04fc964ff"), text, uniqueId,
            "6F9619FF-8B86-D011-B42D-00C04FC964FF"},
           {s("6f9619ff"), text, uniqueId, "error 8169"},
           {Value(), text, intType, "NULL"}});
}

int stored(const Value& value, const Type& from, const Type& to) {
    try {
        convertForColumn(value, from, to, {"SHOP.dbo.T", "C"});
        return 0;
    } catch (const Fault& fault) {
        return fault.number();
    }
}

TEST(ConversionTest, WhatIsStoredMustFitItsColumn) {
    EXPECT_EQ(stored(s("12345"), text, nvarcharType(5)), 0);
    EXPECT_EQ(stored(s("123456"), text, nvarcharType(5)), 2628);
    EXPECT_EQ(stored(s("12345   "), text, nvarcharType(5)), 0);
    EXPECT_EQ(stored(s("äöüßé"), text, nvarcharType(5)), 0) << "letters count, not bytes";
    EXPECT_EQ(stored(s("\xF0\x9F\x98\x80"), text, nvarcharType(1)), 2628) << "two units";
    EXPECT_EQ(stored(std::string(100000, 'x'), text, nvarcharType(maxLength)), 0);
    EXPECT_EQ(stored(Blob{"abc"}, varbinaryType(3), varbinaryType(2)), 2628);
    EXPECT_EQ(stored(s("abc"), text, varbinaryType(8)), 257);
    EXPECT_EQ(stored(s(""), varcharType(1), {TypeId::Image}), 0);
    EXPECT_EQ(stored(s(""), text, {TypeId::Image}), 206);
    EXPECT_EQ(stored(s("2026-01-01"), dateType, intType), 206);
    EXPECT_EQ(
        std::get<std::string>(convertForColumn(s("ab"), text, Type{TypeId::NChar, 4}, {"T", "C"})),
        "ab  ");
    try {
        convertForColumn(s("Thunderstorm"), text, nvarcharType(7), {"SHOP.dbo.CRORepMst", "Name"});
        FAIL() << "text that is too long was stored";
    } catch (const Fault& fault) {
        EXPECT_STREQ(fault.what(),
                     "String or binary data would be truncated in table "
                     "'SHOP.dbo.CRORepMst', column 'Name'. Truncated value: 'Thunder'.");
        EXPECT_EQ(sqlStateOf(fault.number()), "22001");
    }
}

TEST(ConversionTest, TheLaterTypeOfThePrecedenceWins) {
    EXPECT_EQ(commonType(nvarcharType(10), intType), intType);
    EXPECT_EQ(commonType(varcharType(10), nvarcharType(5)), nvarcharType(10));
    EXPECT_EQ(commonType(nvarcharType(10), nvarcharType(maxLength)), nvarcharType(maxLength));
    EXPECT_EQ(commonType(dateTimeType, nvarcharType(10)), dateTimeType);
    EXPECT_EQ(commonType(intType, floatType), floatType);
    EXPECT_EQ(commonType(decimalType(10, 2), intType), decimalType(12, 2));
    EXPECT_EQ(commonType(Type{}, intType), intType);
    EXPECT_EQ(arithmeticType('+', nvarcharType(10), nvarcharType(5)), nvarcharType(15));
    EXPECT_EQ(arithmeticType('+', nvarcharType(10), intType), intType);
    EXPECT_EQ(arithmeticType('*', decimalType(5, 2), decimalType(5, 2)), decimalType(11, 4));
    EXPECT_THROW(arithmeticType('-', nvarcharType(5), nvarcharType(5)), Fault);
    EXPECT_THROW(arithmeticType('&', floatType, intType), Fault);
}

TEST(ConversionTest, TypesSurviveTheirCodeAndTheirName) {
    for (const Type& type : {intType, nvarcharType(maxLength), nvarcharType(4000),
                             decimalType(38, 6), dateTime2, varbinaryType(8000)}) {
        EXPECT_EQ(typeFromCode(type.code()), type) << typeName(type);
    }
    EXPECT_EQ(typeByName("NVARCHAR", 50), nvarcharType(50));
    EXPECT_EQ(typeByName("decimal", 10, 2), decimalType(10, 2));
    EXPECT_EQ(typeByName("varchar", {}, {}, true), varcharType(30));
    EXPECT_EQ(typeByName("float", 24)->id, TypeId::Real);
    EXPECT_FALSE(typeByName("widget"));
    EXPECT_THROW(typeByName("nvarchar", 5000), Fault);
    EXPECT_THROW(typeByName("int", 4), Fault);
    EXPECT_EQ(typeName(varbinaryType(maxLength)), "varbinary(max)");
}

} // namespace
} // namespace velcro::sql::tsql

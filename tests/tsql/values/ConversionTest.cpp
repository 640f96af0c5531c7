#include "tsql/values/Errors.h"
#include "tsql/values/Values.h"

#include <gtest/gtest.h>

namespace velcro::sql::tsql {
namespace {

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
    for (const Type& type :
         {intType, nvarcharType(maxLength), nvarcharType(4000), decimalType(38, 6),
          Type{TypeId::DateTime2, 0, 0, 7}, varbinaryType(8000)}) {
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

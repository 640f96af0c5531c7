#include "tsql/catalogue/CatalogueFixture.h"

#include <gtest/gtest.h>

namespace velcro::sql::tsql {
namespace {

struct Row
{
    const char* expression;
    const char* expected;
};

void check(std::initializer_list<Row> rows) {
    CatalogueFixture file;
    // 2026-03-05 14:05:09.123 local
    file.host.facts().now = [] { return std::int64_t{1772719509123}; };
    for (const auto& row : rows) {
        EXPECT_EQ(file.query(std::string("SELECT ") + row.expression), row.expected)
            << row.expression;
    }
}

TEST(FunctionsTest, Text) {
    check({{"ts_len('ab  ')", "2"},
           {"ts_len('äé😀')", "4"},
           {"ts_len(NULL)", "NULL"},
           {"ts_substring('abcdef', 2, 3)", "bcd"},
           {"ts_substring('abcdef', 0, 3)", "ab"},
           {"ts_substring('abcdef', -1, 3)", "a"},
           {"ts_substring('abc', 5, 3)", ""},
           {"ts_substring('abc', 1, -1)", "error 537"},
           {"ts_left('äbc', 2)", "äb"},
           {"ts_left('abc', -1)", "error 536"},
           {"ts_right('abcé', 2)", "cé"},
           {"ts_right('abc', 9)", "abc"},
           {"ts_ltrim('  a ') || '|'", "a |"},
           {"ts_rtrim('  a ') || '|'", "  a|"},
           {"ts_upper('straße é')", "STRAßE É"},
           {"ts_replace('abcABC', 'B', 'x')", "axcAxC"},
           {"ts_replace('abc', '', 'x')", "abc"},
           {"ts_charindex('C', 'abc')", "3"},
           {"ts_charindex('b', 'abcb', 3)", "4"},
           {"ts_charindex('', 'abc')", "0"},
           {"ts_charindex('é', 'xÉ')", "2"},
           {"ts_patindex('%[0-9]%', 'ab7')", "3"},
           {"ts_replicate('ab', 3)", "ababab"},
           {"ts_replicate('ab', -1)", "NULL"},
           {"ts_space(3) || '|'", "   |"},
           {"ts_stuff('abcdef', 2, 3, 'X')", "aXef"},
           {"ts_stuff('abc', 4, 1, 'X')", "NULL"},
           {"ts_stuff('abc', 1, 1, NULL)", "bc"},
           {"ts_reverse('aéb')", "béa"},
           {"ts_str(123.456, 8, 2)", "  123.46"},
           {"ts_str(123.456)", "       123"},
           {"ts_str(123456, 3)", "***"},
           {"ts_unicode('é')", "233"},
           {"ts_nchar(8364)", "€"},
           {"ts_concat('a', NULL, 'b')", "ab"},
           {"ts_concat_ws('-', 'a', NULL, 'b')", "a-b"},
           {"ts_quotename('a]b')", "[a]]b]"},
           {"ts_like('%B_D%', 'abcde')", "1"},
           {"ts_like('a', NULL)", "NULL"}});
}

TEST(FunctionsTest, NumbersAndArithmetic) {
    const std::string code = std::to_string(intType.code());
    check({{"ts_round(1.005, 2)", "1.01"},
           {"ts_round(-2.5, 0)", "-3.0"},
           {"ts_round(149.99, -2)", "100.0"},
           {"ts_round(150, -2)", "200"},
           {"ts_round(1.99, 1, 1)", "1.9"},
           {"ts_abs(-5)", "5"},
           {"ts_floor(-1.5)", "-2.0"},
           {"ts_ceiling(1.2)", "2.0"},
           {"ts_sign(-3)", "-1"},
           {"ts_power(2, 10)", "1024"},
           {"ts_power(2, 40)", "error 8115"},
           {"ts_sqrt(-1.0)", "error 3623"},
           {"ts_isnumeric('1e5')", "1"},
           {"ts_isnumeric('abc')", "0"},
           {"ts_isnumeric(NULL)", "0"},
           {"ts_choose(2, 'a', 'b')", "b"},
           {"ts_choose(3, 'a', 'b')", "NULL"},
           {"ts_divide(7, 2)", "3"},
           {"ts_divide(-7, 2)", "-3"},
           {"ts_divide(7.0, 2)", "3.5"},
           {"ts_divide(1, 0)", "error 8134"},
           {"ts_modulo(-7, 3)", "-1"},
           {"ts_modulo(7, 0)", "error 8134"},
           {("ts_add(2147483647, 1, " + code + ")").c_str(), "error 8115"},
           {("ts_multiply(6, 7, " + code + ")").c_str(), "42"},
           {("ts_add('2026-03-01 00:00:00.000', 1.5, " + std::to_string(dateTimeType.code()) + ")")
                .c_str(),
            "2026-03-02 12:00:00.000"},
           {"ts_raise(512)", "error 512"}});
}

TEST(FunctionsTest, Dates) {
    const std::string i = std::to_string(intType.code());
    const std::string d = std::to_string(dateTimeType.code());
    const auto add = [&](const std::string& part, const std::string& count, const char* date) {
        return "ts_dateadd('" + part + "', 0, " + count + ", " + i + ", '" + date + "', " + d + ")";
    };
    check({{"ts_getdate()", "2026-03-05 14:05:09.123"},
           {"ts_sysdatetime()", "2026-03-05 14:05:09.1230000"},
           {add("month", "1", "2026-01-31 10:00:00.000").c_str(), "2026-02-28 10:00:00.000"},
           {add("year", "-2", "2024-02-29 00:00:00.000").c_str(), "2022-02-28 00:00:00.000"},
           {add("day", "-1", "2026-03-01 00:00:00.000").c_str(), "2026-02-28 00:00:00.000"},
           {add("hour", "25", "2026-03-01 00:30:00.000").c_str(), "2026-03-02 01:30:00.000"},
           {add("second", "-1", "2026-03-01 00:00:00.000").c_str(), "2026-02-28 23:59:59.000"},
           {add("year", "9000", "2026-03-01 00:00:00.000").c_str(), "error 517"},
           {"ts_datediff('day', '2026-02-28 23:59:59.000', '2026-03-01 00:00:00.000')", "1"},
           {"ts_datediff('month', '2026-01-31', '2026-02-01')", "1"},
           {"ts_datediff('year', '2026-12-31', '2027-01-01')", "1"},
           {"ts_datediff('week', '2026-11-21', '2026-11-22')", "1"},
           {"ts_datediff('minute', '2026-01-01 10:00:59.000', '2026-01-01 10:01:00.000')", "1"},
           {"ts_datediff('second', '1900-01-01', '2026-01-01')", "error 535"},
           {"ts_datepart('quarter', '2026-11-22')", "4"},
           {"ts_datepart('weekday', '2026-11-22')", "1"},
           {"ts_datepart('week', '2026-01-04')", "2"},
           {"ts_datepart('isoweek', '2027-01-01')", "53"},
           {"ts_datepart('dayofyear', '2024-12-31')", "366"},
           {"ts_datepart('millisecond', '2026-01-01 10:00:00.127')", "127"},
           {"ts_datename('month', '2026-11-22')", "November"},
           {"ts_datename('weekday', '2026-11-22')", "Sunday"},
           {"ts_year('2026-11-22 10:00:00.000')", "2026"},
           {"ts_eomonth('2024-02-10')", "2024-02-29"},
           {"ts_eomonth('2026-01-31', 1)", "2026-02-28"},
           {"ts_isdate('2026-02-30')", "0"},
           {"ts_isdate('20260228')", "1"}});
}

TEST(FunctionsTest, TheTableRefusesWrongCountsAndTellsTypes) {
    const auto* len = functionByName("len");
    ASSERT_NE(len, nullptr);
    EXPECT_EQ(faultNumber([&] { requireArgumentCount(*len, 2); }), 174);
    EXPECT_EQ(faultNumber([&] { requireArgumentCount(*functionByName("Round"), 1); }), 189);
    EXPECT_EQ(faultNumber([&] { requireArgumentCount(*functionByName("COALESCE"), 40); }), 0);
    EXPECT_EQ(functionByName("NO_SUCH"), nullptr);
    const Type date{TypeId::Date};
    const std::vector<Type> forAdd{{}, intType, date};
    EXPECT_EQ(resultType(*functionByName("DATEADD"), forAdd), date);
    const std::vector<Type> text{varcharType(10)};
    EXPECT_EQ(resultType(*functionByName("UPPER"), text).id, TypeId::VarChar);
    EXPECT_EQ(datePartName("HH"), "hour");
    EXPECT_EQ(datePartName("fortnight"), "");
}

TEST(FunctionsTest, TheCatalogueAnswersByName) {
    CatalogueFixture file;
    file.ddl.createTable(
        "CRORepMst",
        {{"RecID", intType, false, IdentityDef{}, {}}, {"CustName", nvarcharType(50), {}, {}, {}}},
        {});
    EXPECT_EQ(file.query("SELECT ts_object_name(ts_object_id('[DBO].[crorepmst]'))"), "CRORepMst");
    EXPECT_EQ(file.query("SELECT ts_object_id('CRORepMst', 'P')"), "NULL");
    EXPECT_EQ(file.query("SELECT ts_object_id('NoSuch')"), "NULL");
    EXPECT_EQ(file.query("SELECT ts_col_name(ts_object_id('CRORepMst'), 2)"), "CustName");
    EXPECT_EQ(file.query("SELECT ts_col_length('CRORepMst', 'custname')"), "100");
    EXPECT_EQ(
        file.query("SELECT ts_columnproperty(ts_object_id('CRORepMst'), 'RecID', 'IsIdentity')"),
        "1");
    EXPECT_EQ(file.query("SELECT length(ts_newid())"), "36");
    EXPECT_EQ(file.query("SELECT ts_db_name()"), "SHOP");
}

} // namespace
} // namespace velcro::sql::tsql

#include "tsql/functions/Functions.h"
#include "tsql/values/Collation.h"

#include <algorithm>
#include <array>

namespace velcro::sql::tsql {

namespace {

using enum ResultRule;

constexpr Type name128 = sysnameType;
constexpr Type dateType{TypeId::Date};
constexpr Type dateTime2Type{TypeId::DateTime2, 0, 0, 7};
constexpr Type idType{TypeId::UniqueIdentifier};

// By name. A blank SQLite name: the emitter writes the function itself.
constexpr FunctionInfo functions[] = {
    {"ABS", "ts_abs", 1, 1, NumberOfFirst, {}, "n"},
    {"APP_NAME", "ts_app_name", 0, 0, Fixed, name128, ""},
    {"ASCII", "ts_unicode", 1, 1, Fixed, intType, "t"},
    {"CEILING", "ts_ceiling", 1, 1, NumberOfFirst, {}, "n"},
    {"CHAR", "ts_char", 1, 1, Fixed, {TypeId::Char, 1}, "i"},
    {"CHARINDEX", "ts_charindex", 2, 3, Fixed, intType, "Tli"},
    {"CHOOSE", "ts_choose", 2, -1, Common, {}, "ia"},
    {"COALESCE", "", 1, -1, Common, {}, "a"},
    {"COLUMNPROPERTY", "ts_columnproperty", 3, 3, Fixed, intType, "itt"},
    {"COL_LENGTH", "ts_col_length", 2, 2, Fixed, intType, "tt"},
    {"COL_NAME", "ts_col_name", 2, 2, Fixed, name128, "ii"},
    {"CONCAT", "ts_concat", 2, 254, Fixed, nvarcharType(4000), "l"},
    {"CONCAT_WS", "ts_concat_ws", 3, 254, Fixed, nvarcharType(4000), "l"},
    {"CURRENT_TIMESTAMP", "ts_getdate", 0, 0, Fixed, dateTimeType, ""},
    {"CURRENT_USER", "ts_user_name", 0, 0, Fixed, name128, ""},
    {"DATALENGTH", "ts_datalength", 1, 1, Fixed, intType, "a", true},
    {"DATEADD", "ts_dateadd", 3, 3, DateOfLast, {}, "pId", true},
    {"DATEDIFF", "ts_datediff", 3, 3, Fixed, intType, "pd"},
    {"DATEFROMPARTS", "ts_datefromparts", 3, 3, Fixed, dateType, "i"},
    {"DATENAME", "ts_datename", 2, 2, Fixed, nvarcharType(30), "pd"},
    {"DATEPART", "ts_datepart", 2, 2, Fixed, intType, "pd"},
    {"DAY", "ts_day", 1, 1, Fixed, intType, "d"},
    {"DB_ID", "ts_db_id", 0, 1, Fixed, {TypeId::SmallInt}, "t"},
    {"DB_NAME", "ts_db_name", 0, 1, Fixed, name128, "i"},
    {"EOMONTH", "ts_eomonth", 1, 2, Fixed, dateType, "di"},
    {"EXP", "ts_exp", 1, 1, Fixed, floatType, "f"},
    {"FLOOR", "ts_floor", 1, 1, NumberOfFirst, {}, "n"},
    {"GETDATE", "ts_getdate", 0, 0, Fixed, dateTimeType, ""},
    {"GETUTCDATE", "ts_getutcdate", 0, 0, Fixed, dateTimeType, ""},
    {"HOST_NAME", "ts_host_name", 0, 0, Fixed, name128, ""},
    {"IDENT_CURRENT", "ts_ident_current", 1, 1, Fixed, bigIntType, "t"},
    {"IIF", "", 3, 3, Common, {}, "a"},
    {"ISDATE", "ts_isdate", 1, 1, Fixed, intType, "t"},
    {"ISNULL", "", 2, 2, SameAsFirst, {}, "a"},
    {"ISNUMERIC", "ts_isnumeric", 1, 1, Fixed, intType, "a"},
    {"LEFT", "ts_left", 2, 2, TextOfFirst, {}, "tI"},
    {"LEN", "ts_len", 1, 1, Fixed, intType, "t"},
    {"LOG", "ts_log", 1, 2, Fixed, floatType, "f"},
    {"LOG10", "ts_log10", 1, 1, Fixed, floatType, "f"},
    {"LOWER", "ts_lower", 1, 1, TextOfFirst, {}, "t"},
    {"LTRIM", "ts_ltrim", 1, 1, TextOfFirst, {}, "t"},
    {"MONTH", "ts_month", 1, 1, Fixed, intType, "d"},
    {"NCHAR", "ts_nchar", 1, 1, Fixed, {TypeId::NChar, 1}, "i"},
    {"NEWID", "ts_newid", 0, 0, Fixed, idType, ""},
    {"NULLIF", "", 2, 2, SameAsFirst, {}, "a"},
    {"OBJECTPROPERTY", "ts_objectproperty", 2, 2, Fixed, intType, "it"},
    {"OBJECT_ID", "ts_object_id", 1, 2, Fixed, intType, "t"},
    {"OBJECT_NAME", "ts_object_name", 1, 2, Fixed, name128, "i"},
    {"OBJECT_SCHEMA_NAME", "ts_object_schema_name", 1, 2, Fixed, name128, "i"},
    {"PATINDEX", "ts_patindex", 2, 2, Fixed, intType, "tl"},
    {"PI", "ts_pi", 0, 0, Fixed, floatType, ""},
    {"POWER", "ts_power", 2, 2, NumberOfFirst, {}, "nf"},
    {"QUOTENAME", "ts_quotename", 1, 1, Fixed, nvarcharType(258), "t"},
    {"RAND", "ts_rand", 0, 0, Fixed, floatType, ""},
    {"REPLACE", "ts_replace", 3, 3, TextOfFirst, {}, "t"},
    {"REPLICATE", "ts_replicate", 2, 2, TextOfFirst, {}, "ti"},
    {"REVERSE", "ts_reverse", 1, 1, TextOfFirst, {}, "t"},
    {"RIGHT", "ts_right", 2, 2, TextOfFirst, {}, "tI"},
    {"ROUND", "ts_round", 2, 3, NumberOfFirst, {}, "nI"},
    {"RTRIM", "ts_rtrim", 1, 1, TextOfFirst, {}, "t"},
    {"SCHEMA_ID", "ts_schema_id", 0, 1, Fixed, intType, "t"},
    {"SCHEMA_NAME", "ts_schema_name", 0, 1, Fixed, name128, "i"},
    {"SCOPE_IDENTITY", "ts_scope_identity", 0, 0, Fixed, bigIntType, ""},
    {"SERVERPROPERTY", "ts_serverproperty", 1, 1, Fixed, nvarcharType(128), "t"},
    {"SESSION_USER", "ts_user_name", 0, 0, Fixed, name128, ""},
    {"SIGN", "ts_sign", 1, 1, NumberOfFirst, {}, "n"},
    {"SPACE", "ts_space", 1, 1, Fixed, varcharType(8000), "i"},
    {"SQRT", "ts_sqrt", 1, 1, Fixed, floatType, "f"},
    {"SQUARE", "ts_square", 1, 1, Fixed, floatType, "f"},
    {"STR", "ts_str", 1, 3, Fixed, varcharType(8000), "fi"},
    {"STUFF", "ts_stuff", 4, 4, TextOfFirst, {}, "tiit"},
    {"SUBSTRING", "ts_substring", 3, 3, TextOfFirst, {}, "LI"},
    {"SUSER_NAME", "ts_suser_sname", 0, 1, Fixed, name128, "a"},
    {"SUSER_SNAME", "ts_suser_sname", 0, 1, Fixed, name128, "a"},
    {"SYSDATETIME", "ts_sysdatetime", 0, 0, Fixed, dateTime2Type, ""},
    {"SYSTEM_USER", "ts_suser_sname", 0, 0, Fixed, name128, ""},
    {"TRIM", "ts_trim", 1, 1, TextOfFirst, {}, "T"},
    {"TYPE_NAME", "ts_type_name", 1, 1, Fixed, name128, "i"},
    {"UNICODE", "ts_unicode", 1, 1, Fixed, intType, "t"},
    {"UPPER", "ts_upper", 1, 1, TextOfFirst, {}, "t"},
    {"USER", "ts_user_name", 0, 0, Fixed, name128, ""},
    {"USER_NAME", "ts_user_name", 0, 1, Fixed, name128, "i"},
    {"YEAR", "ts_year", 1, 1, Fixed, intType, "d"},
};

constexpr bool isSorted() {
    for (std::size_t i = 1; i < std::size(functions); ++i) {
        if (functions[i].name <= functions[i - 1].name) {
            return false;
        }
    }
    return true;
}
static_assert(isSorted(), "functionByName() searches by halves");

struct DatePartWord
{
    std::string_view word;
    std::string_view part;
};

constexpr DatePartWord datePartWords[] = {{"year", "year"},
                                          {"yy", "year"},
                                          {"yyyy", "year"},
                                          {"quarter", "quarter"},
                                          {"qq", "quarter"},
                                          {"q", "quarter"},
                                          {"month", "month"},
                                          {"mm", "month"},
                                          {"m", "month"},
                                          {"dayofyear", "dayofyear"},
                                          {"dy", "dayofyear"},
                                          {"y", "dayofyear"},
                                          {"day", "day"},
                                          {"dd", "day"},
                                          {"d", "day"},
                                          {"week", "week"},
                                          {"wk", "week"},
                                          {"ww", "week"},
                                          {"weekday", "weekday"},
                                          {"dw", "weekday"},
                                          {"hour", "hour"},
                                          {"hh", "hour"},
                                          {"minute", "minute"},
                                          {"mi", "minute"},
                                          {"n", "minute"},
                                          {"second", "second"},
                                          {"ss", "second"},
                                          {"s", "second"},
                                          {"millisecond", "millisecond"},
                                          {"ms", "millisecond"},
                                          {"microsecond", "microsecond"},
                                          {"mcs", "microsecond"},
                                          {"nanosecond", "nanosecond"},
                                          {"ns", "nanosecond"},
                                          {"iso_week", "isoweek"},
                                          {"isowk", "isoweek"},
                                          {"isoww", "isoweek"}};

Type numberOf(const Type& type) {
    if (type.isDecimal() || type.isFloat() || type.id == TypeId::BigInt) {
        return type.id == TypeId::Real ? floatType : type;
    }
    return type.isInteger() || type.isNull() ? intType : floatType;
}

Type textOf(const Type& type) {
    if (!type.isText()) {
        return nvarcharType(4000);
    }
    const bool unlimited = type.length == maxLength || type.isLongText();
    const int length = unlimited ? maxLength : type.isWide() ? 4000 : 8000;
    return type.isWide() ? nvarcharType(length) : varcharType(length);
}

Type commonOf(std::span<const Type> types) {
    Type common;
    for (const auto& type : types) {
        common = commonType(common, type);
    }
    return common;
}

} // namespace

const FunctionInfo* functionByName(std::string_view name) {
    const std::string wanted = upperText(name);
    const auto* found =
        std::lower_bound(std::begin(functions), std::end(functions), std::string_view(wanted),
                         [](const FunctionInfo& row, std::string_view n) { return row.name < n; });
    return found != std::end(functions) && found->name == wanted ? found : nullptr;
}

void requireArgumentCount(const FunctionInfo& function, std::size_t count) {
    const auto least = static_cast<std::size_t>(function.minArguments);
    const bool open = function.maxArguments < 0;
    const auto most = open ? count : static_cast<std::size_t>(function.maxArguments);
    if (count >= least && count <= most) {
        return;
    }
    const std::string name = lowerText(function.name);
    if (function.minArguments == function.maxArguments) {
        raise(174, {name, std::to_string(least)});
    }
    raise(189, {name, std::to_string(least), open ? "254" : std::to_string(most)});
}

bool accepts(ArgumentKind kind, const Type& type) {
    switch (kind) {
    case ArgumentKind::Text:
        return type.isComparable();
    case ArgumentKind::OnlyText:
        return type.isNull() || ((type.isText() || type.isBinary()) && type.isComparable());
    case ArgumentKind::OnlyLongText:
        return type.isText() || type.isBinary();
    case ArgumentKind::OnlyNumber:
        return !type.isText();
    default:
        return true;
    }
}

Type resultType(const FunctionInfo& function, std::span<const Type> arguments) {
    switch (function.rule) {
    case SameAsFirst:
        return arguments.front();
    case Common:
        return commonOf(function.name == "CHOOSE" ? arguments.subspan(1) : arguments);
    case TextOfFirst:
        return textOf(arguments.front());
    case NumberOfFirst:
        return numberOf(arguments.front());
    case DateOfLast:
        return arguments.back().isDateTime() ? arguments.back() : dateTimeType;
    case Fixed:
        break;
    }
    return function.type;
}

std::string_view datePartName(std::string_view word) {
    for (const auto& row : datePartWords) {
        if (sameName(row.word, word)) {
            return row.part;
        }
    }
    return {};
}

} // namespace velcro::sql::tsql

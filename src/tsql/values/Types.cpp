#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"
#include "tsql/values/Values.h"

#include <algorithm>

namespace velcro::sql::tsql {

namespace {

enum class Measures : std::uint8_t { None, Length, Decimal, Fraction, Float };

struct NamedType
{
    std::string_view name;
    TypeId id;
    std::string_view storage;
    Measures measures = Measures::None;
    int widest = 0; // the longest length that may be written
};

// In the order of TypeId, which indexes it.
constexpr NamedType namedTypes[] = {
    {"NULL", TypeId::Null, ""},
    {"binary", TypeId::Binary, "BLOB", Measures::Length, 8000},
    {"varbinary", TypeId::VarBinary, "BLOB", Measures::Length, 8000},
    {"image", TypeId::Image, "BLOB"},
    {"char", TypeId::Char, "TEXT", Measures::Length, 8000},
    {"varchar", TypeId::VarChar, "TEXT", Measures::Length, 8000},
    {"nchar", TypeId::NChar, "TEXT", Measures::Length, 4000},
    {"nvarchar", TypeId::NVarChar, "TEXT", Measures::Length, 4000},
    {"uniqueidentifier", TypeId::UniqueIdentifier, "TEXT"},
    {"timestamp", TypeId::RowVersion, "BLOB"},
    {"text", TypeId::Text, "TEXT"},
    {"ntext", TypeId::NText, "TEXT"},
    {"bit", TypeId::Bit, "INTEGER"},
    {"tinyint", TypeId::TinyInt, "INTEGER"},
    {"smallint", TypeId::SmallInt, "INTEGER"},
    {"int", TypeId::Int, "INTEGER"},
    {"bigint", TypeId::BigInt, "INTEGER"},
    {"smallmoney", TypeId::SmallMoney, "REAL"},
    {"money", TypeId::Money, "REAL"},
    {"decimal", TypeId::Decimal, "REAL", Measures::Decimal},
    {"numeric", TypeId::Numeric, "REAL", Measures::Decimal},
    {"real", TypeId::Real, "REAL"},
    {"float", TypeId::Float, "REAL", Measures::Float, 53},
    {"time", TypeId::Time, "TEXT", Measures::Fraction, 7},
    {"date", TypeId::Date, "TEXT"},
    {"smalldatetime", TypeId::SmallDateTime, "TEXT"},
    {"datetime", TypeId::DateTime, "TEXT"},
    {"datetime2", TypeId::DateTime2, "TEXT", Measures::Fraction, 7},
    {"sql_variant", TypeId::SqlVariant, ""},
};

constexpr std::pair<std::string_view, std::string_view> otherNames[] = {
    {"integer", "int"},
    {"dec", "decimal"},
    {"character", "char"},
    {"rowversion", "timestamp"},
    {"national character", "nchar"},
    {"double precision", "float"}};

const NamedType& named(TypeId id) {
    return namedTypes[static_cast<std::size_t>(id)];
}

const NamedType* namedType(std::string_view name) {
    for (const auto& [other, usual] : otherNames) {
        if (sameName(name, other)) {
            name = usual;
        }
    }
    const auto* found = std::find_if(std::begin(namedTypes) + 1, std::end(namedTypes),
                                     [&](const auto& row) { return sameName(row.name, name); });
    return found == std::end(namedTypes) ? nullptr : found;
}

bool isVariable(TypeId id) {
    return id == TypeId::VarChar || id == TypeId::NVarChar || id == TypeId::VarBinary;
}

Type withLength(const NamedType& row, std::optional<int> length, bool inCast) {
    if (!length) {
        return {row.id, inCast ? 30 : 1};
    }
    if (*length == maxLength && isVariable(row.id)) {
        return {row.id, maxLength};
    }
    if (*length < 1) {
        raise(1001, {"1", std::to_string(*length)});
    }
    if (*length > row.widest) {
        raise(row.widest == 4000 ? 2717 : 131, {std::to_string(*length), "type", row.name});
    }
    return {row.id, *length};
}

Type withDecimals(const NamedType& row, std::optional<int> precision, std::optional<int> scale) {
    const int p = precision.value_or(18);
    const int s = scale.value_or(0);
    if (p > 38) {
        raise(2750, {"1", std::to_string(p)});
    }
    if (p < 1) {
        raise(1001, {"1", std::to_string(p)});
    }
    if (s < 0 || s > p) {
        raise(2751, {"1", std::to_string(s), std::to_string(p)});
    }
    return {row.id, 0, static_cast<std::uint8_t>(p), static_cast<std::uint8_t>(s)};
}

Type withFraction(const NamedType& row, std::optional<int> digits) {
    const int scale = digits.value_or(7);
    if (scale < 0 || scale > row.widest) {
        raise(1002, {"1", std::to_string(scale)});
    }
    return {row.id, 0, 0, static_cast<std::uint8_t>(scale)};
}

Type withBits(const NamedType& row, std::optional<int> bits) {
    if (bits && (*bits < 1 || *bits > row.widest)) {
        raise(1001, {"1", std::to_string(*bits)});
    }
    return {bits.value_or(53) <= 24 ? TypeId::Real : TypeId::Float};
}

// Digits before and behind the point of a number type, for decimal arithmetic.
struct Digits
{
    int precision;
    int scale;
};

Digits digitsOf(const Type& type) {
    switch (type.id) {
    case TypeId::Bit:
        return {1, 0};
    case TypeId::TinyInt:
        return {3, 0};
    case TypeId::SmallInt:
        return {5, 0};
    case TypeId::Int:
        return {10, 0};
    case TypeId::BigInt:
        return {19, 0};
    case TypeId::SmallMoney:
        return {10, 4};
    case TypeId::Money:
        return {19, 4};
    default:
        return {type.precision, type.scale};
    }
}

Type decimalOf(int precision, int scale) {
    const int whole = precision - scale;
    if (precision > 38) {
        scale = whole < 32 ? std::min(scale, 38 - whole) : std::min(scale, 6);
        precision = 38;
    }
    return decimalType(static_cast<std::uint8_t>(precision), static_cast<std::uint8_t>(scale));
}

Type decimalArithmetic(char operation, Digits a, Digits b) {
    switch (operation) {
    case '*':
        return decimalOf(a.precision + b.precision + 1, a.scale + b.scale);
    case '/': {
        const int scale = std::max(6, a.scale + b.precision + 1);
        return decimalOf(a.precision - a.scale + b.scale + scale, scale);
    }
    case '%': {
        const int scale = std::max(a.scale, b.scale);
        return decimalOf(std::min(a.precision - a.scale, b.precision - b.scale) + scale, scale);
    }
    default: {
        const int scale = std::max(a.scale, b.scale);
        return decimalOf(std::max(a.precision - a.scale, b.precision - b.scale) + scale + 1, scale);
    }
    }
}

std::string_view operatorName(char operation) {
    switch (operation) {
    case '+':
        return "add";
    case '-':
        return "subtract";
    case '*':
        return "multiply";
    case '/':
        return "divide";
    case '%':
        return "modulo";
    default:
        return operation == '&' ? "'&'" : operation == '|' ? "'|'" : "'^'";
    }
}

Type concatenated(const Type& a, const Type& b) {
    const Type& winner = a.id > b.id ? a : b;
    if (a.length == maxLength || b.length == maxLength) {
        return {winner.id, maxLength};
    }
    const TypeId id = winner.isBinary() ? TypeId::VarBinary
                      : winner.isWide() ? TypeId::NVarChar
                                        : TypeId::VarChar;
    return {id, std::min(a.length + b.length, named(id).widest)};
}

[[noreturn]] void raiseOperands(char operation, const Type& a, const Type& b) {
    const auto& wrong = a.isNumber() || a.isText() ? b : a;
    if (a.id == b.id || operation == '*' || operation == '/') {
        raise(8117, {baseTypeName(wrong.id), operatorName(operation)});
    }
    raise(402, {baseTypeName(a.id), baseTypeName(b.id), operatorName(operation)});
}

} // namespace

Type typeFromCode(std::int64_t code) {
    return {static_cast<TypeId>(code & 0xFF), static_cast<std::int32_t>(code >> 24),
            static_cast<std::uint8_t>((code >> 8) & 0xFF),
            static_cast<std::uint8_t>((code >> 16) & 0xFF)};
}

std::optional<Type> typeByName(std::string_view name, std::optional<int> length,
                               std::optional<int> scale, bool inCast) {
    if (sameName(name, "sysname")) {
        return sysnameType;
    }
    const auto* row = namedType(name);
    if (!row) {
        return std::nullopt;
    }
    switch (row->measures) {
    case Measures::Length:
        return withLength(*row, length, inCast);
    case Measures::Decimal:
        return withDecimals(*row, length, scale);
    case Measures::Fraction:
        return withFraction(*row, length);
    case Measures::Float:
        return withBits(*row, length);
    case Measures::None:
        break;
    }
    if (length) {
        raise(2716, {"1", row->name});
    }
    const Digits money = digitsOf({row->id});
    const bool isMoney = row->id == TypeId::Money || row->id == TypeId::SmallMoney;
    return isMoney ? Type{row->id, 0, static_cast<std::uint8_t>(money.precision), 4}
                   : Type{row->id};
}

std::string_view baseTypeName(TypeId id) {
    return named(id).name;
}

std::string typeName(const Type& type) {
    std::string name(baseTypeName(type.id));
    switch (named(type.id).measures) {
    case Measures::Length:
        return name + "(" + (type.length == maxLength ? "max" : std::to_string(type.length)) + ")";
    case Measures::Decimal:
        return name + "(" + std::to_string(type.precision) + "," + std::to_string(type.scale) + ")";
    case Measures::Fraction:
        return name + "(" + std::to_string(type.scale) + ")";
    default:
        return name;
    }
}

std::string_view storageClass(const Type& type) {
    return named(type.id).storage;
}

Type commonType(const Type& a, const Type& b) {
    if (a.isNull() || b.isNull()) {
        return a.isNull() ? b : a;
    }
    const Type& winner = a.id >= b.id ? a : b;
    const Type& other = a.id >= b.id ? b : a;
    if (winner.isDecimal() && other.isNumber()) {
        if (winner.id == TypeId::Money || winner.id == TypeId::SmallMoney) {
            return winner;
        }
        const Digits x = digitsOf(a);
        const Digits y = digitsOf(b);
        const int scale = std::max(x.scale, y.scale);
        return decimalOf(std::max(x.precision - x.scale, y.precision - y.scale) + scale, scale);
    }
    Type common = winner;
    if ((winner.isText() && other.isText()) || (winner.isBinary() && other.isBinary())) {
        const bool unlimited = a.length == maxLength || b.length == maxLength;
        common.length = unlimited ? maxLength : std::max(a.length, b.length);
    }
    common.scale = std::max(winner.scale, other.id == winner.id ? other.scale : winner.scale);
    return common;
}

Type arithmeticType(char operation, const Type& a, const Type& b) {
    if (a.isNull() && b.isNull()) {
        return intType;
    }
    const Type x = a.isNull() ? b : a;
    const Type y = b.isNull() ? a : b;
    if (x.isLongText() || y.isLongText()) {
        raiseOperands(operation, x, y);
    }
    if (operation == '+' && ((x.isText() && y.isText()) || (x.isBinary() && y.isBinary()))) {
        return concatenated(x, y);
    }
    const bool bitwise = operation == '&' || operation == '|' || operation == '^';
    const Type winner = commonType(x, y);
    if (winner.isDateTime()) {
        const bool plain = winner.id == TypeId::DateTime || winner.id == TypeId::SmallDateTime;
        if (!plain || (operation != '+' && operation != '-')) {
            raiseOperands(operation, x, y);
        }
        return winner;
    }
    if (!winner.isNumber() || (bitwise && !winner.isInteger())) {
        raiseOperands(operation, x, y);
    }
    // Text beside a number becomes that number's type.
    const Type left = x.isNumber() ? x : winner;
    const Type right = y.isNumber() ? y : winner;
    if (winner.id == TypeId::Decimal || winner.id == TypeId::Numeric) {
        return decimalArithmetic(operation, digitsOf(left), digitsOf(right));
    }
    return winner;
}

ConversionRule conversionRule(const Type& from, const Type& to) {
    if (from.id == to.id || from.isNull() || to.isNull() || to.id == TypeId::SqlVariant) {
        const bool tooLong = to.id == TypeId::SqlVariant &&
                             (from.isLongText() || from.length < 0 || from.id == TypeId::Image);
        return tooLong ? ConversionRule::Refused : ConversionRule::Implicit;
    }
    if (from.id == TypeId::SqlVariant) {
        return to.isLongText() || to.id == TypeId::Image ? ConversionRule::Refused
                                                         : ConversionRule::ExplicitOnly;
    }
    if (from.isLongText() || from.id == TypeId::Image) {
        const bool alike = from.isLongText() ? to.isText() : to.isBinary();
        return alike ? ConversionRule::Implicit : ConversionRule::Refused;
    }
    if (to.isLongText()) {
        return from.isText() ? ConversionRule::Implicit : ConversionRule::Refused;
    }
    if (to.id == TypeId::Image) {
        const bool narrow = from.id == TypeId::Char || from.id == TypeId::VarChar;
        return from.isBinary() || narrow ? ConversionRule::Implicit : ConversionRule::Refused;
    }
    if (from.isText()) {
        const bool explicitOnly = to.isBinary() || to.id == TypeId::RowVersion;
        return explicitOnly ? ConversionRule::ExplicitOnly : ConversionRule::Implicit;
    }
    if (to.isText()) {
        return ConversionRule::Implicit;
    }
    const bool oldDate = to.id == TypeId::DateTime || to.id == TypeId::SmallDateTime;
    const bool fromOldDate = from.id == TypeId::DateTime || from.id == TypeId::SmallDateTime;
    if (from.isDateTime() && to.isDateTime()) {
        const bool clash = (from.id == TypeId::Date && to.id == TypeId::Time) ||
                           (from.id == TypeId::Time && to.id == TypeId::Date);
        return clash ? ConversionRule::Refused : ConversionRule::Implicit;
    }
    if (from.isNumber() && to.isDateTime()) {
        return oldDate ? ConversionRule::Implicit : ConversionRule::Refused;
    }
    if (from.isDateTime()) {
        const bool readable = fromOldDate && to.isNumber();
        return readable || to.isBinary() ? ConversionRule::ExplicitOnly : ConversionRule::Refused;
    }
    if (from.id == TypeId::UniqueIdentifier || to.id == TypeId::UniqueIdentifier) {
        return from.isBinary() || to.isBinary() ? ConversionRule::Implicit
                                                : ConversionRule::Refused;
    }
    const bool floatClash = (from.isBinary() && to.isFloat()) || (from.isFloat() && to.isBinary());
    return floatClash ? ConversionRule::Refused : ConversionRule::Implicit;
}

void requireImplicit(const Type& from, const Type& to) {
    switch (conversionRule(from, to)) {
    case ConversionRule::Implicit:
        return;
    case ConversionRule::ExplicitOnly:
        raise(257, {baseTypeName(from.id), baseTypeName(to.id)});
    case ConversionRule::Refused:
        raise(206, {baseTypeName(from.id), baseTypeName(to.id)});
    }
}

} // namespace velcro::sql::tsql

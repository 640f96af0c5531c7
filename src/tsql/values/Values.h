// T-SQL's types and values: how each type is kept in SQLite, which wins in an expression, and what a
// conversion gives or refuses.
//
// In the file a value is what any SQLite tool reads:
//   bit, tinyint, smallint, int, bigint        INTEGER (bit 0 or 1)
//   float, real                                REAL
//   decimal, numeric, money, smallmoney        REAL rounded to the scale; exact to 15 digits
//   (n)char, (n)varchar, (n)text, sysname      TEXT, UTF-8
//   uniqueidentifier                           TEXT, upper case, with dashes
//   datetime                                   TEXT yyyy-mm-dd hh:mm:ss.mmm, so that it sorts
//   smalldatetime                              TEXT yyyy-mm-dd hh:mm:ss
//   date / time / datetime2                    TEXT yyyy-mm-dd / hh:mm:ss[.f] / both, to the scale
//   binary, varbinary, image, rowversion       BLOB
//   sql_variant                                as it came
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace velcro::sql::tsql {

/// In the order of SQL Server's precedence: of two types in an expression the later one wins.
enum class TypeId : std::uint8_t {
    Null, // an untyped NULL; yields to everything
    Binary,
    VarBinary,
    Image,
    Char,
    VarChar,
    NChar,
    NVarChar,
    UniqueIdentifier,
    RowVersion,
    Text,
    NText,
    Bit,
    TinyInt,
    SmallInt,
    Int,
    BigInt,
    SmallMoney,
    Money,
    Decimal,
    Numeric,
    Real,
    Float,
    Time,
    Date,
    SmallDateTime,
    DateTime,
    DateTime2,
    SqlVariant,
};

inline constexpr int maxLength = -1; // the (max) of nvarchar(max)

/// A type with its measures. Measures that the type does not have are 0.
struct Type
{
    TypeId id = TypeId::Null;
    std::int32_t length = 0;    // characters, or bytes of binary types; maxLength
    std::uint8_t precision = 0; // decimal and numeric
    std::uint8_t scale = 0;     // decimal, numeric; fraction digits of time and datetime2

    bool operator==(const Type&) const = default;

    bool isNull() const { return id == TypeId::Null; }
    bool isInteger() const { return id >= TypeId::Bit && id <= TypeId::BigInt; }
    /// decimal, numeric and both money types: numbers with a fixed scale.
    bool isDecimal() const { return id >= TypeId::SmallMoney && id <= TypeId::Numeric; }
    bool isFloat() const { return id == TypeId::Real || id == TypeId::Float; }
    bool isNumber() const { return id >= TypeId::Bit && id <= TypeId::Float; }
    bool isText() const { return (id >= TypeId::Char && id <= TypeId::NVarChar) || isLongText(); }
    /// Compared by the collation: text, and what may hold text.
    bool isCollated() const { return isText() || id == TypeId::SqlVariant; }
    bool isLongText() const { return id == TypeId::Text || id == TypeId::NText; }
    /// False for text, ntext and image, which take part in few operations (402, 306, 421, 8116).
    bool isComparable() const { return !isLongText() && id != TypeId::Image; }
    bool isWide() const {
        return id == TypeId::NChar || id == TypeId::NVarChar || id == TypeId::NText;
    }
    bool isBinary() const { return id >= TypeId::Binary && id <= TypeId::Image; }
    bool isDateTime() const { return id >= TypeId::Time && id <= TypeId::DateTime2; }

    /// One number for a call in SQLite text; typeFromCode() reads it back.
    std::int64_t code() const {
        return static_cast<std::int64_t>(id) | (std::int64_t{precision} << 8) |
               (std::int64_t{scale} << 16) | (static_cast<std::int64_t>(length) * (1LL << 24));
    }
};

Type typeFromCode(std::int64_t code);

constexpr Type intType{TypeId::Int};
constexpr Type bigIntType{TypeId::BigInt};
constexpr Type bitType{TypeId::Bit};
constexpr Type floatType{TypeId::Float};
constexpr Type moneyType{TypeId::Money, 0, 19, 4};
constexpr Type dateTimeType{TypeId::DateTime};
constexpr Type decimalType(std::uint8_t precision, std::uint8_t scale) {
    return {TypeId::Decimal, 0, precision, scale};
}
constexpr Type nvarcharType(std::int32_t length) {
    return {TypeId::NVarChar, length};
}
constexpr Type varcharType(std::int32_t length) {
    return {TypeId::VarChar, length};
}
constexpr Type varbinaryType(std::int32_t length) {
    return {TypeId::VarBinary, length};
}
/// The type of the server's names.
constexpr Type sysnameType = nvarcharType(128);

/// The type that a name and its measures in brackets give: typeByName("nvarchar", 50). Without
/// measures the server's own: 1 for text in a declaration (30 in CAST, which `inCast` says), 18,0
/// for decimal. std::nullopt for a name that is no type; Fault 1001, 2716, 131, 2750 and the like
/// for measures the type does not take.
std::optional<Type> typeByName(std::string_view name, std::optional<int> length = {},
                               std::optional<int> scale = {}, bool inCast = false);
/// "int", "nvarchar": as DATA_TYPE reports it.
std::string_view baseTypeName(TypeId id);
/// "nvarchar(50)", "decimal(10,2)", "varbinary(max)".
std::string typeName(const Type& type);
/// INTEGER, REAL, TEXT, BLOB or blank: the type to declare the column with in SQLite.
std::string_view storageClass(const Type& type);

/// The type of an expression of both, by precedence; text takes the longer length, decimals enough
/// digits for both. For CASE, COALESCE, UNION, VALUES and comparisons.
Type commonType(const Type& a, const Type& b);
/// The type of a + b, a - b, a * b, a / b, a % b, a & b, a | b, a ^ b: text + text concatenates,
/// decimals widen as the server does it. Fault 402, 8117, 206 and the like where the server refuses.
Type arithmeticType(char operation, const Type& a, const Type& b);

enum class ConversionRule { Implicit, ExplicitOnly, Refused };
/// Whether the server converts without being asked. Refused is error 206 (operand clash), explicit
/// alone error 257 when an expression needs it.
ConversionRule conversionRule(const Type& from, const Type& to);
/// Fault 206 or 257 where the rule says so.
void requireImplicit(const Type& from, const Type& to);

struct Blob
{
    std::string bytes;
    bool operator==(const Blob&) const = default;
};

/// A value as SQLite holds it.
using Value = std::variant<std::monostate, std::int64_t, double, std::string, Blob>;

/// Converts as CAST and CONVERT do it (style: see CONVERT). `from` tells what the value means where
/// SQLite's storage alone does not (TEXT that is a datetime, REAL that is a decimal of scale 2).
/// Text that is too long is cut, as CAST does. Faults: 245, 8114, 241, 242, 248, 8115, 220, 232,
/// 529, 8169.
Value convert(Value value, const Type& from, const Type& to, int style = 0);

/// Where an assignment stores to; the names stand in the server's messages.
struct Target
{
    std::string_view table;  // database.dbo.Table, see Catalogue::fullName()
    std::string_view column; // as created
};

/// Converts for INSERT and UPDATE: as convert(), but text and binary that do not fit raise 2628
/// (trailing blanks are cut in silence), and the implicit rules hold (257, 206).
Value convertForColumn(Value value, const Type& from, const Type& to, const Target& target);

/// True when a literal's text can be bound as it stands to a column of that type: text types only,
/// and the text is surely not too long. The quick way past convertForColumn().
inline bool fitsAsText(std::string_view text, const Type& to) {
    return (to.id == TypeId::NVarChar || to.id == TypeId::VarChar || to.isLongText()) &&
           (to.length <= 0 || text.size() <= static_cast<std::size_t>(to.length));
}

/// UTF-16 units, which is what the server counts in nvarchar(n), LEN and SUBSTRING.
std::size_t textLength(std::string_view utf8);

/// The value as the server's CAST to nvarchar(max) gives it; NULL as blank.
std::string valueText(const Value& value, const Type& type);

} // namespace velcro::sql::tsql

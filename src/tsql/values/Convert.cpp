#include "tsql/values/Collation.h"
#include "tsql/values/DateTime.h"
#include "tsql/values/Errors.h"
#include "tsql/values/NumberText.h"
#include "tsql/values/Utf8.h"
#include "tsql/values/Values.h"

#include <cmath>
#include <cstring>

namespace velcro::sql::tsql {

namespace {

// What a value is by its storage, where the statement knows no better (NULL, sql_variant).
Type storedType(const Value& value) {
    switch (value.index()) {
    case 1:
        return bigIntType;
    case 2:
        return floatType;
    case 3:
        return nvarcharType(4000);
    case 4:
        return varbinaryType(8000);
    default:
        return {};
    }
}

double numberOf(const Value& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*integer);
    }
    const auto* number = std::get_if<double>(&value);
    return number ? *number : 0;
}

std::string bytesOfInteger(std::int64_t value, std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i) {
        bytes[size - 1 - i] = static_cast<char>((value >> (8 * i)) & 0xFF);
    }
    return bytes;
}

std::int64_t integerOfBytes(std::string_view bytes, const Type& to) {
    const std::size_t size = to.id == TypeId::BigInt ? 8 : to.id == TypeId::SmallInt ? 2 : 4;
    const auto tail = bytes.substr(bytes.size() > size ? bytes.size() - size : 0);
    std::uint64_t value = 0;
    for (const char c : tail) {
        value = (value << 8) | static_cast<unsigned char>(c);
    }
    if (to.id == TypeId::TinyInt || to.id == TypeId::Bit) {
        return to.id == TypeId::Bit ? value != 0 : static_cast<std::int64_t>(value & 0xFF);
    }
    const int unused = static_cast<int>(64 - 8 * size);
    return static_cast<std::int64_t>(value << unused) >> unused;
}

DateTime dateTimeOf(const Value& value, const Type& from, const Type& to, int style) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        return readDateTime(*text, from, to, style);
    }
    if (std::holds_alternative<Blob>(value) ||
        (to.id != TypeId::DateTime && to.id != TypeId::SmallDateTime)) {
        raise(529, {baseTypeName(from.id), baseTypeName(to.id)});
    }
    const double days = numberOf(value);
    if (!(days >= -53690 && days < 2958464)) {
        raise(8115, {"expression", baseTypeName(to.id)});
    }
    return fromDaysSince1900(days);
}

double toDouble(const Value& value, const Type& from, const Type& to) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        return from.isDateTime() ? daysSince1900(dateTimeOf(value, from, from, 0))
                                 : readNumber(*text, from, to);
    }
    if (const auto* blob = std::get_if<Blob>(&value)) {
        return static_cast<double>(integerOfBytes(blob->bytes, bigIntType));
    }
    return numberOf(value);
}

Value toInteger(const Value& value, const Type& from, const Type& to) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (from.isDateTime()) {
            return wholePart(std::round(toDouble(value, from, to)), from, to);
        }
        return to.id == TypeId::Bit ? readBit(*text, from) : readInteger(*text, from, to);
    }
    if (const auto* blob = std::get_if<Blob>(&value)) {
        return integerOfBytes(blob->bytes, to);
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return wholePart(*number, from, to);
    }
    return requireRange(std::get<std::int64_t>(value), from, to);
}

Value toDecimal(const Value& value, const Type& from, const Type& to) {
    const double rounded = roundDecimal(toDouble(value, from, to), to.scale);
    const double limit = to.id == TypeId::Money        ? 922337203685477.5807
                         : to.id == TypeId::SmallMoney ? 214748.3647
                                                       : std::pow(10.0, to.precision - to.scale);
    const bool isFixed = to.id == TypeId::Decimal || to.id == TypeId::Numeric;
    if (std::abs(rounded) > limit || (isFixed && std::abs(rounded) == limit)) {
        const bool text = std::holds_alternative<std::string>(value);
        raise(8115, {text || from.isFloat() ? baseTypeName(from.id) : "expression",
                     isFixed ? "numeric" : baseTypeName(to.id)});
    }
    return rounded;
}

Value toFloat(const Value& value, const Type& from, const Type& to) {
    const double number = toDouble(value, from, to);
    return to.id == TypeId::Real ? static_cast<double>(static_cast<float>(number)) : number;
}

std::string hexOf(std::string_view bytes) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    for (const char c : bytes) {
        text += digits[static_cast<unsigned char>(c) >> 4];
        text += digits[c & 0xF];
    }
    return text;
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

std::string bytesOfHex(std::string_view text, const Type& from, const Type& to, int style) {
    if (style == 1 && text.size() >= 2 && text[0] == '0' && (text[1] | 0x20) == 'x') {
        text.remove_prefix(2);
    }
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); i += 2) {
        const int high = hexDigit(text[i]);
        const int low = i + 1 < text.size() ? hexDigit(text[i + 1]) : -1;
        if (high < 0 || low < 0) {
            raise(8114, {baseTypeName(from.id), baseTypeName(to.id)});
        }
        bytes += static_cast<char>(high * 16 + low);
    }
    return bytes;
}

std::string utf16Of(std::string_view text) {
    std::string bytes;
    const auto unit = [&](char32_t u) {
        bytes += static_cast<char>(u & 0xFF);
        bytes += static_cast<char>((u >> 8) & 0xFF);
    };
    for (std::size_t i = 0; i < text.size();) {
        const char32_t c = nextCodePoint(text, i);
        if (unitsOf(c) == 2) {
            unit(0xD800 + ((c - 0x10000) >> 10));
            unit(0xDC00 + ((c - 0x10000) & 0x3FF));
        } else {
            unit(c >= brokenByte ? c - brokenByte : c);
        }
    }
    return bytes;
}

std::string textOfUtf16(std::string_view bytes) {
    std::string text;
    const auto unitAt = [&](std::size_t i) -> char32_t {
        return static_cast<unsigned char>(bytes[i]) |
               (static_cast<char32_t>(static_cast<unsigned char>(bytes[i + 1])) << 8);
    };
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        char32_t c = unitAt(i);
        if (c >= 0xD800 && c < 0xDC00 && i + 3 < bytes.size()) {
            c = 0x10000 + ((c - 0xD800) << 10) + (unitAt(i + 2) - 0xDC00);
            i += 2;
        }
        appendCodePoint(text, c);
    }
    return text;
}

std::string textOfBlob(std::string_view bytes, const Type& to, int style) {
    if (style == 1 || style == 2) {
        return (style == 1 ? "0x" : "") + hexOf(bytes);
    }
    if (to.isWide()) {
        return textOfUtf16(bytes);
    }
    std::string text;
    for (const char c : bytes) {
        appendCodePoint(text, static_cast<unsigned char>(c));
    }
    return text;
}

std::string textOf(const Value& value, const Type& from, const Type& to, int style) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (!from.isDateTime()) {
            return *text;
        }
        const auto stored = readStored(*text);
        return stored ? styledText(*stored, from, style) : *text;
    }
    if (const auto* blob = std::get_if<Blob>(&value)) {
        return textOfBlob(blob->bytes, to, style);
    }
    if (from.id == TypeId::Money || from.id == TypeId::SmallMoney) {
        return moneyText(numberOf(value), style);
    }
    if (from.isDecimal()) {
        return decimalText(numberOf(value), from.scale);
    }
    const auto* integer = std::get_if<std::int64_t>(&value);
    return integer && !from.isFloat() ? std::to_string(*integer)
                                      : floatText(numberOf(value), style);
}

Value fittedText(std::string text, const Value& value, const Type& from, const Type& to) {
    const auto length = static_cast<std::size_t>(to.length);
    if (to.length > 0 && text.size() > length && textLength(text) > length) {
        if (from.isNumber()) {
            const bool starred = std::holds_alternative<std::int64_t>(value) && !to.isWide();
            if (!starred) {
                raise(8115, {"expression", baseTypeName(to.id)});
            }
            text = "*";
        } else if (from.id == TypeId::UniqueIdentifier) {
            raise(8170);
        } else {
            text = std::string(sliceText(text, 0, length));
        }
    }
    const bool padded = to.id == TypeId::Char || to.id == TypeId::NChar;
    if (const auto now = padded ? textLength(text) : length; padded && now < length) {
        text.append(length - now, ' ');
    }
    return text;
}

Value toText(Value value, const Type& from, const Type& to, int style) {
    auto* text = std::get_if<std::string>(&value);
    if (text && !from.isDateTime() && fitsAsText(*text, to)) {
        return value;
    }
    return fittedText(textOf(value, from, to, style), value, from, to);
}

Value toBinary(const Value& value, const Type& from, const Type& to, int style) {
    std::string bytes;
    if (const auto* text = std::get_if<std::string>(&value)) {
        bytes = style == 1 || style == 2 ? bytesOfHex(*text, from, to, style)
                : from.isWide()          ? utf16Of(*text)
                                         : *text;
    } else if (const auto* blob = std::get_if<Blob>(&value)) {
        bytes = blob->bytes;
    } else {
        const std::size_t size = from.id == TypeId::BigInt ? 8 : 4;
        bytes = bytesOfInteger(static_cast<std::int64_t>(numberOf(value)), size);
    }
    const auto length = static_cast<std::size_t>(to.length);
    if (to.length > 0 && bytes.size() > length) {
        bytes = from.isNumber() ? bytes.substr(bytes.size() - length) : bytes.substr(0, length);
    }
    if (to.id == TypeId::Binary && bytes.size() < length) {
        bytes.insert(from.isNumber() ? 0 : bytes.size(), length - bytes.size(), '\0');
    }
    return Blob{std::move(bytes)};
}

Value toDateTime(const Value& value, const Type& from, const Type& to, int style) {
    return storedText(roundedTo(dateTimeOf(value, from, to, style), from, to), to);
}

Value toUniqueIdentifier(const Value& value, const Type& from) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        std::string_view id = *text;
        if (id.size() >= 38 && id[0] == '{' && id[37] == '}') {
            id = id.substr(1);
        }
        id = id.substr(0, 36);
        bool wellFormed = id.size() == 36;
        for (std::size_t i = 0; wellFormed && i < id.size(); ++i) {
            const bool dash = i == 8 || i == 13 || i == 18 || i == 23;
            wellFormed = dash ? id[i] == '-' : hexDigit(id[i]) >= 0;
        }
        if (!wellFormed) {
            raise(8169);
        }
        return upperText(id);
    }
    const auto* blob = std::get_if<Blob>(&value);
    if (!blob || blob->bytes.size() < 16) {
        raise(206, {baseTypeName(from.id), "uniqueidentifier"});
    }
    constexpr int order[] = {3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15};
    std::string bytes;
    for (const int i : order) {
        bytes += blob->bytes[i];
    }
    std::string text = hexOf(bytes);
    for (const std::size_t at : {8, 13, 18, 23}) {
        text.insert(at, "-");
    }
    return text;
}

} // namespace

Value convert(Value value, const Type& declared, const Type& to, int style) {
    if (std::holds_alternative<std::monostate>(value) || to.isNull() ||
        to.id == TypeId::SqlVariant) {
        return value;
    }
    const bool unknown = declared.isNull() || declared.id == TypeId::SqlVariant;
    const Type from = unknown ? storedType(value) : declared;
    if (conversionRule(from, to) == ConversionRule::Refused) {
        raise(529, {baseTypeName(from.id), baseTypeName(to.id)});
    }
    if (to.isText()) {
        return toText(std::move(value), from, to, style);
    }
    if (to.isInteger()) {
        return toInteger(value, from, to);
    }
    if (to.isDecimal()) {
        return toDecimal(value, from, to);
    }
    if (to.isFloat()) {
        return toFloat(value, from, to);
    }
    if (to.isDateTime()) {
        return toDateTime(value, from, to, style);
    }
    return to.id == TypeId::UniqueIdentifier ? toUniqueIdentifier(value, from)
                                             : toBinary(value, from, to, style);
}

namespace {

[[noreturn]] void raiseTruncation(const Target& target, std::string_view kept) {
    raise(2628, {target.table, target.column, kept});
}

// Text that is too long by blanks alone is cut in silence.
Value storedAsText(Value value, const Type& from, const Type& to, const Target& target) {
    Type unlimited = to;
    unlimited.length = to.isLongText() ? 0 : maxLength;
    unlimited.id = to.id == TypeId::Char    ? TypeId::VarChar
                   : to.id == TypeId::NChar ? TypeId::NVarChar
                                            : to.id;
    Value whole = convert(std::move(value), from, unlimited);
    const auto& text = std::get<std::string>(whole);
    const auto length = static_cast<std::size_t>(to.length);
    if (to.length > 0 && text.size() > length && textLength(text) > length) {
        const auto kept = sliceText(text, 0, length);
        if (from.isNumber()) {
            raise(8115, {"expression", baseTypeName(to.id)});
        }
        if (text.find_first_not_of(' ', kept.size()) != std::string::npos) {
            raiseTruncation(target, kept.substr(0, 100));
        }
        whole = std::string(kept);
    }
    return convert(std::move(whole), unlimited, to);
}

} // namespace

Value convertForColumn(Value value, const Type& from, const Type& to, const Target& target) {
    if (std::holds_alternative<std::monostate>(value)) {
        return value;
    }
    requireImplicit(from, to);
    if (to.isText()) {
        return storedAsText(std::move(value), from, to, target);
    }
    const auto* blob = to.isBinary() && to.length > 0 ? std::get_if<Blob>(&value) : nullptr;
    if (blob && blob->bytes.size() > static_cast<std::size_t>(to.length)) {
        raiseTruncation(target, "");
    }
    return convert(std::move(value), from, to);
}

std::size_t textLength(std::string_view utf8) {
    std::size_t units = 0;
    for (std::size_t i = 0; i < utf8.size();) {
        units += unitsOf(nextCodePoint(utf8, i));
    }
    return units;
}

std::string_view sliceText(std::string_view text, std::size_t from, std::size_t count) {
    std::size_t start = 0;
    for (std::size_t units = 0; units < from && start < text.size();) {
        units += unitsOf(nextCodePoint(text, start));
    }
    std::size_t end = start;
    for (std::size_t units = 0; end < text.size();) {
        std::size_t next = end;
        units += unitsOf(nextCodePoint(text, next));
        if (units > count) {
            break;
        }
        end = next;
    }
    return text.substr(start, end - start);
}

std::string valueText(const Value& value, const Type& type) {
    if (std::holds_alternative<std::monostate>(value)) {
        return {};
    }
    const bool unknown = type.isNull() || type.id == TypeId::SqlVariant;
    return textOf(value, unknown ? storedType(value) : type, nvarcharType(maxLength), 0);
}

} // namespace velcro::sql::tsql

#include "platform/sqlserver/odbc/ResultColumn.h"

#include "platform/sqlserver/Utf16.h"

#include <algorithm>
#include <cstring>

namespace velcro::sql::odbc {

namespace {

constexpr SQLULEN largestBound = 8000; // characters or bytes; no type without (max) has more
constexpr std::size_t terminator = sizeof(char16_t);
constexpr SQLULEN digitsOfDouble = 15; // that come back as they went in
constexpr SQLULEN digitsOfInteger = 18;

template <typename Value>
Value readCell(const std::byte* cell) {
    Value value;
    std::memcpy(&value, cell, sizeof value);
    return value;
}

/// As a Float of the same value would be written: "12.5000" is 12.5, ".50" is 0.5.
void tidyDecimal(std::string& text) {
    if (const auto point = text.find('.'); point != std::string::npos) {
        const auto last = text.find_last_not_of('0');
        text.resize(last == point ? last : last + 1);
        if (point == 0 || (point == 1 && text[0] == '-')) {
            text.insert(point, "0");
        }
    }
    if (text == "-0") {
        text = "0";
    }
}

char* putDigits(char* out, unsigned value, int count) {
    for (int i = count - 1; i >= 0; --i) {
        out[i] = static_cast<char>('0' + value % 10);
        value /= 10;
    }
    return out + count;
}

template <typename Date>
char* putDate(char* out, const Date& date) {
    out = putDigits(out, static_cast<unsigned>(date.year), 4);
    *out++ = '-';
    out = putDigits(out, date.month, 2);
    *out++ = '-';
    return putDigits(out, date.day, 2);
}

} // namespace

ResultColumn::ResultColumn(SQLHANDLE statement, SQLUSMALLINT index, DriverKind kind)
    : index_(index) {
    char16_t name[512] = {};
    SQLSMALLINT nameLength = 0;
    SQLSMALLINT type = 0;
    SQLULEN size = 0;
    SQLSMALLINT scale = 0;
    SQLSMALLINT nullable = 0;
    if (!SQL_SUCCEEDED(SQLDescribeColW(statement, index, wide(name), std::size(name), &nameLength,
                                       &type, &size, &scale, &nullable))) {
        throw UndescribedColumn("The driver does not describe column " + std::to_string(index));
    }
    column_.name = toUtf8(std::u16string_view(name));
    choose(type, size, scale, kind);
}

void ResultColumn::choose(SQLSMALLINT sqlType, SQLULEN size, SQLSMALLINT scale, DriverKind kind) {
    const auto fixed = [this](ColumnType type, SQLSMALLINT cType, std::size_t bytes) {
        column_.type = type;
        cType_ = cType;
        cellBytes_ = bytes;
    };
    switch (sqlType) {
    case SQL_BIT:
        return fixed(ColumnType::Bit, SQL_C_SBIGINT, sizeof(SQLBIGINT));
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
        return fixed(ColumnType::Integer, SQL_C_SBIGINT, sizeof(SQLBIGINT));
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
        return fixed(ColumnType::Float, SQL_C_DOUBLE, sizeof(double));
    case SQL_NUMERIC:
    case SQL_DECIMAL:
        if (scale > 0 && size <= digitsOfDouble) {
            return fixed(ColumnType::Float, SQL_C_DOUBLE, sizeof(double));
        }
        if (scale <= 0 && size <= digitsOfInteger) {
            return fixed(ColumnType::Integer, SQL_C_SBIGINT, sizeof(SQLBIGINT));
        }
        chooseText(size + 3, false, kind); // sign, point and a zero before it
        column_.type = ColumnType::Decimal;
        return;
    case SQL_TYPE_DATE:
        return fixed(ColumnType::Date, SQL_C_TYPE_DATE, sizeof(SQL_DATE_STRUCT));
    case SQL_TYPE_TIMESTAMP:
        return fixed(ColumnType::DateTime, SQL_C_TYPE_TIMESTAMP, sizeof(SQL_TIMESTAMP_STRUCT));
    case SQL_BINARY:
    case SQL_VARBINARY:
    case SQL_LONGVARBINARY: {
        // Outside T-SQL there are drivers that make up the size of a blob.
        const bool isLong = kind == DriverKind::Other || sqlType == SQL_LONGVARBINARY ||
                            size == 0 || size > largestBound;
        return fixed(ColumnType::Blob, SQL_C_BINARY, isLong ? 0 : size);
    }
    default:
        return chooseText(size, sqlType == SQL_LONGVARCHAR || sqlType == SQL_WLONGVARCHAR, kind);
    }
}

void ResultColumn::chooseText(SQLULEN characters, bool isLong, DriverKind kind) {
    column_.type = ColumnType::Text;
    cType_ = SQL_C_WCHAR;
    // SQL Server counts in units of UTF-16; others count characters, which may take two.
    const std::size_t units = kind == DriverKind::Other ? characters * 2 : characters;
    cellBytes_ = isLong || characters == 0 || characters > largestBound
                     ? 0
                     : units * sizeof(char16_t) + terminator;
}

SQLRETURN ResultColumn::bind(SQLHANDLE statement, std::size_t blockRows) {
    cells_ = std::make_unique_for_overwrite<std::byte[]>(blockRows * cellBytes_);
    lengths_.assign(blockRows, SQL_NULL_DATA);
    return SQLBindCol(statement, index_, cType_, cells_.get(), static_cast<SQLLEN>(cellBytes_),
                      lengths_.data());
}

bool ResultColumn::addBound(std::size_t row, RowSetBuilder& builder) {
    const auto length = lengths_[row];
    const auto* cell = cells_.get() + row * cellBytes_;
    const bool isText = cType_ == SQL_C_WCHAR;
    if (length == SQL_NULL_DATA || (!isText && cType_ != SQL_C_BINARY)) {
        addFixed(cell, length, builder);
        return true;
    }
    const auto size = static_cast<std::size_t>(length);
    if (length < 0 || size > cellBytes_ - (isText ? terminator : 0)) {
        return false;
    }
    if (isText) {
        addText({reinterpret_cast<const char16_t*>(cell), size / sizeof(char16_t)}, builder);
    } else {
        builder.addBytes({reinterpret_cast<const char*>(cell), size});
    }
    return true;
}

void ResultColumn::addFixed(const std::byte* cell, SQLLEN length, RowSetBuilder& builder) {
    if (length == SQL_NULL_DATA) {
        builder.addNull();
    } else if (cType_ == SQL_C_SBIGINT) {
        builder.addInteger(readCell<SQLBIGINT>(cell));
    } else if (cType_ == SQL_C_DOUBLE) {
        builder.addFloat(readCell<double>(cell));
    } else if (cType_ == SQL_C_TYPE_DATE) {
        addDate(cell, builder);
    } else {
        addStamp(cell, builder);
    }
}

void ResultColumn::addText(std::u16string_view text, RowSetBuilder& builder) {
    utf8_.clear();
    appendUtf8(text, utf8_);
    if (column_.type == ColumnType::Decimal) {
        tidyDecimal(utf8_);
    }
    builder.addBytes(utf8_);
}

void ResultColumn::addDate(const std::byte* cell, RowSetBuilder& builder) const {
    char text[10];
    putDate(text, readCell<SQL_DATE_STRUCT>(cell));
    builder.addBytes({text, sizeof text});
}

void ResultColumn::addStamp(const std::byte* cell, RowSetBuilder& builder) const {
    const auto stamp = readCell<SQL_TIMESTAMP_STRUCT>(cell);
    char text[23];
    char* out = putDate(text, stamp);
    const std::pair<char, unsigned> parts[] = {
        {' ', stamp.hour}, {':', stamp.minute}, {':', stamp.second}};
    for (const auto& [mark, value] : parts) {
        *out++ = mark;
        out = putDigits(out, value, 2);
    }
    *out++ = '.';
    const auto milliseconds = std::min<unsigned>((stamp.fraction + 500'000) / 1'000'000, 999);
    putDigits(out, milliseconds, 3);
    builder.addBytes({text, sizeof text});
}

SQLRETURN ResultColumn::readLong(SQLHANDLE statement, bool& isNull) {
    const std::size_t ending = cType_ == SQL_C_WCHAR ? terminator : 0;
    std::size_t filled = 0;
    value_.resize(std::max<std::size_t>(value_.capacity(), 4096));
    for (;;) {
        SQLLEN length = 0;
        const auto room = value_.size() - filled;
        const auto code = SQLGetData(statement, index_, cType_, value_.data() + filled,
                                     static_cast<SQLLEN>(room), &length);
        if (code == SQL_NO_DATA) {
            break;
        }
        if (!SQL_SUCCEEDED(code)) {
            return code;
        }
        isNull = length == SQL_NULL_DATA;
        if (isNull) {
            return SQL_SUCCESS;
        }
        const bool more =
            length == SQL_NO_TOTAL || static_cast<std::size_t>(length) + ending > room;
        filled += more ? room - ending : static_cast<std::size_t>(length);
        if (!more) {
            break;
        }
        const auto left = length == SQL_NO_TOTAL
                              ? value_.size()
                              : static_cast<std::size_t>(length) - (room - ending);
        value_.resize(filled + left + ending);
    }
    value_.resize(filled);
    return SQL_SUCCESS;
}

SQLRETURN ResultColumn::readFixed(SQLHANDLE statement, RowSetBuilder& builder) {
    std::byte cell[sizeof(SQL_TIMESTAMP_STRUCT)];
    SQLLEN length = 0;
    const auto code = SQLGetData(statement, index_, cType_, cell, sizeof cell, &length);
    if (SQL_SUCCEEDED(code)) {
        addFixed(cell, length, builder);
    }
    return code;
}

SQLRETURN ResultColumn::addRead(SQLHANDLE statement, RowSetBuilder& builder) {
    if (cType_ != SQL_C_WCHAR && cType_ != SQL_C_BINARY) {
        return readFixed(statement, builder);
    }
    bool isNull = false;
    const auto code = readLong(statement, isNull);
    if (!SQL_SUCCEEDED(code)) {
        return code;
    }
    if (isNull) {
        builder.addNull();
    } else if (cType_ == SQL_C_BINARY) {
        builder.addBytes({value_.data(), value_.size()});
    } else {
        addText({reinterpret_cast<const char16_t*>(value_.data()), value_.size() / 2}, builder);
    }
    return code;
}

} // namespace velcro::sql::odbc

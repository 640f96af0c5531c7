#include "tsql/session/RowCells.h"

#include <sqlite3.h>

namespace velcro::sql::tsql {

namespace {

std::string_view cellBytes(sqlite3_stmt* statement, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

/// smalldatetime has no fraction of a second, datetime2 may have seven digits of it.
void addDateTime(RowSetBuilder& rows, std::string_view text) {
    constexpr std::string_view midnight = "yyyy-mm-dd 00:00:00.000";
    if (text.size() >= midnight.size()) {
        rows.addBytes(text.substr(0, midnight.size()));
        return;
    }
    rows.addBytes(std::string(text).append(midnight.substr(text.size())));
}

/// SQLite gives no text for NULL, so that it need not be asked for the type of most cells first.
void addText(RowSetBuilder& rows, sqlite3_stmt* statement, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    if (text == nullptr) {
        rows.addNull();
    } else {
        rows.addBytes({text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))});
    }
}

void addOther(RowSetBuilder& rows, sqlite3_stmt* statement, int column, ColumnType type) {
    switch (type) {
    case ColumnType::Integer:
    case ColumnType::Bit:
        rows.addInteger(sqlite3_column_int64(statement, column));
        break;
    case ColumnType::Float:
        rows.addFloat(sqlite3_column_double(statement, column));
        break;
    case ColumnType::Blob: {
        const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
        rows.addBytes({bytes != nullptr ? bytes : "", size});
        break;
    }
    default:
        addDateTime(rows, cellBytes(statement, column));
    }
}

} // namespace

ColumnType columnTypeOf(const Type& type) {
    if (type.id == TypeId::Bit) {
        return ColumnType::Bit;
    }
    if (type.isInteger()) {
        return ColumnType::Integer;
    }
    if (type.isNumber()) {
        return ColumnType::Float;
    }
    if (type.isBinary() || type.id == TypeId::RowVersion) {
        return ColumnType::Blob;
    }
    if (type.id == TypeId::Date) {
        return ColumnType::Date;
    }
    return type.isDateTime() && type.id != TypeId::Time ? ColumnType::DateTime : ColumnType::Text;
}

Type typeOfColumn(ColumnType type) {
    switch (type) {
    case ColumnType::Integer:
        return bigIntType;
    case ColumnType::Bit:
        return bitType;
    case ColumnType::Float:
        return floatType;
    case ColumnType::DateTime:
        return dateTimeType;
    case ColumnType::Date:
        return {TypeId::Date};
    case ColumnType::Blob:
        return varbinaryType(maxLength);
    default:
        return nvarcharType(maxLength);
    }
}

Value valueOfCell(const RowSet& rows, std::size_t row, std::size_t column) {
    if (rows.isNull(row, column)) {
        return {};
    }
    switch (rows.column(column).type) {
    case ColumnType::Integer:
    case ColumnType::Bit:
        return rows.integer(row, column);
    case ColumnType::Float:
        return rows.number(row, column);
    case ColumnType::Blob:
        return Blob{std::string(rows.bytes(row, column))};
    default:
        return std::string(rows.bytes(row, column));
    }
}

void addRow(RowSetBuilder& rows, sqlite3_stmt* statement, std::span<const ColumnType> types) {
    for (std::size_t i = 0; i < types.size(); ++i) {
        const int column = static_cast<int>(i);
        if (types[i] == ColumnType::Text || types[i] == ColumnType::Date) {
            addText(rows, statement, column);
        } else if (sqlite3_column_type(statement, column) == SQLITE_NULL) {
            rows.addNull();
        } else {
            addOther(rows, statement, column, types[i]);
        }
    }
    rows.endRow();
}

} // namespace velcro::sql::tsql

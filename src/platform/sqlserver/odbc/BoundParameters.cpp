#include "platform/sqlserver/odbc/BoundParameters.h"

#include "platform/sqlserver/Utf16.h"

#include <type_traits>

namespace velcro::sql::odbc {

namespace {

struct ParameterType
{
    SQLSMALLINT type;
    SQLULEN size;
};

/// A value that fits the short type goes as one, of one size so that the server sees one plan, and
/// can be compared with a column. A longer one would be cut in silence that way: the vendor's
/// drivers know the short types without a limit, the others have the long ones.
ParameterType typeFor(std::size_t size, std::size_t limit, SQLSMALLINT shortType,
                      SQLSMALLINT longType, DriverKind kind) {
    if (size <= limit) {
        return {shortType, limit};
    }
    return kind == DriverKind::Vendor ? ParameterType{shortType, 0} : ParameterType{longType, size};
}

SQLRETURN bindValue(SQLHANDLE statement, SQLUSMALLINT index, SQLSMALLINT cType, ParameterType type,
                    const void* value, SQLLEN& length) {
    return SQLBindParameter(statement, index, SQL_PARAM_INPUT, cType, type.type, type.size, 0,
                            const_cast<void*>(value), length, &length);
}

} // namespace

SQLRETURN BoundParameters::bindText(SQLHANDLE statement, SQLUSMALLINT index, Slot& slot,
                                    DriverKind kind) {
    slot.length = static_cast<SQLLEN>(slot.text.size() * sizeof(char16_t));
    const auto type = typeFor(slot.text.size(), 4000, SQL_WVARCHAR, SQL_WLONGVARCHAR, kind);
    return bindValue(statement, index, SQL_C_WCHAR, type, slot.text.data(), slot.length);
}

SQLRETURN BoundParameters::bindBlob(SQLHANDLE statement, SQLUSMALLINT index, Slot& slot,
                                    const std::string& bytes, DriverKind kind) {
    slot.length = static_cast<SQLLEN>(bytes.size());
    const auto type = typeFor(bytes.size(), 8000, SQL_VARBINARY, SQL_LONGVARBINARY, kind);
    return bindValue(statement, index, SQL_C_BINARY, type, bytes.data(), slot.length);
}

SQLRETURN BoundParameters::bind(SQLHANDLE statement, const std::vector<const Parameter*>& markers,
                                DriverKind kind) {
    SQLUSMALLINT index = 0;
    for (const Parameter* marker : markers) {
        Slot& slot = slots_.emplace_back();
        ++index;
        const auto bindOne = [&](const auto& value) -> SQLRETURN {
            using Value = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, std::int64_t>) {
                slot.integer = value;
                return bindValue(statement, index, SQL_C_SBIGINT, {SQL_BIGINT, 19}, &slot.integer,
                                 slot.length);
            } else if constexpr (std::is_same_v<Value, double>) {
                slot.number = value;
                return bindValue(statement, index, SQL_C_DOUBLE, {SQL_DOUBLE, 15}, &slot.number,
                                 slot.length);
            } else if constexpr (std::is_same_v<Value, std::string>) {
                slot.text = toUtf16(value);
                return bindText(statement, index, slot, kind);
            } else if constexpr (std::is_same_v<Value, Blob>) {
                return bindBlob(statement, index, slot, value.bytes, kind);
            } else {
                return SQL_SUCCESS; // NULL stands in the text and has no marker
            }
        };
        if (const auto code = std::visit(bindOne, marker->value); !SQL_SUCCEEDED(code)) {
            return code;
        }
    }
    return SQL_SUCCESS;
}

} // namespace velcro::sql::odbc

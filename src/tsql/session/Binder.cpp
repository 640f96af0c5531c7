#include "tsql/session/Binder.h"

#include "tsql/catalogue/SqliteQuery.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>
#include <limits>

namespace velcro::sql::tsql {

namespace {

struct Fetched
{
    Value value;
    Type type;
};

const Parameter& parameterNamed(std::span<const Parameter> parameters, const std::string& name) {
    const auto found = std::find_if(parameters.begin(), parameters.end(),
                                    [&](const auto& p) { return sameName(p.name, name); });
    if (found == parameters.end()) {
        raise(137, {":" + name});
    }
    return *found;
}

Fetched fetch(const Bind& bind, const BindSources& sources) {
    switch (bind.source) {
    case Bind::Source::Literal: {
        std::string scratch;
        const auto text = sources.literals[bind.index].value(scratch);
        return {literalValue(bind.kind, text, bind.negated), literalType(bind.kind, text)};
    }
    case Bind::Source::Variable: {
        const FrameVariable* variable = sources.frame->find(bind.name);
        if (variable == nullptr) {
            raise(137, {bind.name});
        }
        return {variable->value, variable->type};
    }
    case Bind::Source::Parameter: {
        const Parameter& parameter = parameterNamed(sources.parameters, bind.name);
        return {parameterValue(parameter), parameterType(parameter)};
    }
    case Bind::Source::Session:
        return {(*sources.sessionValue)(bind.name), bind.from};
    case Bind::Source::Given:
        return {sources.given[bind.index], bind.from};
    default:
        return {bind.value, bind.from};
    }
}

/// What is not bound would be NULL.
void requireBound(sqlite3_stmt* statement, int code) {
    if (code != SQLITE_OK) {
        throw storageFault(sqlite3_db_handle(statement), code);
    }
}

void bindText(sqlite3_stmt* statement, int index, std::string_view text, bool lasts) {
    requireBound(statement,
                 sqlite3_bind_text64(statement, index, text.data() != nullptr ? text.data() : "",
                                     text.size(), lasts ? SQLITE_STATIC : SQLITE_TRANSIENT,
                                     SQLITE_UTF8));
}

void bindValue(sqlite3_stmt* statement, int index, const Value& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        sqlite3_bind_int64(statement, index, *integer);
    } else if (const auto* number = std::get_if<double>(&value)) {
        sqlite3_bind_double(statement, index, *number);
    } else if (const auto* text = std::get_if<std::string>(&value)) {
        bindText(statement, index, *text, false);
    } else if (const auto* blob = std::get_if<Blob>(&value)) {
        requireBound(statement,
                     sqlite3_bind_blob64(statement, index,
                                         blob->bytes.data() != nullptr ? blob->bytes.data() : "",
                                         blob->bytes.size(), SQLITE_TRANSIENT));
    } else {
        sqlite3_bind_null(statement, index);
    }
}

/// Most values are quoted text for text columns: bound where they stand in the batch.
bool bindPlainText(sqlite3_stmt* statement, int index, const Bind& bind,
                   const BindSources& sources) {
    const bool quoted =
        bind.kind == LiteralKind::String || bind.kind == LiteralKind::NationalString;
    if (bind.source != Bind::Source::Literal || !quoted) {
        return false;
    }
    std::string scratch;
    const LiftedLiteral& literal = sources.literals[bind.index];
    const auto text = literal.value(scratch);
    if (!bind.to.isNull() && !fitsAsText(text, bind.to)) {
        return false;
    }
    bindText(statement, index, text, !literal.doubled);
    return true;
}

} // namespace

void bindAll(sqlite3_stmt* statement, std::span<const Bind> binds, const BindSources& sources) {
    int index = 0;
    for (const Bind& bind : binds) {
        ++index;
        if (bindPlainText(statement, index, bind, sources)) {
            continue;
        }
        Fetched fetched = fetch(bind, sources);
        if (!bind.to.isNull() && !fetched.type.isNull()) {
            fetched.value = bind.store
                                ? convertForColumn(std::move(fetched.value), fetched.type, bind.to,
                                                   {bind.store->table, bind.store->column})
                                : convert(std::move(fetched.value), fetched.type, bind.to);
        }
        bindValue(statement, index, fetched.value);
    }
}

Type parameterType(const Parameter& parameter) {
    if (const auto* integer = std::get_if<std::int64_t>(&parameter.value)) {
        const bool fits = *integer >= std::numeric_limits<std::int32_t>::min() &&
                          *integer <= std::numeric_limits<std::int32_t>::max();
        return fits ? intType : bigIntType;
    }
    if (std::holds_alternative<double>(parameter.value)) {
        return floatType;
    }
    if (std::holds_alternative<velcro::sql::Blob>(parameter.value)) {
        return varbinaryType(maxLength);
    }
    return std::holds_alternative<std::string>(parameter.value) ? nvarcharType(maxLength) : Type();
}

Value parameterValue(const Parameter& parameter) {
    if (const auto* integer = std::get_if<std::int64_t>(&parameter.value)) {
        return *integer;
    }
    if (const auto* number = std::get_if<double>(&parameter.value)) {
        return *number;
    }
    if (const auto* text = std::get_if<std::string>(&parameter.value)) {
        return *text;
    }
    if (const auto* blob = std::get_if<velcro::sql::Blob>(&parameter.value)) {
        return Blob{blob->bytes};
    }
    return {};
}

Value cellValue(sqlite3_stmt* statement, int column) {
    const auto size = [&] {
        return static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
    };
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return std::int64_t{sqlite3_column_int64(statement, column)};
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    case SQLITE_TEXT: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        return std::string(text, size());
    }
    case SQLITE_BLOB: {
        const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
        return bytes == nullptr ? Blob{} : Blob{std::string(bytes, size())};
    }
    default:
        return {};
    }
}

} // namespace velcro::sql::tsql

// What a statement calls for the parts of an expression that is too deep for SQLite's parser.
#include "tsql/functions/FunctionCall.h"

#include <memory>
#include <vector>

namespace velcro::sql::tsql {

namespace {

struct FreeValue
{
    void operator()(sqlite3_value* value) const noexcept { sqlite3_value_free(value); }
};
using Values = std::vector<std::unique_ptr<sqlite3_value, FreeValue>>;

constexpr const char* packet = "ts_values";
constexpr std::size_t partsKept = 200;

void values(sqlite3_context* context, int count, sqlite3_value** arguments) {
    auto copies = std::make_unique<Values>();
    for (sqlite3_value* argument : std::span(arguments, static_cast<std::size_t>(count))) {
        copies->emplace_back(sqlite3_value_dup(argument));
    }
    sqlite3_result_pointer(context, copies.release(), packet, [](void* pointer) {
        const std::unique_ptr<Values> owner(static_cast<Values*>(pointer));
    });
}

StatementHandle prepared(const Call& call) {
    const std::string_view text = call.text(0);
    if (auto kept = call.host().takePart(text)) {
        return kept;
    }
    sqlite3_stmt* raw = nullptr;
    sqlite3_prepare_v3(sqlite3_context_db_handle(call.context()), text.data(),
                       static_cast<int>(text.size()), SQLITE_PREPARE_PERSISTENT, &raw, nullptr);
    return StatementHandle(raw);
}

void bindValues(sqlite3_stmt* statement, std::span<sqlite3_value*> arguments) {
    int index = 0;
    for (sqlite3_value* argument : arguments) {
        const auto* values = static_cast<const Values*>(sqlite3_value_pointer(argument, packet));
        if (values == nullptr) {
            sqlite3_bind_value(statement, ++index, argument);
            continue;
        }
        for (const auto& value : *values) {
            sqlite3_bind_value(statement, ++index, value.get());
        }
    }
}

/// What fails in the part fails in the statement around; its fault waits in the host.
void part(sqlite3_context* context, int count, sqlite3_value** arguments) {
    const Call call(context, count, arguments);
    StatementHandle statement = prepared(call);
    if (!statement) {
        sqlite3_result_error(context, sqlite3_errmsg(sqlite3_context_db_handle(context)), -1);
        return;
    }
    bindValues(statement.get(), std::span(arguments, static_cast<std::size_t>(count)).subspan(1));
    const int code = sqlite3_step(statement.get());
    if (code == SQLITE_ROW) {
        sqlite3_result_value(context, sqlite3_column_value(statement.get(), 0));
    } else {
        sqlite3_result_error(context, sqlite3_errmsg(sqlite3_context_db_handle(context)), -1);
        sqlite3_result_error_code(context, code);
    }
    sqlite3_reset(statement.get());
    sqlite3_clear_bindings(statement.get());
    call.host().keepPart(call.text(0), std::move(statement));
}

constexpr ScalarFunction functions[] = {
    {"ts_part", -1, part, false},
    {"ts_values", -1, values, false},
};

} // namespace

std::span<const ScalarFunction> partFunctions() {
    return functions;
}

StatementHandle FunctionHost::takePart(std::string_view text) {
    const auto found = parts_.find(std::string(text));
    return found == parts_.end() ? StatementHandle() : std::move(found->second);
}

void FunctionHost::keepPart(std::string_view text, StatementHandle statement) {
    if (parts_.size() >= partsKept) {
        parts_.clear();
    }
    parts_.insert_or_assign(std::string(text), std::move(statement));
}

} // namespace velcro::sql::tsql

// One call of a scalar function by SQLite: its arguments read, its result or fault given back.
#pragma once

#include "tsql/catalogue/SqliteHandle.h"
#include "tsql/functions/Functions.h"
#include "tsql/values/Errors.h"

#include <cstdint>
#include <new>
#include <span>
#include <sqlite3.h>
#include <string>
#include <string_view>

namespace velcro::sql::tsql {

class Call
{
public:
    Call(sqlite3_context* context, int count, sqlite3_value** arguments)
        : context_(context)
        , arguments_(arguments, static_cast<std::size_t>(count)) {}

    std::size_t count() const { return arguments_.size(); }
    bool isNull(std::size_t i) const { return sqlite3_value_type(arguments_[i]) == SQLITE_NULL; }
    bool anyNull() const;
    /// SQLITE_INTEGER, SQLITE_FLOAT, SQLITE_TEXT, SQLITE_BLOB or SQLITE_NULL.
    int storage(std::size_t i) const { return sqlite3_value_type(arguments_[i]); }
    /// Valid until the same argument is read in another way.
    std::string_view text(std::size_t i) const;
    std::int64_t integer(std::size_t i) const { return sqlite3_value_int64(arguments_[i]); }
    double number(std::size_t i) const { return sqlite3_value_double(arguments_[i]); }
    Type type(std::size_t i) const { return typeFromCode(integer(i)); }
    Value value(std::size_t i) const;

    void give(std::string_view text) const;
    void give(std::int64_t value) const { sqlite3_result_int64(context_, value); }
    void give(double value) const { sqlite3_result_double(context_, value); }
    void give(const Value& value) const;
    void giveNull() const { sqlite3_result_null(context_); }
    /// An argument as it came.
    void giveArgument(std::size_t i) const { sqlite3_result_value(context_, arguments_[i]); }

    sqlite3_context* context() const { return context_; }
    FunctionHost& host() const { return *static_cast<FunctionHost*>(sqlite3_user_data(context_)); }

private:
    sqlite3_context* context_;
    std::span<sqlite3_value*> arguments_;
};

struct ScalarFunction
{
    const char* name;
    int arguments; // -1: any number
    void (*run)(sqlite3_context*, int, sqlite3_value**);
    bool pure = true; // the same arguments give the same result
};

void giveFault(const Call& call, const Fault& fault);

/// Runs `body`; a NULL among the arguments makes the result NULL unless it takes them itself.
template <void (*body)(const Call&), bool takesNulls = false>
void runScalar(sqlite3_context* context, int count, sqlite3_value** arguments) {
    const Call call(context, count, arguments);
    if (!takesNulls && call.anyNull()) {
        return;
    }
    try {
        body(call);
    } catch (const Fault& fault) {
        giveFault(call, fault);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    }
}

/// 7119 for a text that is longer than a value can be.
inline void requireRoom(std::size_t bytes) {
    if (bytes > longestValue) {
        raise(7119, {std::to_string(longestValue)});
    }
}

std::span<const ScalarFunction> conversionFunctions();
std::span<const ScalarFunction> textFunctions();
std::span<const ScalarFunction> searchFunctions();
std::span<const ScalarFunction> numberFunctions();
std::span<const ScalarFunction> dateFunctions();
std::span<const ScalarFunction> systemFunctions();
std::span<const ScalarFunction> partFunctions();

} // namespace velcro::sql::tsql

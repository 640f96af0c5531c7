#include "tsql/catalogue/Catalogue.h"
#include "tsql/catalogue/SqliteQuery.h"
#include "tsql/catalogue/UniqueKey.h"
#include "tsql/functions/FunctionCall.h"
#include "tsql/values/Collation.h"

#include <algorithm>
#include <chrono>
#include <ctime>

namespace velcro::sql::tsql {

namespace {

std::int64_t localNow() {
    using namespace std::chrono;
    const auto now = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(now);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &seconds);
    const std::time_t shifted = _mkgmtime(&local);
#else
    localtime_r(&seconds, &local);
    const std::time_t shifted = timegm(&local);
#endif
    const auto offset = static_cast<std::int64_t>(shifted - seconds) * 1000;
    return duration_cast<milliseconds>(now.time_since_epoch()).count() + offset;
}

void registerAll(sqlite3* database, std::span<const ScalarFunction> functions, FunctionHost& host) {
    for (const auto& function : functions) {
        const int flags = SQLITE_UTF8 | (function.pure ? SQLITE_DETERMINISTIC : 0);
        sqlite3_create_function_v2(database, function.name, function.arguments, flags, &host,
                                   function.run, nullptr, nullptr, nullptr);
    }
}

Fault nullFault(const Catalogue& catalogue, std::string_view column, std::string_view verb) {
    const auto dot = column.find('.');
    return Fault(serverMessage(
        515, {column.substr(dot + 1), catalogue.fullName(column.substr(0, dot)), verb}));
}

Fault constraintFault(const Catalogue& catalogue, std::string_view text, std::string_view verb) {
    const auto colon = text.find(": ");
    const auto what = colon == std::string_view::npos ? text : text.substr(colon + 2);
    if (text.starts_with("UNIQUE")) {
        return uniqueFault(text, catalogue);
    }
    if (text.starts_with("NOT NULL")) {
        return nullFault(catalogue, what, verb);
    }
    return Fault(serverMessage(547, {verb, "CHECK", what}));
}

} // namespace

bool Call::anyNull() const {
    return std::any_of(arguments_.begin(), arguments_.end(), [](sqlite3_value* value) {
        return sqlite3_value_type(value) == SQLITE_NULL;
    });
}

std::string_view Call::text(std::size_t i) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(arguments_[i]));
    return bytes ? std::string_view(bytes,
                                    static_cast<std::size_t>(sqlite3_value_bytes(arguments_[i])))
                 : std::string_view();
}

Value Call::value(std::size_t i) const {
    switch (storage(i)) {
    case SQLITE_INTEGER:
        return integer(i);
    case SQLITE_FLOAT:
        return number(i);
    case SQLITE_TEXT:
        return std::string(text(i));
    case SQLITE_BLOB: {
        const auto* bytes = static_cast<const char*>(sqlite3_value_blob(arguments_[i]));
        const auto size = static_cast<std::size_t>(sqlite3_value_bytes(arguments_[i]));
        return Blob{size == 0 ? std::string() : std::string(bytes, size)};
    }
    default:
        return {};
    }
}

void Call::give(std::string_view text) const {
    sqlite3_result_text64(context_, text.data() ? text.data() : "", text.size(), SQLITE_TRANSIENT,
                          SQLITE_UTF8);
}

void Call::give(const Value& value) const {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        give(*integer);
    } else if (const auto* number = std::get_if<double>(&value)) {
        give(*number);
    } else if (const auto* text = std::get_if<std::string>(&value)) {
        give(std::string_view(*text));
    } else if (const auto* blob = std::get_if<Blob>(&value)) {
        sqlite3_result_blob64(context_, blob->bytes.data(), blob->bytes.size(), SQLITE_TRANSIENT);
    } else {
        giveNull();
    }
}

void giveFault(const Call& call, const Fault& fault) {
    call.host().setFault(fault);
    sqlite3_result_error(call.context(), fault.what(), -1);
}

FunctionHost::FunctionHost(const Catalogue& catalogue, SessionFacts facts)
    : catalogue_(catalogue)
    , facts_(std::move(facts)) {
    if (!facts_.now) {
        facts_.now = localNow;
    }
}

void registerFunctions(sqlite3* database, FunctionHost& host) {
    registerCollation(database);
    registerAll(database, conversionFunctions(), host);
    registerAll(database, textFunctions(), host);
    registerAll(database, searchFunctions(), host);
    registerAll(database, numberFunctions(), host);
    registerAll(database, dateFunctions(), host);
    registerAll(database, systemFunctions(), host);
    registerAll(database, partFunctions(), host);
}

Fault faultFromSqlite(sqlite3* database, int code, const Catalogue& catalogue,
                      std::string_view verb) {
    return (code & 0xFF) == SQLITE_CONSTRAINT
               ? constraintFault(catalogue, sqlite3_errmsg(database), verb)
               : storageFault(database, code);
}

} // namespace velcro::sql::tsql

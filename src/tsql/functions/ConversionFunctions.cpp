// CAST, CONVERT, conversions for assignments, and arithmetic where SQLite's own differs.
#include "tsql/catalogue/Catalogue.h"
#include "tsql/functions/FunctionCall.h"
#include "tsql/values/DateTime.h"
#include "tsql/values/NumberText.h"

#include <cmath>

namespace velcro::sql::tsql {

namespace {

// Most values need no work: they are what the type wants already.
bool isAsWanted(const Call& call, const Type& from, const Type& to) {
    if (call.storage(0) == SQLITE_TEXT) {
        return from.isText() && fitsAsText(call.text(0), to);
    }
    return from == to && (from.isInteger() || from.isFloat());
}

void cast(const Call& call) {
    const Type from = call.type(1);
    const Type to = call.type(2);
    if (isAsWanted(call, from, to)) {
        call.giveArgument(0);
        return;
    }
    call.give(convert(call.value(0), from, to, static_cast<int>(call.integer(3))));
}

void tryCast(const Call& call) {
    try {
        cast(call);
    } catch (const Fault&) {
        call.giveNull();
    }
}

void store(const Call& call) {
    const Type from = call.type(1);
    const Type to = call.type(2);
    if (isAsWanted(call, from, to)) {
        call.giveArgument(0);
        return;
    }
    const std::string table = call.host().catalogue().fullName(call.text(3));
    call.give(convertForColumn(call.value(0), from, to, {table, call.text(4)}));
}

void notNull(const Call& call) {
    if (call.isNull(0)) {
        raise(515, {call.text(2), call.host().catalogue().fullName(call.text(1)), call.text(3)});
    }
    call.giveArgument(0);
}

bool bothIntegers(const Call& call) {
    return call.storage(0) == SQLITE_INTEGER && call.storage(1) == SQLITE_INTEGER;
}

void requireDivisor(const Call& call) {
    if (call.number(1) == 0) {
        raise(8134);
    }
}

void divide(const Call& call) {
    requireDivisor(call);
    if (!bothIntegers(call)) {
        call.give(call.number(0) / call.number(1));
        return;
    }
    if (call.integer(1) == -1) {
        call.give(static_cast<std::int64_t>(0 - static_cast<std::uint64_t>(call.integer(0))));
        return;
    }
    call.give(call.integer(0) / call.integer(1));
}

void modulo(const Call& call) {
    requireDivisor(call);
    if (bothIntegers(call)) {
        call.give(call.integer(1) == -1 ? 0 : call.integer(0) % call.integer(1));
        return;
    }
    call.give(std::fmod(call.number(0), call.number(1)));
}

enum class Operation { Add, Subtract, Multiply };

template <Operation operation>
bool overflows(std::int64_t a, std::int64_t b, std::int64_t& result) {
    if constexpr (operation == Operation::Add) {
        return __builtin_add_overflow(a, b, &result);
    } else if constexpr (operation == Operation::Subtract) {
        return __builtin_sub_overflow(a, b, &result);
    } else {
        return __builtin_mul_overflow(a, b, &result);
    }
}

template <Operation operation>
double applied(double a, double b) {
    return operation == Operation::Add ? a + b : operation == Operation::Subtract ? a - b : a * b;
}

double daysOf(const Call& call, std::size_t i) {
    const auto stored = readStored(call.text(i));
    return stored ? daysSince1900(*stored) : call.number(i);
}

template <Operation operation>
void arithmetic(const Call& call) {
    const Type type = call.type(2);
    if (type.isDateTime()) {
        const double days = applied<operation>(daysOf(call, 0), daysOf(call, 1));
        call.give(convert(days, floatType, type));
        return;
    }
    if (type.isInteger() && bothIntegers(call)) {
        std::int64_t result = 0;
        if (overflows<operation>(call.integer(0), call.integer(1), result)) {
            raise(8115, {"expression", baseTypeName(type.id)});
        }
        call.give(type.id == TypeId::Bit ? result : requireRange(result, bigIntType, type));
        return;
    }
    call.give(convert(applied<operation>(call.number(0), call.number(1)), floatType, type));
}

void raiseFault(const Call& call) {
    const auto argument = [&](std::size_t i) {
        return i < call.count() ? call.text(i) : std::string_view();
    };
    raise(static_cast<int>(call.integer(0)), {argument(1), argument(2), argument(3), argument(4)});
}

/// How many rows TOP, FETCH or OFFSET ask for: the count, the least that is allowed, and the number of
/// the error for less.
void rowCount(const Call& call) {
    if (call.isNull(0)) {
        raise(1014, {});
    }
    if (call.integer(0) < call.integer(1)) {
        raise(static_cast<int>(call.integer(2)), {});
    }
    call.giveArgument(0);
}

constexpr ScalarFunction functions[] = {
    {"ts_cast", 4, runScalar<cast>},
    {"ts_try_cast", 4, runScalar<tryCast>},
    {"ts_store", 5, runScalar<store>},
    {"ts_not_null", 4, runScalar<notNull, true>},
    {"ts_divide", 2, runScalar<divide>},
    {"ts_modulo", 2, runScalar<modulo>},
    {"ts_add", 3, runScalar<arithmetic<Operation::Add>>},
    {"ts_subtract", 3, runScalar<arithmetic<Operation::Subtract>>},
    {"ts_multiply", 3, runScalar<arithmetic<Operation::Multiply>>},
    {"ts_row_count", 3, runScalar<rowCount, true>},
    {"ts_raise", -1, runScalar<raiseFault, true>, false},
};

} // namespace

std::span<const ScalarFunction> conversionFunctions() {
    return functions;
}

} // namespace velcro::sql::tsql

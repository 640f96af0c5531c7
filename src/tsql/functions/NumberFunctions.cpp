// Functions over numbers.
#include "tsql/functions/FunctionCall.h"
#include "tsql/values/NumberText.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace velcro::sql::tsql {

namespace {

bool isInteger(const Call& call) {
    return call.storage(0) == SQLITE_INTEGER;
}

void absolute(const Call& call) {
    if (isInteger(call)) {
        const std::int64_t value = call.integer(0);
        call.give(value < 0 ? static_cast<std::int64_t>(0 - static_cast<std::uint64_t>(value))
                            : value);
        return;
    }
    call.give(std::abs(call.number(0)));
}

void round(const Call& call) {
    const auto digits = static_cast<int>(std::clamp<std::int64_t>(call.integer(1), -400, 400));
    const bool truncate = call.count() > 2 && call.integer(2) != 0;
    const double rounded = roundDecimal(call.number(0), digits, truncate);
    if (!isInteger(call)) {
        call.give(rounded);
    } else if (digits >= 0) {
        call.giveArgument(0);
    } else {
        call.give(wholePart(rounded, floatType, bigIntType));
    }
}

void floor(const Call& call) {
    isInteger(call) ? call.giveArgument(0) : call.give(std::floor(call.number(0)));
}

void ceiling(const Call& call) {
    isInteger(call) ? call.giveArgument(0) : call.give(std::ceil(call.number(0)));
}

void sign(const Call& call) {
    const double value = call.number(0);
    const int result = value < 0 ? -1 : value > 0 ? 1 : 0;
    isInteger(call) ? call.give(std::int64_t{result}) : call.give(double{1} * result);
}

[[noreturn]] void raiseFloat() {
    throw Fault({3623, 16, 1, 0, "An invalid floating point operation occurred."});
}

void giveFinite(const Call& call, double value) {
    if (!std::isfinite(value)) {
        raiseFloat();
    }
    call.give(value);
}

void power(const Call& call) {
    const double result = std::pow(call.number(0), call.number(1));
    if (!isInteger(call)) {
        giveFinite(call, result);
        return;
    }
    if (!(std::abs(result) <= 2147483648.0)) {
        raise(8115, {"expression", "int"});
    }
    call.give(static_cast<std::int64_t>(result));
}

void squareRoot(const Call& call) {
    giveFinite(call, std::sqrt(call.number(0)));
}
void square(const Call& call) {
    giveFinite(call, call.number(0) * call.number(0));
}
void exponential(const Call& call) {
    giveFinite(call, std::exp(call.number(0)));
}
void logarithm10(const Call& call) {
    giveFinite(call, std::log10(call.number(0)));
}
void pi(const Call& call) {
    call.give(std::numbers::pi);
}

void logarithm(const Call& call) {
    const double base = call.count() > 1 ? std::log(call.number(1)) : 1;
    giveFinite(call, std::log(call.number(0)) / base);
}

void random(const Call& call) {
    static std::mt19937_64 generator{std::random_device{}()};
    call.give(std::uniform_real_distribution<double>(0, 1)(generator));
}

void choose(const Call& call) {
    const std::int64_t index = call.isNull(0) ? 0 : call.integer(0);
    if (index >= 1 && index < static_cast<std::int64_t>(call.count())) {
        call.giveArgument(static_cast<std::size_t>(index));
    }
}

void isNumericValue(const Call& call) {
    if (call.isNull(0) || call.storage(0) == SQLITE_BLOB) {
        call.give(std::int64_t{0});
        return;
    }
    const bool numeric = call.storage(0) != SQLITE_TEXT || isNumeric(call.text(0));
    call.give(std::int64_t{numeric});
}

constexpr ScalarFunction functions[] = {
    {"ts_abs", 1, runScalar<absolute>},
    {"ts_round", -1, runScalar<round>},
    {"ts_floor", 1, runScalar<floor>},
    {"ts_ceiling", 1, runScalar<ceiling>},
    {"ts_sign", 1, runScalar<sign>},
    {"ts_power", 2, runScalar<power>},
    {"ts_sqrt", 1, runScalar<squareRoot>},
    {"ts_square", 1, runScalar<square>},
    {"ts_exp", 1, runScalar<exponential>},
    {"ts_log", -1, runScalar<logarithm>},
    {"ts_log10", 1, runScalar<logarithm10>},
    {"ts_pi", 0, runScalar<pi>},
    {"ts_rand", 0, runScalar<random>, false},
    {"ts_choose", -1, runScalar<choose, true>},
    {"ts_isnumeric", 1, runScalar<isNumericValue, true>},
};

} // namespace

std::span<const ScalarFunction> numberFunctions() {
    return functions;
}

} // namespace velcro::sql::tsql

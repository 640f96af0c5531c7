// Functions over dates and times.
#include "tsql/functions/FunctionCall.h"
#include "tsql/values/DateTime.h"

#include <algorithm>
#include <chrono>
#include <limits>

namespace velcro::sql::tsql {

namespace {

constexpr std::int64_t ticksOfMillisecond = 10'000;

// The arguments hold the file's form, to which the caller has converted them.
DateTime dateTimeArgument(const Call& call, std::size_t i) {
    if (const auto stored = readStored(call.text(i))) {
        return *stored;
    }
    return readDateTime(call.text(i), nvarcharType(maxLength), dateTimeType, 0);
}

DateTime fromMilliseconds(std::int64_t milliseconds) {
    return normalized({milliseconds / 86'400'000, milliseconds % 86'400'000 * ticksOfMillisecond});
}

void giveMoment(const Call& call, std::int64_t milliseconds, const Type& type) {
    const DateTime moment = roundedTo(fromMilliseconds(milliseconds), type, type);
    call.give(std::string_view(storedText(moment, type)));
}

constexpr Type dateTime2Type{TypeId::DateTime2, 0, 0, 7};

std::int64_t universalNow() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

void localDate(const Call& call) {
    giveMoment(call, call.host().facts().now(), dateTimeType);
}
void localDate2(const Call& call) {
    giveMoment(call, call.host().facts().now(), dateTime2Type);
}
void universalDate(const Call& call) {
    giveMoment(call, universalNow(), dateTimeType);
}

DateTime addMonths(const DateTime& value, std::int64_t months) {
    auto date = civilDate(value.day);
    const std::int64_t all = date.year * 12 + date.month - 1 + months;
    const std::int64_t year = all / 12;
    if (all < 12 || year > 9999) {
        raise(517, {"datetime"});
    }
    const int month = static_cast<int>(all % 12) + 1;
    return {dayOf({year, month, std::min(date.day, daysInMonth(year, month))}), value.ticks};
}

struct Unit
{
    std::string_view name;
    std::int64_t months; // either
    std::int64_t ticks;  // or; parts of a day below, whole days above
};

constexpr Unit units[] = {{"year", 12, 0},
                          {"quarter", 3, 0},
                          {"month", 1, 0},
                          {"week", 0, 7 * ticksOfDay},
                          {"day", 0, ticksOfDay},
                          {"dayofyear", 0, ticksOfDay},
                          {"weekday", 0, ticksOfDay},
                          {"hour", 0, ticksOfHour},
                          {"minute", 0, ticksOfMinute},
                          {"second", 0, ticksOfSecond},
                          {"millisecond", 0, ticksOfMillisecond},
                          {"microsecond", 0, 10},
                          {"nanosecond", 0, 0}};

const Unit& unitOf(std::string_view name, std::string_view function) {
    for (const auto& unit : units) {
        if (unit.name == name) {
            return unit;
        }
    }
    throw Fault({9810, 16, 1, 0,
                 "The datepart " + std::string(name) + " is not supported by date function " +
                     std::string(function) + "."});
}

// DATEADD(part, count, date), each with its type code behind it.
void dateAdd(const Call& call) {
    const Unit& unit = unitOf(call.text(0), "dateadd");
    const std::int64_t count = call.integer(2);
    const Type declared = call.type(5);
    const Type type = declared.isDateTime() ? declared : dateTimeType;
    DateTime value = dateTimeArgument(call, 4);
    if (unit.months != 0) {
        value = addMonths(value, count * unit.months);
    } else if (unit.ticks >= ticksOfDay) {
        value.day += count * (unit.ticks / ticksOfDay);
    } else {
        const std::int64_t perDay = unit.ticks == 0 ? ticksOfDay * 100 : ticksOfDay / unit.ticks;
        value.day += count / perDay;
        value.ticks += unit.ticks == 0 ? count % perDay / 100 : count % perDay * unit.ticks;
    }
    value = normalized(value);
    const std::int64_t first = dayOf({type.id == TypeId::DateTime ? 1753 : 1, 1, 1});
    if (type.id != TypeId::Time && (value.day < first || value.day > dayOf({9999, 12, 31}))) {
        raise(517, {baseTypeName(type.id)});
    }
    call.give(std::string_view(storedText(roundedTo(value, type, type), type)));
}

std::int64_t boundariesBetween(const Unit& unit, const DateTime& from, const DateTime& to) {
    if (unit.months != 0) {
        const auto a = civilDate(from.day);
        const auto b = civilDate(to.day);
        return (b.year * 12 + b.month - 1) / unit.months -
               (a.year * 12 + a.month - 1) / unit.months;
    }
    if (unit.name == "week") { // weeks begin on Sunday
        return (to.day + 4 + 7 * 200'000) / 7 - (from.day + 4 + 7 * 200'000) / 7;
    }
    if (unit.ticks >= ticksOfDay) {
        return to.day - from.day;
    }
    if (unit.ticks == 0) {
        const std::int64_t ticks = (to.day - from.day) * ticksOfDay + to.ticks - from.ticks;
        return ticks > 0 ? std::min<std::int64_t>(ticks, 1LL << 32) * 100
                         : std::max<std::int64_t>(ticks, -(1LL << 32)) * 100;
    }
    const std::int64_t perDay = ticksOfDay / unit.ticks;
    return (to.day - from.day) * perDay + to.ticks / unit.ticks - from.ticks / unit.ticks;
}

void dateDifference(const Call& call) {
    const Unit& unit = unitOf(call.text(0), "datediff");
    const std::int64_t count =
        boundariesBetween(unit, dateTimeArgument(call, 1), dateTimeArgument(call, 2));
    if (count > std::numeric_limits<std::int32_t>::max() ||
        count < std::numeric_limits<std::int32_t>::min()) {
        raise(535, {"datediff"});
    }
    call.give(count);
}

std::int64_t isoWeek(std::int64_t day) {
    const std::int64_t thursday = day - (weekdayOf(day) + 6) % 7 + 3;
    return (thursday - dayOf({civilDate(thursday).year, 1, 1})) / 7 + 1;
}

std::int64_t partOf(std::string_view name, const DateTime& value) {
    const auto date = civilDate(value.day);
    const std::int64_t newYear = dayOf({date.year, 1, 1});
    if (name == "year") {
        return date.year;
    }
    if (name == "quarter") {
        return (date.month + 2) / 3;
    }
    if (name == "month") {
        return date.month;
    }
    if (name == "day") {
        return date.day;
    }
    if (name == "dayofyear") {
        return value.day - newYear + 1;
    }
    if (name == "week") {
        return (value.day - newYear + weekdayOf(newYear)) / 7 + 1;
    }
    if (name == "isoweek") {
        return isoWeek(value.day);
    }
    if (name == "weekday") {
        return weekdayOf(value.day) + 1;
    }
    if (name == "nanosecond") {
        return value.ticks % ticksOfSecond * 100;
    }
    const Unit& unit = unitOf(name, "datepart");
    const std::int64_t above = unit.ticks == ticksOfHour     ? 24
                               : unit.ticks >= ticksOfSecond ? 60
                                                             : ticksOfSecond / unit.ticks;
    return value.ticks / unit.ticks % above;
}

void datePart(const Call& call) {
    call.give(partOf(call.text(0), dateTimeArgument(call, 1)));
}

void dateName(const Call& call) {
    const auto part = call.text(0);
    const DateTime value = dateTimeArgument(call, 1);
    if (part == "month") {
        call.give(monthName(civilDate(value.day).month));
    } else if (part == "weekday") {
        call.give(weekdayName(weekdayOf(value.day)));
    } else {
        call.give(std::string_view(std::to_string(partOf(part, value))));
    }
}

void year(const Call& call) {
    call.give(partOf("year", dateTimeArgument(call, 0)));
}
void month(const Call& call) {
    call.give(partOf("month", dateTimeArgument(call, 0)));
}
void day(const Call& call) {
    call.give(partOf("day", dateTimeArgument(call, 0)));
}

void endOfMonth(const Call& call) {
    const DateTime value =
        addMonths(dateTimeArgument(call, 0), call.count() > 1 ? call.integer(1) : 0);
    auto date = civilDate(value.day);
    date.day = daysInMonth(date.year, date.month);
    call.give(std::string_view(storedText({dayOf(date), 0}, {TypeId::Date})));
}

void dateFromParts(const Call& call) {
    const CivilDate date{call.integer(0), static_cast<int>(call.integer(1)),
                         static_cast<int>(call.integer(2))};
    if (date.year < 1 || date.year > 9999 || date.month < 1 || date.month > 12 || date.day < 1 ||
        date.day > daysInMonth(date.year, date.month)) {
        throw Fault({289, 16, 1, 0,
                     "Cannot construct data type date, some of the arguments have values which are "
                     "not valid."});
    }
    call.give(std::string_view(storedText({dayOf(date), 0}, {TypeId::Date})));
}

void isDate(const Call& call) {
    bool valid = call.storage(0) == SQLITE_TEXT && !call.text(0).empty();
    try {
        if (valid) {
            const auto text = nvarcharType(maxLength);
            roundedTo(readDateTime(call.text(0), text, dateTimeType, 0), text, dateTimeType);
        }
    } catch (const Fault&) {
        valid = false;
    }
    call.give(std::int64_t{valid});
}

constexpr ScalarFunction functions[] = {
    {"ts_getdate", 0, runScalar<localDate>, false},
    {"ts_sysdatetime", 0, runScalar<localDate2>, false},
    {"ts_getutcdate", 0, runScalar<universalDate>, false},
    {"ts_dateadd", 6, runScalar<dateAdd>},
    {"ts_datediff", 3, runScalar<dateDifference>},
    {"ts_datepart", 2, runScalar<datePart>},
    {"ts_datename", 2, runScalar<dateName>},
    {"ts_year", 1, runScalar<year>},
    {"ts_month", 1, runScalar<month>},
    {"ts_day", 1, runScalar<day>},
    {"ts_eomonth", -1, runScalar<endOfMonth>},
    {"ts_datefromparts", 3, runScalar<dateFromParts>},
    {"ts_isdate", 1, runScalar<isDate, true>},
};

} // namespace

std::span<const ScalarFunction> dateFunctions() {
    return functions;
}

} // namespace velcro::sql::tsql

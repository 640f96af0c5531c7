#include "tsql/values/DateTime.h"

#include "tsql/values/Errors.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace velcro::sql::tsql {

namespace {

constexpr std::string_view months[] = {"January",   "February", "March",    "April",
                                       "May",       "June",     "July",     "August",
                                       "September", "October",  "November", "December"};
constexpr std::string_view weekdays[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                         "Thursday", "Friday", "Saturday"};

template <class... Arguments>
std::string printed(const char* format, Arguments... arguments) {
    std::array<char, 64> buffer{};
    std::snprintf(buffer.data(), buffer.size(), format, arguments...);
    return buffer.data();
}

struct Clock
{
    int hour;
    int minute;
    int second;
    int ticks; // of 100 ns
};

Clock clockOf(const DateTime& value) {
    return {static_cast<int>(value.ticks / ticksOfHour),
            static_cast<int>(value.ticks / ticksOfMinute % 60),
            static_cast<int>(value.ticks / ticksOfSecond % 60),
            static_cast<int>(value.ticks % ticksOfSecond)};
}

std::string dateText(const DateTime& value, char separator) {
    const auto date = civilDate(value.day);
    return printed("%04d%c%02d%c%02d", static_cast<int>(date.year), separator, date.month,
                   separator, date.day);
}

std::string timeText(const DateTime& value) {
    const auto clock = clockOf(value);
    return printed("%02d:%02d:%02d", clock.hour, clock.minute, clock.second);
}

std::string fraction(const DateTime& value, int digits) {
    return digits == 0 ? "" : "." + printed("%07d", clockOf(value).ticks).substr(0, digits);
}

int fractionDigits(const Type& type) {
    switch (type.id) {
    case TypeId::DateTime:
        return 3;
    case TypeId::DateTime2:
    case TypeId::Time:
        return type.scale;
    default:
        return 0;
    }
}

// Reads the digits of a fixed place; -1 when one of them is none.
int digitsAt(std::string_view text, std::size_t at, std::size_t count) {
    int number = 0;
    for (std::size_t i = at; i < at + count; ++i) {
        if (i >= text.size() || text[i] < '0' || text[i] > '9') {
            return -1;
        }
        number = number * 10 + (text[i] - '0');
    }
    return number;
}

std::optional<std::int64_t> readClock(std::string_view text) {
    const int hour = digitsAt(text, 0, 2);
    const int minute = digitsAt(text, 3, 2);
    const int second = digitsAt(text, 6, 2);
    if (hour < 0 || minute < 0 || second < 0 || text[2] != ':' || text[5] != ':' || hour > 23 ||
        minute > 59 || second > 59) {
        return std::nullopt;
    }
    std::int64_t ticks = hour * ticksOfHour + minute * ticksOfMinute + second * ticksOfSecond;
    if (text.size() > 8) {
        if (text[8] != '.' || text.size() > 16 || digitsAt(text, 9, text.size() - 9) < 0) {
            return std::nullopt;
        }
        std::int64_t unit = ticksOfSecond;
        for (std::size_t i = 9; i < text.size(); ++i) {
            unit /= 10;
            ticks += (text[i] - '0') * unit;
        }
    }
    return ticks;
}

std::string twelveHours(const DateTime& value, bool seconds) {
    const auto clock = clockOf(value);
    const int hour = clock.hour % 12 == 0 ? 12 : clock.hour % 12;
    std::string text = printed("%2d:%02d", hour, clock.minute);
    if (seconds) {
        text += printed(":%02d:%03d", clock.second, clock.ticks / 10'000);
    }
    return text + (clock.hour < 12 ? "AM" : "PM");
}

std::string shortMonth(int month) {
    return std::string(monthName(month).substr(0, 3));
}

// mon dd yyyy hh:miAM, the form of style 0 and of a plain CAST.
std::string longForm(const DateTime& value, bool seconds) {
    const auto date = civilDate(value.day);
    return shortMonth(date.month) + printed(" %2d %d ", date.day, static_cast<int>(date.year)) +
           twelveHours(value, seconds);
}

// Styles 1 to 12 and 101 to 112 differ in their century alone.
std::optional<std::string> dayStyle(const CivilDate& date, int style) {
    const bool century = style >= 100;
    const int y = static_cast<int>(century ? date.year : date.year % 100);
    const char* const year = century ? "%04d" : "%02d";
    const auto joined = [&](const char* rest, int a, int b) { return printed(rest, a, b); };
    switch (style % 100) {
    case 1:
        return joined("%02d/%02d/", date.month, date.day) + printed(year, y);
    case 2:
        return printed(year, y) + joined(".%02d.%02d", date.month, date.day);
    case 3:
        return joined("%02d/%02d/", date.day, date.month) + printed(year, y);
    case 4:
        return joined("%02d.%02d.", date.day, date.month) + printed(year, y);
    case 5:
        return joined("%02d-%02d-", date.day, date.month) + printed(year, y);
    case 6:
        return printed("%02d ", date.day) + shortMonth(date.month) + " " + printed(year, y);
    case 7:
        return shortMonth(date.month) + printed(" %02d, ", date.day) + printed(year, y);
    case 10:
        return joined("%02d-%02d-", date.month, date.day) + printed(year, y);
    case 11:
        return printed(year, y) + joined("/%02d/%02d", date.month, date.day);
    case 12:
        return printed(year, y) + joined("%02d%02d", date.month, date.day);
    default:
        return std::nullopt;
    }
}

} // namespace

std::int64_t dayOf(const CivilDate& date) {
    // Years that begin in March have the leap day at their end.
    const std::int64_t y = date.year - (date.month <= 2 ? 1 : 0);
    const std::int64_t era = (y >= 0 ? y : y - 399) / 400;
    const std::int64_t yearOfEra = y - era * 400;
    const std::int64_t dayOfYear =
        (153 * (date.month + (date.month > 2 ? -3 : 9)) + 2) / 5 + date.day - 1;
    return era * 146097 + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear - 719468;
}

CivilDate civilDate(std::int64_t day) {
    day += 719468;
    const std::int64_t era = (day >= 0 ? day : day - 146096) / 146097;
    const std::int64_t dayOfEra = day - era * 146097;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int month = static_cast<int>((5 * dayOfYear + 2) / 153);
    const int civilMonth = month < 10 ? month + 3 : month - 9;
    return {yearOfEra + era * 400 + (civilMonth <= 2 ? 1 : 0), civilMonth,
            static_cast<int>(dayOfYear - (153 * month + 2) / 5 + 1)};
}

int daysInMonth(std::int64_t year, int month) {
    const CivilDate next{month == 12 ? year + 1 : year, month == 12 ? 1 : month + 1, 1};
    return static_cast<int>(dayOf(next) - dayOf({year, month, 1}));
}

int weekdayOf(std::int64_t day) {
    return static_cast<int>(((day + 4) % 7 + 7) % 7);
}

std::string_view monthName(int month) {
    return months[month - 1];
}
std::string_view weekdayName(int weekday) {
    return weekdays[weekday];
}

DateTime normalized(DateTime value) {
    std::int64_t days = value.ticks / ticksOfDay;
    if (value.ticks % ticksOfDay < 0) {
        --days;
    }
    return {value.day + days, value.ticks - days * ticksOfDay};
}

std::optional<DateTime> readStored(std::string_view text) {
    if (text.size() >= 8 && text[2] == ':') {
        const auto ticks = readClock(text);
        return ticks ? std::optional(DateTime{day1900, *ticks}) : std::nullopt;
    }
    const int year = digitsAt(text, 0, 4);
    const int month = digitsAt(text, 5, 2);
    const int day = digitsAt(text, 8, 2);
    if (year < 1 || month < 1 || month > 12 || day < 1 || text[4] != '-' || text[7] != '-' ||
        day > daysInMonth(year, month)) {
        return std::nullopt;
    }
    DateTime value{dayOf({year, month, day}), 0};
    if (text.size() > 10) {
        const auto ticks =
            text.size() >= 19 && text[10] == ' ' ? readClock(text.substr(11)) : std::nullopt;
        if (!ticks) {
            return std::nullopt;
        }
        value.ticks = *ticks;
    }
    return value;
}

std::string storedText(const DateTime& value, const Type& type) {
    const std::string time = timeText(value) + fraction(value, fractionDigits(type));
    if (type.id == TypeId::Time) {
        return time;
    }
    const std::string date = dateText(value, '-');
    return type.id == TypeId::Date ? date : date + " " + time;
}

std::string styledText(const DateTime& value, const Type& type, int style) {
    const bool dateOnly = type.id == TypeId::Date;
    const bool newType = dateOnly || type.id == TypeId::Time || type.id == TypeId::DateTime2;
    if ((style == 0 && newType) || (dateOnly && (style == 20 || style == 21 || style == 120 ||
                                                 style == 121 || style == 126))) {
        return storedText(value, type);
    }
    const int digits = newType ? fractionDigits(type) : 3;
    switch (style) {
    case 0:
    case 100:
        return longForm(value, false);
    case 9:
    case 109:
        return longForm(value, true);
    case 8:
    case 24:
    case 108:
        return timeText(value);
    case 13:
    case 113: {
        const auto date = civilDate(value.day);
        return printed("%02d ", date.day) + shortMonth(date.month) +
               printed(" %d ", static_cast<int>(date.year)) + timeText(value) + ":" +
               fraction(value, 3).substr(1);
    }
    case 14:
    case 114:
        return timeText(value) + ":" + fraction(value, 3).substr(1);
    case 20:
    case 120:
        return dateText(value, '-') + " " + timeText(value);
    case 21:
    case 25:
    case 121:
        return type.id == TypeId::Time
                   ? storedText(value, type)
                   : dateText(value, '-') + " " + timeText(value) + fraction(value, digits);
    case 23:
        return dateText(value, '-');
    case 126:
    case 127: {
        const bool whole = value.ticks % ticksOfSecond == 0 && !newType;
        return dateText(value, '-') + "T" + timeText(value) + fraction(value, whole ? 0 : digits);
    }
    default:
        break;
    }
    if (auto text =
            style >= 0 && style <= 112 ? dayStyle(civilDate(value.day), style) : std::nullopt) {
        return *text;
    }
    raise(281, {std::to_string(style), baseTypeName(type.id)});
}

DateTime roundedTo(DateTime value, const Type& from, const Type& to) {
    std::int64_t first = dayOf({1, 1, 1});
    std::int64_t last = dayOf({9999, 12, 31});
    if (to.id == TypeId::DateTime) {
        // 1/300 s, then in the milliseconds that are shown: .000, .003, .007
        const std::int64_t units = (value.ticks * 3 + 50'000) / 100'000;
        value.ticks = (units * 10 + 1) / 3 * 10'000;
        first = dayOf({1753, 1, 1});
    } else if (to.id == TypeId::SmallDateTime) {
        value.ticks = (value.ticks + ticksOfMinute / 2) / ticksOfMinute * ticksOfMinute;
        first = day1900;
        last = dayOf({2079, 6, 6});
    } else if (to.id == TypeId::DateTime2 || to.id == TypeId::Time) {
        const auto unit = static_cast<std::int64_t>(std::pow(10, 7 - to.scale));
        value.ticks = (value.ticks + unit / 2) / unit * unit;
    }
    value = normalized(value);
    if (to.id == TypeId::Date) {
        value.ticks = 0;
    } else if (to.id == TypeId::Time) {
        value.day = day1900;
    }
    if (value.day < first || value.day > last) {
        raise(242, {baseTypeName(from.id), baseTypeName(to.id)});
    }
    return value;
}

double daysSince1900(const DateTime& value) {
    return static_cast<double>(value.day - day1900) +
           static_cast<double>(value.ticks) / static_cast<double>(ticksOfDay);
}

DateTime fromDaysSince1900(double days) {
    const double whole = std::floor(days);
    return normalized({static_cast<std::int64_t>(whole) + day1900,
                       std::llround((days - whole) * static_cast<double>(ticksOfDay))});
}

} // namespace velcro::sql::tsql

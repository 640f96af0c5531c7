// Dates and times as the server reckons with them, and the texts they are read from and written as.
#pragma once

#include "tsql/values/Values.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velcro::sql::tsql {

/// A day and a time of day, without a zone.
struct DateTime
{
    std::int64_t day = 0;   // 0 is 1970-01-01
    std::int64_t ticks = 0; // of 100 ns, 0 to ticksOfDay - 1

    bool operator==(const DateTime&) const = default;
};

inline constexpr std::int64_t ticksOfSecond = 10'000'000;
inline constexpr std::int64_t ticksOfMinute = 60 * ticksOfSecond;
inline constexpr std::int64_t ticksOfHour = 60 * ticksOfMinute;
inline constexpr std::int64_t ticksOfDay = 24 * ticksOfHour;
inline constexpr std::int64_t day1900 = -25567; // what a time alone is read as

struct CivilDate
{
    std::int64_t year = 1900;
    int month = 1;
    int day = 1;
};

std::int64_t dayOf(const CivilDate& date);
CivilDate civilDate(std::int64_t day);
int daysInMonth(std::int64_t year, int month);
/// 0 is Sunday.
int weekdayOf(std::int64_t day);

/// "January", 1 upward; "Sunday", 0 upward.
std::string_view monthName(int month);
std::string_view weekdayName(int weekday);

/// What stands in the file or in a constant of the file's form; std::nullopt for anything else.
std::optional<DateTime> readStored(std::string_view text);
/// The file's form for a type, see Values.h.
std::string storedText(const DateTime& value, const Type& type);

/// What a user's or a program's text means, with months before days unless `style` says otherwise;
/// blank is 1900-01-01. Fault 241 for no date at all, 242 for one that is out of range (for datetime
/// and smalldatetime; the newer types have 241 for both). `from` stands in the message.
DateTime readDateTime(std::string_view text, const Type& from, const Type& to, int style);
/// CONVERT's style; fault 281 for one that there is not.
std::string styledText(const DateTime& value, const Type& type, int style);

/// Rounded to what the type can hold: 1/300 s for datetime, a minute for smalldatetime. Fault 242
/// when the type does not reach so far.
DateTime roundedTo(DateTime value, const Type& from, const Type& to);

/// Days since 1900-01-01 with the time as fraction, as datetime converts to and from numbers.
double daysSince1900(const DateTime& value);
DateTime fromDaysSince1900(double days);

/// Moves ticks beyond a day into the day.
DateTime normalized(DateTime value);

} // namespace velcro::sql::tsql

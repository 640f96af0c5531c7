// Dates as the suite keeps them: text yyyy/mm/dd, which sorts and compares like the days do.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace velcro::demo {

using Day = std::chrono::sys_days;

Day today();
std::string dateText(Day day);
/// Nothing unless the text is a real day in the form yyyy/mm/dd.
std::optional<Day> parseDate(std::string_view text);
std::string timeText(int hour, int minute, int second);

} // namespace velcro::demo

#include "Dates.h"

#include <array>
#include <cstdio>
#include <ctime>

namespace velcro::demo {

using namespace std::chrono;

Day today() {
    const std::time_t now = std::time(nullptr);
    const std::tm* local = std::localtime(&now);
    return year(local->tm_year + 1900) / month(static_cast<unsigned>(local->tm_mon + 1)) /
           day(static_cast<unsigned>(local->tm_mday));
}

std::string dateText(Day when) {
    const year_month_day date(when);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%04d/%02u/%02u", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    return text.data();
}

std::optional<Day> parseDate(std::string_view text) {
    const std::string copy(text);
    int years = 0;
    unsigned months = 0;
    unsigned days = 0;
    if (copy.size() != 10 ||
        std::sscanf(copy.c_str(), "%4d/%2u/%2u", &years, &months, &days) != 3) {
        return std::nullopt;
    }
    const year_month_day date = year(years) / month(months) / day(days);
    if (!date.ok() || dateText(date) != copy) {
        return std::nullopt;
    }
    return date;
}

std::string timeText(int hour, int minute, int second) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%02d:%02d:%02d", hour, minute, second);
    return text.data();
}

} // namespace velcro::demo

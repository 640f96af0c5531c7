#include "Template.h"

#include <charconv>
#include <stdexcept>

namespace velcro::demo {

namespace {

constexpr std::string_view todayName = "TODAY";

std::string valueOf(std::string_view name, const SeatValues& values) {
    if (name.starts_with(todayName)) {
        const auto offset = name.substr(todayName.size());
        int days = 0;
        const auto end = offset.data() + offset.size();
        if (offset.empty() || std::from_chars(offset.data(), end, days).ptr == end) {
            return dateText(values.today + std::chrono::days(days));
        }
    }
    const auto found = values.named.find(std::string(name));
    if (found == values.named.end()) {
        throw std::runtime_error("no value is known for $(" + std::string(name) + ")");
    }
    return found->second;
}

std::string doubledQuotes(const std::string& text) {
    std::string result;
    for (const char c : text) {
        result.append(c == '\'' ? 2 : 1, c);
    }
    return result;
}

} // namespace

std::string filledIn(std::string_view text, const SeatValues& values, FileKind kind) {
    std::string result;
    for (std::size_t at = 0;;) {
        const auto begin = text.find("$(", at);
        result += text.substr(at, begin - at);
        if (begin == std::string_view::npos) {
            return result;
        }
        const auto end = text.find(')', begin);
        if (end == std::string_view::npos) {
            throw std::runtime_error("a $( without its bracket");
        }
        const auto value = valueOf(text.substr(begin + 2, end - begin - 2), values);
        result += kind == FileKind::Script ? doubledQuotes(value) : value;
        at = end + 1;
    }
}

} // namespace velcro::demo

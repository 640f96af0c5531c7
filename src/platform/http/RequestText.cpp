#include "platform/http/RequestText.h"

#include <algorithm>

namespace velcro::http {

namespace {

bool fitsRequestLine(char c) {
    return c > ' ' && c < '\x7F' && c != '#';
}

bool beginsWithoutCase(std::string_view text, std::string_view lower) {
    return text.size() >= lower.size() &&
           std::equal(lower.begin(), lower.end(), text.begin(),
                      [](char a, char b) { return a == (b >= 'A' && b <= 'Z' ? b + 32 : b); });
}

bool sameName(std::string_view one, std::string_view lower) {
    return one.size() == lower.size() && beginsWithoutCase(one, lower);
}

} // namespace

std::string addressOnTheWire(std::string_view address) {
    if (!beginsWithoutCase(address, "http://") && !beginsWithoutCase(address, "https://")) {
        throw HttpError(HttpError::Kind::Network,
                        "This is no http address: " + std::string(address.substr(0, 100)));
    }
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    for (const char c : address) {
        if (fitsRequestLine(c)) {
            text += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            text += {'%', digits[byte >> 4], digits[byte & 0xF]};
        }
    }
    return text;
}

std::vector<std::string> headerLines(const std::vector<Header>& headers) {
    std::vector<std::string> lines;
    for (const char* unasked : {"accept", "content-type", "expect"}) {
        const bool given = std::ranges::any_of(
            headers, [&](const Header& header) { return sameName(header.name, unasked); });
        if (!given) {
            lines.push_back(std::string(unasked) + ':');
        }
    }
    for (const auto& [name, value] : headers) {
        const std::string line = name + ": " + value;
        if (line.find_first_of(std::string_view("\r\n\0", 3)) != std::string::npos) {
            throw HttpError(HttpError::Kind::Other, "A header must not hold a line break.");
        }
        lines.push_back(line);
    }
    return lines;
}

std::string reasonOf(std::string_view statusLine) {
    const auto number = statusLine.find(' ');
    const auto reason =
        number == std::string_view::npos ? number : statusLine.find(' ', number + 1);
    if (reason == std::string_view::npos) {
        return {};
    }
    const auto text = statusLine.substr(reason + 1);
    return std::string(text.substr(0, text.find_last_not_of("\r\n ") + 1));
}

} // namespace velcro::http

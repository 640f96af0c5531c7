// Reading and writing UTF-8 one code point at a time, where broken bytes survive the round trip.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velcro::sql::tsql {

/// A byte that is no UTF-8 reads as this plus the byte, and is written back as that byte.
inline constexpr char32_t brokenByte = 0x110000;

/// The code point at `at`, which moves behind it. `at` must be inside.
inline char32_t nextCodePoint(std::string_view text, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(text[at++]);
    if (lead < 0x80) {
        return lead;
    }
    const int more = lead >= 0xF0 && lead < 0xF8 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead >= 0xF5 || text.size() - at < static_cast<std::size_t>(more)) {
        return brokenByte + lead;
    }
    char32_t c = lead & (0x3F >> more);
    for (int i = 0; i < more; ++i) {
        const auto next = static_cast<unsigned char>(text[at + i]);
        if ((next & 0xC0) != 0x80) {
            return brokenByte + lead;
        }
        c = (c << 6) | (next & 0x3F);
    }
    at += more;
    return c;
}

inline void appendCodePoint(std::string& text, char32_t c) {
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c >= brokenByte) {
        text += static_cast<char>(c - brokenByte);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0 | (c >> 6));
        text += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        text += static_cast<char>(0xE0 | (c >> 12));
        text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        text += static_cast<char>(0xF0 | (c >> 18));
        text += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (c & 0x3F));
    }
}

/// How many of the server's character positions it takes: two beyond the basic plane.
inline std::size_t unitsOf(char32_t c) {
    return c >= 0x10000 && c < brokenByte ? 2 : 1;
}

inline bool isAscii(std::string_view text) {
    for (const char c : text) {
        if (static_cast<unsigned char>(c) >= 0x80) {
            return false;
        }
    }
    return true;
}

/// The part of a text from character position `from` (0 upward, in UTF-16 units), `count` long.
std::string_view sliceText(std::string_view text, std::size_t from, std::size_t count);

} // namespace velcro::sql::tsql

#include "platform/sqlserver/Utf16.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace velcro::sql {

namespace {

constexpr char32_t replacement = 0xFFFD;

bool isSurrogate(char32_t c) {
    return c >= 0xD800 && c <= 0xDFFF;
}

/// The code point at the beginning of text and how many bytes it takes.
std::pair<char32_t, std::size_t> decode(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length == 1) {
        return {lead, 1};
    }
    if (length == 0 || length > text.size()) {
        return {replacement, 1};
    }
    char32_t point = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0) != 0x80) {
            return {replacement, 1};
        }
        point = point << 6 | (next & 0x3F);
    }
    static constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (point < smallest[length] || point > 0x10FFFF || isSurrogate(point)) {
        return {replacement, 1};
    }
    return {point, length};
}

void encode(char32_t point, std::string& out) {
    const auto tail = [point](int shift) {
        return static_cast<char>(0x80 | (point >> shift & 0x3F));
    };
    if (point < 0x80) {
        out += static_cast<char>(point);
    } else if (point < 0x800) {
        out += {static_cast<char>(0xC0 | point >> 6), tail(0)};
    } else if (point < 0x10000) {
        out += {static_cast<char>(0xE0 | point >> 12), tail(6), tail(0)};
    } else {
        out += {static_cast<char>(0xF0 | point >> 18), tail(12), tail(6), tail(0)};
    }
}

} // namespace

std::u16string toUtf16(std::string_view utf8) {
    std::u16string out;
    out.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto [point, length] = decode(utf8);
        utf8.remove_prefix(length);
        if (point < 0x10000) {
            out += static_cast<char16_t>(point);
        } else {
            out += static_cast<char16_t>(0xD7C0 + (point >> 10));
            out += static_cast<char16_t>(0xDC00 | (point & 0x3FF));
        }
    }
    return out;
}

std::size_t firstInvalidUtf8(std::string_view utf8) {
    std::size_t at = 0;
    while (at < utf8.size()) {
        const auto [point, length] = decode(utf8.substr(at));
        if (point == replacement && length == 1) {
            break;
        }
        at += length;
    }
    return at;
}

void appendUtf8(std::u16string_view utf16, std::string& out) {
    const auto plain =
        std::find_if(utf16.begin(), utf16.end(), [](char16_t c) { return c >= 0x80; }) -
        utf16.begin();
    const auto start = out.size();
    out.resize(start + static_cast<std::size_t>(plain));
    std::transform(utf16.begin(), utf16.begin() + plain, out.begin() + static_cast<long>(start),
                   [](char16_t c) { return static_cast<char>(c); });
    for (auto i = static_cast<std::size_t>(plain); i < utf16.size(); ++i) {
        char32_t point = utf16[i];
        if (isSurrogate(point)) {
            const bool paired = point < 0xDC00 && i + 1 < utf16.size() && utf16[i + 1] >= 0xDC00 &&
                                utf16[i + 1] <= 0xDFFF;
            point =
                paired ? 0x10000 + ((point - 0xD800) << 10) + (utf16[++i] - 0xDC00U) : replacement;
        }
        encode(point, out);
    }
}

std::string toUtf8(std::u16string_view utf16) {
    std::string out;
    appendUtf8(utf16, out);
    return out;
}

} // namespace velcro::sql

#include "Picture.h"

#include <array>
#include <cstdint>

namespace velcro::demo {

namespace {

constexpr int width = 64;
constexpr int height = 48;

struct Colour
{
    std::uint8_t red, green, blue;
};

constexpr std::array<Colour, 5> bodies = {
    {{40, 60, 90}, {150, 40, 40}, {60, 110, 70}, {90, 90, 95}, {190, 140, 50}}};

Colour colourAt(int x, int y, int number) {
    const int left = 12 + number % 3 * 3;
    const int top = 10 + number % 2 * 4;
    const bool body = x >= left && x < width - left && y >= top && y < 38;
    if (body && y < top + 8 && x % 4 != 0) {
        return {225, 235, 240};
    }
    if (body) {
        return bodies[static_cast<std::size_t>(number) % bodies.size()];
    }
    if (y >= 36) {
        return {120, 90, 60};
    }
    const auto wall = static_cast<std::uint8_t>(200 - y);
    return {wall, wall, wall};
}

void append(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    }
}

} // namespace

std::string articlePicture(int number) {
    constexpr std::uint32_t headSize = 54;
    constexpr std::uint32_t pixels = width * height * 3;
    std::string bytes = "BM";
    for (const auto value :
         {headSize + pixels, 0U, headSize, 40U, std::uint32_t(width), std::uint32_t(height)}) {
        append(bytes, value, 4);
    }
    append(bytes, 1, 2);
    append(bytes, 24, 2);
    for (const auto value : {0U, pixels, 2835U, 2835U, 0U, 0U}) {
        append(bytes, value, 4);
    }
    for (int y = height - 1; y >= 0; --y) {
        for (int x = 0; x < width; ++x) {
            const auto colour = colourAt(x, y, number);
            for (const auto part : {colour.blue, colour.green, colour.red}) {
                append(bytes, part, 1);
            }
        }
    }
    return bytes;
}

} // namespace velcro::demo

#include "platform/seat/AnsiText.h"

#include <array>

namespace velcro::seat {

namespace {

// What code page 1252 has at 0x80 to 0x9f, where Latin-1 has control characters; the five places it
// leaves free stay what they are.
constexpr std::array<char16_t, 32> between = {
    0x20ac, 0x0081, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008d, 0x017d, 0x008f, 0x0090, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0x009d, 0x017e, 0x0178,
};

} // namespace

QString fromAnsi(const QByteArray& bytes) {
    QString text = QString::fromLatin1(bytes);
    for (QChar& letter : text) {
        if (letter.unicode() >= 0x80 && letter.unicode() < 0xa0) {
            letter = QChar(between[letter.unicode() - 0x80u]);
        }
    }
    return text;
}

} // namespace velcro::seat

#include "platform/fingerprint/TemplateText.h"

#include <algorithm>

namespace velcro::fingerprint {

namespace {

constexpr char zero = '0';
constexpr int bitsOfCharacter = 6;
constexpr int bitsOfByte = 8;
const QByteArray mark = "FP3"; // text of another maker does not begin so

/// Bits regrouped from one width to the other; what is left at the end is filled up with zeros, or
/// dropped.
QByteArray regroup(const QByteArray& from, int width, int newWidth, bool fill) {
    QByteArray to;
    unsigned bits = 0;
    int count = 0;
    for (const char value : from) {
        bits = (bits << width) | static_cast<unsigned char>(value);
        for (count += width; count >= newWidth;) {
            count -= newWidth;
            to.append(static_cast<char>((bits >> count) & ((1U << newWidth) - 1)));
        }
    }
    if (fill && count > 0) {
        to.append(static_cast<char>((bits << (newWidth - count)) & ((1U << newWidth) - 1)));
    }
    return to;
}

} // namespace

QByteArray toTemplateText(const QByteArray& bytes) {
    constexpr int smallest = 9;
    QByteArray text = regroup(qCompress(bytes, smallest), bitsOfByte, bitsOfCharacter, true);
    for (char& character : text) {
        character = static_cast<char>(character + zero);
    }
    text.prepend(mark);
    return text.size() > longestTemplateText ? QByteArray() : text;
}

bool isTemplateText(const QByteArray& text) {
    return text.startsWith(mark) && text.size() <= longestTemplateText &&
           std::ranges::all_of(text.mid(mark.size()), [](char character) {
               return character >= zero && character < zero + (1 << bitsOfCharacter);
           });
}

std::optional<QByteArray> fromTemplateText(const QByteArray& text) {
    if (!isTemplateText(text)) {
        return std::nullopt;
    }
    QByteArray values = text.mid(mark.size());
    for (char& value : values) {
        value = static_cast<char>(value - zero);
    }
    const QByteArray packed = regroup(values, bitsOfCharacter, bitsOfByte, false);
    // The length that stands in front is not to be believed: it would be reserved at once.
    constexpr int lengthBytes = 4;
    constexpr unsigned longest = 1 << 16;
    unsigned length = 0;
    for (const char byte : packed.left(lengthBytes)) {
        length = (length << bitsOfByte) | static_cast<unsigned char>(byte);
    }
    if (packed.size() <= lengthBytes || length > longest) {
        return std::nullopt;
    }
    const QByteArray bytes = qUncompress(packed);
    return bytes.isEmpty() ? std::nullopt : std::optional(bytes);
}

} // namespace velcro::fingerprint

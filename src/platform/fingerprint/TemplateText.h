// Templates as the tables of the suite hold them: text in which a character's code less that of "0"
// is the byte.
#pragma once

#include <QByteArray>

#include <optional>

namespace velcro::fingerprint {

constexpr int longestTemplateText = 2513; // characters

/// Packs the bytes of a template, six bits a character; blank when even packed they are too long.
QByteArray toTemplateText(const QByteArray& bytes);
/// Whether the characters are those of our own making; says nothing of what they stand for.
bool isTemplateText(const QByteArray& text);
/// The bytes again; nothing for text of another making.
std::optional<QByteArray> fromTemplateText(const QByteArray& text);

} // namespace velcro::fingerprint

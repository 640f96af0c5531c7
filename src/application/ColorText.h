// Colours as the branch table holds them: a name or a number.
#pragma once

#include <QColor>
#include <QString>

/// "Teal", "clTeal", "#rrggbb", or a number, decimal or "$" and hexadecimal, with blue in its
/// highest byte. Throws ConversionError for anything else, blank included.
QColor sfg_StringToColor(const QString& text);

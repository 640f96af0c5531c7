// Colours as the branch table holds them: a name or a number.
#pragma once

#include <QColor>
#include <QString>

/// "Teal", "clTeal", "clBtnFace" and the other colours of the seat, "#rrggbb", or a number, decimal
/// (negative too) or hexadecimal behind "$" or "0x": blue, green, red from its third byte down, or FF
/// in its highest byte and the index of a colour of the seat in its lowest. Throws ConversionError for
/// anything else, blank included.
QColor sfg_StringToColor(const QString& text);

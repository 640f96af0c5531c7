// How far a colour stands out from its ground, as WCAG 2 counts it.
#pragma once

#include <QColor>

namespace velcro::ui {

/// What text wants from its ground, and what greyed text wants.
inline constexpr double readable = 4.5;
inline constexpr double readableGreyed = 3;

/// 1 for the same colour to 21 for black on white.
double contrast(const QColor& one, const QColor& other);

/// Black or white, whichever is read better on that ground; white as soon as it can be read.
QColor inkOn(const QColor& ground);

} // namespace velcro::ui

// The keyboards on screen that a touch seat has.
#pragma once

#include <QString>

namespace velcro::seat {

/// Full path of the keyboard made for touch, and of the plain one; blank when the seat has none.
QString touchKeyboard();
QString onScreenKeyboard();
/// Whether the seat has one of them.
bool hasKeyboard();
/// Whether this keyboard is there already, and starting it would bring a second one.
bool isKeyboardRunning(const QString& path);

} // namespace velcro::seat

// The keyboards on screen that a touch seat has.
#pragma once

#include <QString>
#include <QStringList>

namespace velcro::seat {

/// Full path of the keyboard made for touch, and of the plain one; blank when the seat has none.
QString touchKeyboard();
QString onScreenKeyboard();
/// Whether the seat has one of them.
bool hasKeyboard();
/// What the keyboard is started with: a layout with digits, a place at the foot of the screen.
QStringList keyboardArguments(const QString& path);
/// Brings up this keyboard where it runs already, so that starting it would bring a second one or
/// nothing; false when it is to be started.
bool showRunningKeyboard(const QString& path);

} // namespace velcro::seat

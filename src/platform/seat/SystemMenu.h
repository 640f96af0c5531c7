// The menu behind the icon of a window's title bar, on seats that have one.
#pragma once

#include <QString>
#include <QtGui/qwindowdefs.h>

class QByteArray;

namespace velcro::seat {

/// Appends a separator and an item to the window's system menu; false where windows have none, and
/// the screen must offer the command itself.
bool appendToSystemMenu(WId window, int command, const QString& text);

/// The command that a native event carries when the user picked it from the system menu; 0 for any
/// other event.
int systemMenuCommand(const QByteArray& eventType, const void* message);

} // namespace velcro::seat

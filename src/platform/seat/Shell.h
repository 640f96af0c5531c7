// Opens a file, folder or address with the program that the desktop has for it.
#pragma once

#include <QString>

#include <functional>

namespace velcro::seat {

/// False when the desktop has no program for it.
bool openWithDesktop(const QString& target);

/// Puts another way of opening in, for tests; an empty one puts the desktop's back.
void setDesktopOpener(const std::function<bool(const QString& target)>& opener);

} // namespace velcro::seat

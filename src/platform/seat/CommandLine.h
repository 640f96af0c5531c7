// The program's own command line, as other programs of the seat can see it, and the window it may have come with.
#pragma once

#include <QString>

namespace velcro::seat {

/// Overwrites every argument of that text with "*", where the system lets a program change what it
/// shows of itself. Whoever needs the arguments has copied them before. A blank text changes nothing.
void hideArgument(int argc, char** argv, const QString& text);

/// Closes the window of text that Windows opens for a command that was started from a menu; one that
/// somebody typed the command in stays.
void leaveOwnConsole();

} // namespace velcro::seat

// The program's own command line, as other programs of the seat can see it.
#pragma once

#include <QString>

namespace velcro::seat {

/// Overwrites every argument of that text with "*", where the system lets a program change what it
/// shows of itself. Whoever needs the arguments has copied them before. A blank text changes nothing.
void hideArgument(int argc, char** argv, const QString& text);

} // namespace velcro::seat

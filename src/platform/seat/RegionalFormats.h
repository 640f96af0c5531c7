// Dates, times and numbers look the same on every seat, whatever its language.
#pragma once

#include <QString>

namespace velcro::seat {

/// Asks the system to use yyyy/MM/dd, HH:mm:ss, "." and " " for all programs of its default locale,
/// as all programs of the suite rely on it. Done on Windows alone: elsewhere a program has no
/// business with the user's locale. A refusal is ignored.
void forceSystemFormats();

/// The program's own formats: nothing in it follows the system's locale.
void forceProgramFormats();

/// A number with "." before its decimals and a blank between thousands.
QString groupedNumber(double value, int decimals);

} // namespace velcro::seat

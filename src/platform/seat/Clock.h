// The seat's own clock, replaceable so that a test can stand at a known moment.
#pragma once

#include <QDateTime>

namespace velcro::seat {

/// Local time of the seat, or what setClock() put in its place.
QDateTime now();

/// Stops the clock at a moment; an invalid one lets it run again.
void setClock(const QDateTime& moment);

} // namespace velcro::seat

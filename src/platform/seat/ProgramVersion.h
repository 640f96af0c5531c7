// The version that a program file bears.
#pragma once

#include <QString>

namespace velcro::seat {

/// Major, minor, release and build of the running program's version block, "14.47.41.0"; blank where
/// program files have none, as everywhere but on Windows.
QString programFileVersion();

} // namespace velcro::seat

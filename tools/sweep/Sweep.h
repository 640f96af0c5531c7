// One sweep of a till database outside the program, with its statements written down.
#pragma once

#include "CommandLine.h"

#include <QTextStream>

namespace velcro::sweep {

/// Sweeps, or prints, as asked. Throws what the sweep throws, and SqlError without a connection.
void perform(const CommandLine& line, QTextStream& out);

} // namespace velcro::sweep

// All scripts of the sample databases, and the seat's configuration file beside them.
#pragma once

#include "Template.h"

#include <filesystem>

namespace velcro::demo {

/// Fills the hand-written files in (demo/data) and makes up the rest into a folder, which is made.
/// Throws std::runtime_error or filesystem_error.
void writeScripts(const std::filesystem::path& handWritten, const std::filesystem::path& to,
                  const SeatValues& values);

} // namespace velcro::demo

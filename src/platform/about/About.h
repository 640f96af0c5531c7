// What every program of the seat tells of itself on its command line.
#pragma once

#include <ostream>

namespace velcro::about {

/// Answers a command line of one argument, --version or --notices, on out; false for any other. Takes
/// what main() is given: the answer to --version begins with the program's name.
bool answer(int argc, const char* const* argv, std::ostream& out);

} // namespace velcro::about

// Puts the seat's values into hand-written files: $(SERVER), $(TODAY), $(TODAY-60) and so on.
#pragma once

#include "Dates.h"

#include <map>
#include <string>
#include <string_view>

namespace velcro::demo {

struct SeatValues
{
    Day today;
    std::map<std::string, std::string> named; // SERVER, USER, PASSWORD
};

/// In a script every value stands inside a quoted literal, so its quotes are doubled; a plain file
/// takes values as they are.
enum class FileKind { Script, Plain };

/// Throws std::runtime_error for a name that is not known or not closed.
std::string filledIn(std::string_view text, const SeatValues& values, FileKind kind);

} // namespace velcro::demo

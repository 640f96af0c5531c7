// What velsql was asked to do.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace velcro::velsql {

/// One source of T-SQL, in the order of the command line.
struct Source
{
    enum class Kind { File, Text, StandardInput };
    Kind kind = Kind::StandardInput;
    std::string value; // path or text
};

struct CommandLine
{
    std::string server = {};
    std::string database = {};
    std::string user = {};
    std::string password = {};
    std::vector<Source> sources = {};
    bool stopAtError = false;
    bool help = false;
};

extern const char* const usage;

/// The command line without the program's name; environmentPassword stands in for a missing -P.
/// Nothing, and the reason in problem, where it is wrong.
std::optional<CommandLine> parseCommandLine(std::span<const char* const> arguments,
                                            const char* environmentPassword, std::string& problem);

} // namespace velcro::velsql

// Lines for the system's shell: the one of POSIX, or that of Windows.
#pragma once

#include <cstdlib>
#include <string>

#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace velcro::test {

#ifdef _WIN32

constexpr const char* nowhere = "NUL";

inline std::string quoted(const std::string& word) {
    std::string text = "\"";
    for (const char letter : word) {
        text += letter == '"' ? "\\\"" : std::string(1, letter);
    }
    return text + '"';
}
inline std::string programWord(std::string path) {
    for (char& letter : path) {
        letter = letter == '/' ? '\\' : letter;
    }
    return quoted(path);
}
/// What follows sees the variable.
inline std::string withVariable(const std::string& name, const std::string& value) {
    return "set " + quoted(name + "=" + value) + "&& ";
}
inline int runLine(const std::string& line) {
    return std::system(("\"" + line + "\"").c_str());
}

#else

constexpr const char* nowhere = "/dev/null";

inline std::string quoted(const std::string& word) {
    std::string text = "'";
    for (const char letter : word) {
        text += letter == '\'' ? "'\\''" : std::string(1, letter);
    }
    return text + "'";
}
inline std::string programWord(const std::string& path) {
    return quoted(path);
}
/// What follows sees the variable.
inline std::string withVariable(const std::string& name, const std::string& value) {
    return name + "=" + quoted(value) + " ";
}
/// Exit status.
inline int runLine(const std::string& line) {
    return WEXITSTATUS(std::system(line.c_str()));
}

#endif

} // namespace velcro::test

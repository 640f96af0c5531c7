// velsql: sends T-SQL to a server or to the stand-in on this machine, and prints what comes back.
#include "CommandLine.h"
#include "Session.h"

#include "platform/about/About.h"

#include <cstdlib>
#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    using namespace velcro::velsql;
    if (velcro::about::answer(argc, argv, std::cout)) {
        return 0;
    }
    std::ios::sync_with_stdio(false);
    std::string problem;
    const std::span<const char* const> arguments(argv + 1, static_cast<std::size_t>(argc - 1));
    const auto line = parseCommandLine(arguments, std::getenv("VELSQL_PASSWORD"), problem);
    if (!line) {
        std::cerr << "velsql: " << problem << "\n\n" << usage;
        return 2;
    }
    if (line->help) {
        std::cout << usage;
        return 0;
    }
    try {
        return runSession(*line, std::cin, std::cout, std::cerr);
    } catch (const std::exception& error) {
        std::cerr << "velsql: " << error.what() << '\n';
        return 1;
    }
}

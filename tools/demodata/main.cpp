// velcro-demo: writes the scripts of the sample databases for one seat.
//   velcro-demo <folder with the hand-written files> <output folder> <server> [<yyyy/mm/dd>]
// <server> is what the seat connects to, such as embedded:/srv/velcro/databases; the date stands for
// today. User and password for the server come from VELCRO_SQL_USER and VELCRO_SQL_PASSWORD, since
// everybody can read the arguments of a process.
#include "Scripts.h"

#include <cstdlib>
#include <iostream>
#include <span>
#include <stdexcept>

using namespace velcro::demo;

namespace {

std::string environmentOr(const char* name, const char* fallback) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : fallback;
}

void run(std::span<char*> arguments) {
    if (arguments.size() != 4 && arguments.size() != 5) {
        throw std::runtime_error(
            "usage: velcro-demo <hand-written files> <output folder> <server> [yyyy/mm/dd]");
    }
    const auto when = arguments.size() == 5 ? parseDate(arguments[4]) : today();
    if (!when) {
        throw std::runtime_error(std::string("not a date of the form yyyy/mm/dd: ") + arguments[4]);
    }
    const SeatValues values{*when,
                            {{"SERVER", arguments[3]},
                             {"USER", environmentOr("VELCRO_SQL_USER", "velcro")},
                             {"PASSWORD", environmentOr("VELCRO_SQL_PASSWORD", "")}}};
    writeScripts(arguments[1], arguments[2], values);
}

} // namespace

int main(int count, char** arguments) {
    try {
        run({arguments, static_cast<std::size_t>(count)});
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "velcro-demo: " << error.what() << '\n';
        return 1;
    }
}

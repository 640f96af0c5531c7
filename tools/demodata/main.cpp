// velcro-demo: writes the scripts of the sample databases for one seat.
#include "Scripts.h"

#include "platform/about/About.h"

#include <cstdlib>
#include <iostream>
#include <span>
#include <stdexcept>

using namespace velcro::demo;

namespace {

const char* const usage =
    "usage: velcro-demo <hand-written files> <output folder> <server> [yyyy/mm/dd]\n"
    "\n"
    "Writes the scripts of the sample databases, and the machine configuration file of a seat on "
    "them.\n"
    "  <hand-written files>  the folder of those that are filled in\n"
    "  <server>              what the seat connects to, such as shopserver,1433\n"
    "  yyyy/mm/dd            the day that the data stands around; today without it\n"
    "VELCRO_SQL_USER and VELCRO_SQL_PASSWORD are written as the seat's user and password, since\n"
    "everybody can read the arguments of a program.\n"
    "  --version, --notices  the version; the libraries it stands on and their licences\n"
    "Exit status: 0 all is written, 1 it is not, or wrong usage.\n";

std::string environmentOr(const char* name, const char* fallback) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : fallback;
}

void run(std::span<char*> arguments) {
    if (arguments.size() != 4 && arguments.size() != 5) {
        throw std::runtime_error(std::string("wrong usage\n\n") + usage);
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
    if (velcro::about::answer(count, arguments, std::cout)) {
        return 0;
    }
    if (count == 2 && std::string_view(arguments[1]) == "--help") {
        std::cout << usage;
        return 0;
    }
    try {
        run({arguments, static_cast<std::size_t>(count)});
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "velcro-demo: " << error.what() << '\n';
        return 1;
    }
}

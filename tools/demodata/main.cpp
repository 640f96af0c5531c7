// velcro-demo: writes the scripts of the sample databases for one seat.
//   velcro-demo <folder with the hand-written files> <output folder> <server> [<yyyy/mm/dd>]
// <server> is what the seat connects to, such as embedded:/srv/velcro/databases; the date stands for
// today. User and password for the server come from VELCRO_SQL_USER and VELCRO_SQL_PASSWORD, since
// everybody can read the arguments of a process.
#include "Sample.h"
#include "Template.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <span>
#include <stdexcept>

namespace fs = std::filesystem;
using namespace velcro::demo;

namespace {

std::string readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        throw std::runtime_error("cannot read " + path.string());
    }
    return {std::istreambuf_iterator<char>(in), {}};
}

void writeFile(const fs::path& path, const std::function<void(std::ostream&)>& write) {
    std::ofstream out(path, std::ios::binary);
    write(out);
    out.close();
    if (!out) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

void fillInFolder(const fs::path& from, const fs::path& to, const SeatValues& values) {
    for (const auto& entry : fs::directory_iterator(from)) {
        const bool script = entry.path().extension() == ".sql";
        const auto target = to / (script ? entry.path().filename() : entry.path().stem());
        writeFile(target, [&](std::ostream& out) {
            out << filledIn(readFile(entry.path()), values,
                            script ? FileKind::Script : FileKind::Plain);
        });
    }
}

void generate(const fs::path& to, Day today) {
    Sample sample(today);
    const auto file = [&](const char* name, auto step) {
        writeFile(to / name, [&](std::ostream& out) { step(sample, out); });
    };
    file("suite-60-calendar.sql", writeCalendar);
    file("suite-65-workshop.sql", [](Sample&, std::ostream& out) { writeWorkshopCodes(out); });
    file("suite-70-debtors.sql", writeDebtors);
    file("suite-80-stock.sql", writeStock);
    file("suite-90-orders.sql", writeOrders);
}

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
    fs::create_directories(arguments[2]);
    fillInFolder(arguments[1], arguments[2], values);
    generate(arguments[2], *when);
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

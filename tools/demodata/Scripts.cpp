#include "Scripts.h"

#include "Sample.h"
#include "Template.h"

#include <fstream>
#include <functional>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

namespace velcro::demo {

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

} // namespace

void writeScripts(const fs::path& handWritten, const fs::path& to, const SeatValues& values) {
    fs::create_directories(to);
    fillInFolder(handWritten, to, values);
    generate(to, values.today);
}

} // namespace velcro::demo

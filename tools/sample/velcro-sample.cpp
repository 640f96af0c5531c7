// velcro-sample: makes a seat with sample databases for the user who calls it, and opens the program
// on it.
#include "Seat.h"

#include "platform/about/About.h"
#include "platform/seat/CommandLine.h"
#include "platform/seat/Folders.h"
#include "platform/seat/Programs.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

const char* const usage =
    "usage: velcro-sample [--fresh] [--no-start] [--seat <folder>] [--today yyyy/mm/dd]\n"
    "                     [--data <folder>] [--structure <folder>]\n"
    "\n"
    "Makes a seat with sample databases for you alone and opens velCRO on it. Sign in as COUNTER1\n"
    "with the password COUNTER. A seat that is there is opened as you left it.\n"
    "  --fresh      makes the databases anew; what was entered in them is lost\n"
    "  --no-start   only makes the seat\n"
    "  --seat       where it lies; velCRO-sample among your own data without it\n"
    "  --today      the day that the sample data stands around; today without it\n"
    "  --data       where the sample data is, when it is not the installed one\n"
    "  --structure  where the scripts of the databases' structure are, likewise\n"
    "  --version, --notices  the version; the libraries it stands on and their licences\n"
    "Exit status: that of velCRO; 1 when the seat could not be made, 2 wrong usage.\n";

constexpr int wrongUsage = 2;

/// What is installed lies beside the programs, or in the folder of shared data two above them.
QString installedFolder(const QString& name) {
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const char* place : {"", "../../share/velcro/"}) {
        const QString folder = programs.filePath(QLatin1String(place) + name);
        if (QFileInfo(folder).isDir()) {
            return folder;
        }
    }
    return {};
}

QString problemOf(const QCommandLineParser& line, velcro::sample::Request& request) {
    const auto folder = [&](const QString& option, const QString& otherwise) {
        const QString given = line.isSet(option) ? line.value(option) : otherwise;
        return given.isEmpty() ? QString() : QDir::cleanPath(QDir(given).absolutePath());
    };
    const auto today = line.isSet(u"today"_s)
                           ? velcro::demo::parseDate(line.value(u"today"_s).toStdString())
                           : velcro::demo::today();
    if (!line.positionalArguments().isEmpty()) {
        return "unknown argument: " + line.positionalArguments().constFirst();
    }
    if (!today) {
        return "not a date of the form yyyy/mm/dd: " + line.value(u"today"_s);
    }
    request = {.seat = folder(u"seat"_s, QStandardPaths::writableLocation(
                                             QStandardPaths::GenericDataLocation) +
                                             "/velCRO-sample"),
               .data = folder(u"data"_s, installedFolder(u"sample"_s)),
               .structure = folder(u"structure"_s, installedFolder(u"sqlserver"_s)),
               .today = *today,
               .fresh = line.isSet(u"fresh"_s)};
    return request.data.isEmpty() || request.structure.isEmpty()
               ? u"no sample data lies here: say --data and --structure"_s
               : QString();
}

/// The program finds the seat's configuration where it looks for the user's own.
int openProgram(const QString& seat) {
    velcro::seat::makePrivateFolder(seat + "/data");
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, seat + "/config");
    environment.insert(u"XDG_DATA_HOME"_s, seat + "/data");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    const QString program = velcro::seat::findProgram(u"velCRO"_s);
    process.start(program, {});
    if (!process.waitForStarted(-1)) {
        throw std::runtime_error("velCRO cannot be started: " +
                                 process.errorString().toStdString());
    }
    process.waitForFinished(-1);
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : 1;
}

} // namespace

int main(int argc, char** argv) {
    if (velcro::about::answer(argc, argv, std::cout)) {
        return 0;
    }
    const QCoreApplication application(argc, argv);
    QCommandLineParser line;
    for (const QString& name : {u"seat"_s, u"today"_s, u"data"_s, u"structure"_s}) {
        line.addOption({name, {}, u"value"_s});
    }
    line.addOptions({{u"fresh"_s, {}}, {u"no-start"_s, {}}, {{u"h"_s, u"help"_s}, {}}});
    const bool parsed = line.parse(QCoreApplication::arguments());
    if (parsed && line.isSet(u"help"_s)) {
        std::cout << usage;
        return 0;
    }
    velcro::sample::Request request;
    const QString problem = parsed ? problemOf(line, request) : line.errorText();
    if (!problem.isEmpty()) {
        std::cerr << "velcro-sample: " << problem.toStdString() << "\n\n" << usage;
        return wrongUsage;
    }
    try {
        velcro::sample::makeSeat(request, std::cout);
        if (line.isSet(u"no-start"_s)) {
            return 0;
        }
        std::cout << "velcro-sample: sign in as COUNTER1 with the password COUNTER" << std::endl;
        velcro::seat::leaveOwnConsole();
        return openProgram(request.seat);
    } catch (const std::exception& error) {
        std::cerr << "velcro-sample: " << error.what() << '\n';
        return 1;
    }
}

// velCRO: customer repair orders of the Velmara retail suite.
#include "application/Program.h"
#include "application/StartUp.h"
#include "application/Unattended.h"
#include "platform/about/About.h"
#include "platform/seat/CommandLine.h"
#include "ui/Theme.h"

#include <QApplication>

#include <cstring>
#include <iostream>

namespace {

const char* const usage =
    "usage: velCRO [user password database company branch any]\n"
    "       velCRO %category user password database company branch\n"
    "       velCRO --help | --version | --notices\n"
    "\n"
    "Opens the repair orders of this seat. With six arguments it signs in without the log-in "
    "screen;\n"
    "the database is its RecID in vcSettings. Fewer arguments are ignored.\n"
    "  --version  prints the version\n"
    "  --notices  prints which libraries the program stands on, and their licences\n"
    "velcro-sample opens it on sample data.\n"
    "Exit status: 1 when it could not start or nobody signed in, else 0.\n";

/// Without a display.
bool answeredInWords(int argc, char** argv) {
    const bool isHelp = argc == 2 && std::strcmp(argv[1], "--help") == 0;
    if (isHelp) {
        std::cout << usage;
    }
    return isHelp || velcro::about::answer(argc, argv, std::cout);
}

} // namespace

int main(int argc, char** argv) {
    if (answeredInWords(argc, argv)) {
        return 0;
    }
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    const QStringList arguments = QApplication::arguments().mid(1);
    velcro::seat::hideArgument(argc, argv, readCommandLine(arguments).password);
    Program program(arguments);
    if (isUnattended()) {
        turnFormsDown();
    }
    return program.run();
}

// velcro-sweep: brings a till database to this version's schema, or shows what that would send.
#include "CommandLine.h"
#include "Sweep.h"

#include "platform/about/About.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    if (velcro::about::answer(argc, argv, std::cout)) {
        return 0;
    }
    using namespace velcro::sweep;
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout), problems(stderr);
    QString problem;
    const auto line = parseCommandLine(QCoreApplication::arguments(),
                                       qEnvironmentVariable("VELSQL_PASSWORD"), problem);
    if (!line) {
        (problem.isEmpty() ? out : problems << "velcro-sweep: " << problem << "\n\n") << usage;
        return problem.isEmpty() ? 0 : 2;
    }
    try {
        perform(*line, out);
        return 0;
    } catch (const std::exception& error) {
        out.flush();
        problems << "velcro-sweep: " << error.what() << '\n';
        return 1;
    }
}

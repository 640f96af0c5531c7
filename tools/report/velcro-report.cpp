// velcro-report: prints what a function answers to a report template.
#include "Answering.h"

#include "platform/about/About.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    if (velcro::about::answer(argc, argv, std::cout)) {
        return 0;
    }
    using namespace velcro::report;
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout), problems(stderr);
    QString problem;
    const auto options = readOptions(QCoreApplication::arguments(),
                                     qEnvironmentVariable("VELCRO_PASSWORD"), problem);
    if (!options) {
        (problem.isEmpty() ? out : problems << "velcro-report: " << problem << "\n\n") << usage;
        return problem.isEmpty() ? 0 : 2;
    }
    try {
        perform(*options, out);
        return 0;
    } catch (const std::exception& error) {
        problems << "velcro-report: " << error.what() << '\n';
        return 1;
    }
}

#include "platform/seat/Programs.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <utility>

namespace velcro::seat {

namespace {

QString findOnSeat(const QString& name) {
    const QString beside =
        QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
    return beside.isEmpty() ? QStandardPaths::findExecutable(name) : beside;
}

ProgramFinder finderInUse = findOnSeat;
ProgramStarter starterInUse = system::startProgram;

} // namespace

QString findProgram(const QString& name) {
    return finderInUse(name);
}

bool startProgram(const QString& path, const QStringList& arguments) {
    return starterInUse(path, arguments);
}

void setProgramFinder(ProgramFinder finder) {
    finderInUse = finder ? std::move(finder) : findOnSeat;
}

void setProgramStarter(ProgramStarter starter) {
    starterInUse = starter ? std::move(starter) : system::startProgram;
}

} // namespace velcro::seat

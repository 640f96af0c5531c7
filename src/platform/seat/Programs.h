// Other programs of the seat: finding them and starting them.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace velcro::seat {

/// Full path of a program by its name without extension: beside this program first, then along the
/// search path; blank when there is none.
QString findProgram(const QString& name);

/// Starts a program that goes on by itself, in a normal window; false when it cannot be started.
bool startProgram(const QString& path, const QStringList& arguments);

/// What the two ask of the system; a test puts its own in, and an empty one puts the seat's back.
using ProgramFinder = std::function<QString(const QString& name)>;
using ProgramStarter = std::function<bool(const QString& path, const QStringList& arguments)>;
void setProgramFinder(ProgramFinder finder);
void setProgramStarter(ProgramStarter starter);

namespace system {
bool startProgram(const QString& path, const QStringList& arguments);
}

} // namespace velcro::seat

// What velcro-sweep was asked to do.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace velcro::sweep {

struct CommandLine
{
    bool run = false; // else print
    QString server;   // blank prints what an empty till would get
    QString database;
    QString user;
    QString password;
};

extern const char* const usage;

/// The command line with the program's name; environmentPassword stands in for a missing -P.
/// Nothing, and the reason in problem, where it is wrong. A call for help has no reason.
std::optional<CommandLine> parseCommandLine(const QStringList& arguments,
                                            const QString& environmentPassword, QString& problem);

} // namespace velcro::sweep

// What velcro-report was asked.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace velcro::report {

struct Options
{
    QString user; // blank signs nobody in
    QString password;
    QString database; // display name; blank is the first that the log-in offers
    QString function; // blank lists all
    QStringList arguments;
};

extern const char* const usage;

/// The command line with the program's name; environmentPassword stands in for a missing -P. Nothing,
/// and the reason in problem, where it is wrong. A call for help has no reason.
std::optional<Options> readOptions(const QStringList& line, const QString& environmentPassword,
                                   QString& problem);

} // namespace velcro::report

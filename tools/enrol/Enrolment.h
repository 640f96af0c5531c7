// Takes a finger on the seat's reader, several times over, and makes its template.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTextStream>

namespace velcro::enrol {

/// Tells on `progress` when to lay the finger on. The template's text, for the tables of the suite.
/// Throws std::runtime_error without a reader, and for a template that is too long for them.
QByteArray takeFinger(const QString& user, QTextStream& progress);

} // namespace velcro::enrol

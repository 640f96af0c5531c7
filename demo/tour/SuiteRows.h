// What the databases hold after a step of the tour, as another seat would see it.
#pragma once

#include <QMap>
#include <QString>

/// The first row of the answer, by column; empty without a row. Read over a connection of its own,
/// so that only what was committed is seen. Throws SqlError.
QMap<QString, QString> suiteRow(const QString& select);
/// Its first column as a number, such as a count.
int suiteNumber(const QString& select);

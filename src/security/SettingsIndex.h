// What parameters and access rights share while they load: a key of code and number, and a read
// whose fault is kept in gErrorMsg instead of being shown.
#pragma once

#include "data/Errors.h"
#include "data/Session.h"

#include <QString>

#include <exception>

inline QString settingKey(const QString& xCode, int xNumber) {
    return xCode + QLatin1Char('_') + QString::number(xNumber);
}

/// Runs a read. A fault goes into gErrorMsg through xFormat, whose %1 is the unit and %2 the
/// fault's text, and gives false.
template <typename Read>
bool readQuietly(const QString& xFormat, const QString& xUnit, Read&& xRead) {
    try {
        xRead();
        return true;
    } catch (const std::exception& e) {
        gErrorMsg = xFormat.arg(xUnit, errorText(e));
        return false;
    }
}

// The key of parameters and access rights while they load.
#pragma once

#include <QString>

inline QString settingKey(const QString& xCode, int xNumber) {
    return xCode + QLatin1Char('_') + QString::number(xNumber);
}

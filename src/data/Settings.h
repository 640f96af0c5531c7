// What the loaded settings answer from memory: a parameter's value, the option of a right.
#pragma once

#include <QString>

/// Value of a parameter by group (in any case) and number; blank when it is not loaded.
QString sfvel_GetParam(const QString& xParamCode, int xParamNo);

/// Option letter of a right by module (in its exact case) and number; blank when it is not loaded.
QString sfvel_GetAccess(const QString& xModCode, int xAccessNo);

// What the loaded settings and rights answer: a parameter's value, an access option, whether the
// user may do a thing, and the reference of what governs a screen.
#pragma once

#include <QString>

/// Value of a parameter by group (in any case) and number; blank when it is not loaded.
QString sfvel_GetParam(const QString& xParamCode, int xParamNo);

/// Option letter of a right by module (in its exact case) and number; blank when it is not loaded.
QString sfvel_GetAccess(const QString& xModCode, int xAccessNo);

/// Whether the user may do it: "Y" he may; "S", "F", "G" when one supervisor authorises it; "D",
/// "W", "V" when two do; otherwise not, which is shown when xDisplay is "Y".
bool sfvel_CheckUserAccess(const QString& xModule, int xAccessNo, const QString& xDisplay);

/// Asks one supervisor to authorise the action.
bool sfvel_SupervisorCheck(const QString& xModCode, int xAccessNo);
/// Asks two supervisors; their codes are left in gSParam[1] and gSParam[2].
bool sfvel_DoubleSuperCheck(const QString& xModCode, int xAccessNo);

/// Shows which rights, parameters and shortcuts govern the screen of that unit.
void sfvel_TechHelp(const QString& xFormCode);

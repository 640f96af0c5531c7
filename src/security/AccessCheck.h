// Whether the user may do a thing, by his own rights or because a supervisor authorises it.
#pragma once

#include <QString>

/// Whether the user may do it: "Y" he may; "S", "F", "G" when one supervisor authorises it; "D",
/// "W", "V" when two do; otherwise not, which is shown when xDisplay is "Y".
bool sfvel_CheckUserAccess(const QString& xModule, int xAccessNo, const QString& xDisplay);

/// Asks one supervisor to authorise the action.
bool sfvel_SupervisorCheck(const QString& xModCode, int xAccessNo);
/// Asks two supervisors; their codes are left in gSParam[1] and gSParam[2].
bool sfvel_DoubleSuperCheck(const QString& xModCode, int xAccessNo);

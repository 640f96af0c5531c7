// Loads the rights of the signed-in user and the report levels open to him into memory at log-in.
#pragma once

#include <QHash>
#include <QString>

struct TAccessRule;

/// Rights by "module_number" while they are being loaded; the values belong to gAccessRules.
using AccessIndex = QHash<QString, TAccessRule*>;

/// Fills gAccessRules and gRepAccessRules from vcSysAccess, SYSGrpAccess, SYSUserAccess,
/// SysRepAccessLevel, SYSGrpRepAccess and SYSUserRepAccess. False with the reason in gErrorMsg;
/// what was loaded by then stays.
bool acc_LoadAccess(const QString& xCO, const QString& xBranch, const QString& xUserCode);

bool acc_Load_AccessControl();
bool acc_LoadAllAccess_Overrides(AccessIndex& dict, const QString& xCO, const QString& xBranch,
                                 const QString& xUserGroup, const QString& xUserCode);
void acc_UpdateOrAddAccessInDict(AccessIndex& dict, const QString& xModCode, int xAccessNo,
                                 const QString& xValue);
bool acc_Load_RepAccess(const QString& xCO, const QString& xBranch, const QString& xUserCode);

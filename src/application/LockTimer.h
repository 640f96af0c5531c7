// How long a seat may stand idle, by program and by group of users.
#pragma once

#include <QString>

/// Minutes for the signed-in user's group, 0 for no lock, from SYSLockAppTimers and
/// SYSGrpLockAppTimers. ".exe" at the end of the name does not count. A failed read is shown as
/// "SFVEL-12" or "SFVEL-13" and thrown on.
int sfvel_Get_LockAppTimer(const QString& xPgmName);

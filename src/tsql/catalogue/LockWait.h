// The wait for another process's lock on a database file: how long, and what is done meanwhile.
#pragma once

#include <chrono>
#include <functional>

struct sqlite3;

namespace velcro::sql::tsql {

/// Called every few milliseconds of a wait, in the thread that waits, with the time it has waited so
/// far; false gives the lock up. Empty: the wait blocks. For all connections of the process.
using OnLockWait = std::function<bool(std::chrono::milliseconds waited)>;
void setOnLockWait(OnLockWait onWait);

/// How long statements on this connection wait for a lock before they fail with 1222.
void limitLockWait(sqlite3* database, int milliseconds);

/// Whether a statement waits at the moment: what is called meanwhile must not start another.
bool isWaitingForLock();

} // namespace velcro::sql::tsql

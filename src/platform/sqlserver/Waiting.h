// What a program does while it waits for a database: paints, tells its user, lets him give up.
#pragma once

#include <chrono>
#include <functional>

namespace velcro::sql {

enum class WaitFor {
    Server, // the answer to a statement or to a connect
    Lock,   // another process that writes to the same database files
};

struct WaitHook
{
    /// Called every few milliseconds from the thread that waits, with the time it has waited so far.
    /// false gives up: a server's connection then counts as lost, a lock as not to be had.
    std::function<bool(WaitFor what, std::chrono::milliseconds waited)> goOn;
    /// Called once when the wait is over, however it ended.
    std::function<void()> over;
};

/// For every connection of the process; without a goOn a wait blocks.
void setWaitHook(WaitHook hook);
const WaitHook& waitHook();

/// Tells the hook, at the end of a call to the embedded end, that the waits in it are over.
class EndOfLockWait
{
public:
    EndOfLockWait() = default;
    ~EndOfLockWait();
    EndOfLockWait(const EndOfLockWait&) = delete;
    EndOfLockWait& operator=(const EndOfLockWait&) = delete;
};

} // namespace velcro::sql

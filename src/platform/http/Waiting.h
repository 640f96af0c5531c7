// What a program does while it waits for an answer over HTTP: paints, tells its user, lets him give
// up.
#pragma once

#include <chrono>
#include <functional>

namespace velcro::http {

struct WaitHook
{
    /// Called every few milliseconds, with the time the request has waited so far. false gives up.
    std::function<bool(std::chrono::milliseconds waited)> goOn;
    /// Called once when the wait is over, however it ended.
    std::function<void()> over;
};

/// For every client of the process; without a goOn a wait blocks.
void setWaitHook(WaitHook hook);
const WaitHook& waitHook();

} // namespace velcro::http

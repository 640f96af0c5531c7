#include "platform/sqlserver/Waiting.h"

#include "tsql/catalogue/LockWait.h"

#include <utility>

namespace velcro::sql {

namespace {

WaitHook theHook;
thread_local bool lockWaitWasTold = false;

} // namespace

void setWaitHook(WaitHook hook) {
    theHook = std::move(hook);
    if (!theHook.goOn) {
        tsql::setOnLockWait({});
        return;
    }
    tsql::setOnLockWait([](std::chrono::milliseconds waited) {
        lockWaitWasTold = true;
        return theHook.goOn(WaitFor::Lock, waited);
    });
}

const WaitHook& waitHook() {
    return theHook;
}

EndOfLockWait::~EndOfLockWait() {
    if (std::exchange(lockWaitWasTold, false) && theHook.over) {
        theHook.over();
    }
}

} // namespace velcro::sql

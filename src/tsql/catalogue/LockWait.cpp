#include "tsql/catalogue/LockWait.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstdint>
#include <thread>
#include <utility>

namespace velcro::sql::tsql {

namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

// Most locks are gone before anybody could see that there was a wait.
constexpr milliseconds quiet{40};
constexpr milliseconds longestPause{20};

OnLockWait onLockWait;
thread_local bool isWaiting = false;
thread_local Clock::time_point began; // a thread waits for one lock at a time

bool callOnWait(milliseconds waited) {
    isWaiting = true;
    const bool goesOn = onLockWait(waited);
    isWaiting = false;
    return goesOn;
}

/// SQLite asks here, for the calls-th time in this wait, whether to try again.
int tryAgain(void* limit, int calls) {
    if (calls == 0) {
        began = Clock::now();
    }
    const auto waited = std::chrono::duration_cast<milliseconds>(Clock::now() - began);
    if (waited.count() >= static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(limit))) {
        return 0;
    }
    if (onLockWait && waited >= quiet && !isWaiting && !callOnWait(waited)) {
        return 0;
    }
    std::this_thread::sleep_for(std::min(longestPause, milliseconds(1 + calls)));
    return 1;
}

} // namespace

void setOnLockWait(OnLockWait onWait) {
    onLockWait = std::move(onWait);
}

void limitLockWait(sqlite3* database, int milliseconds) {
    const auto limit = static_cast<std::intptr_t>(std::max(milliseconds, 0));
    sqlite3_busy_handler(database, tryAgain, reinterpret_cast<void*>(limit));
}

bool isWaitingForLock() {
    return isWaiting;
}

} // namespace velcro::sql::tsql

#include "platform/http/Waiting.h"

#include <utility>

namespace velcro::http {

namespace {

WaitHook theHook;

} // namespace

void setWaitHook(WaitHook hook) {
    theHook = std::move(hook);
}

const WaitHook& waitHook() {
    return theHook;
}

} // namespace velcro::http

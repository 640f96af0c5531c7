// Lets the screens paint while messages are sent. The room knows no screen: the shell fills the hook,
// without it nothing happens.
#pragma once

#include <functional>

inline std::function<void()> gLetScreensPaint;

inline void letScreensPaint() {
    if (gLetScreensPaint) {
        gLetScreensPaint();
    }
}

#include "platform/seat/OnScreenKeyboard.h"

#include "platform/seat/Programs.h"

#include <initializer_list>

namespace velcro::seat {

namespace {

QString firstOf(std::initializer_list<const char*> names) {
    for (const char* name : names) {
        const QString path = findProgram(QLatin1String(name));
        if (!path.isEmpty()) {
            return path;
        }
    }
    return {};
}

} // namespace

// The first ones slide in under the window that is written in; the second ones are windows.
QString touchKeyboard() {
    return firstOf({"maliit-keyboard", "squeekboard", "wvkbd-mobintl"});
}

QString onScreenKeyboard() {
    return firstOf({"onboard", "florence", "matchbox-keyboard", "xvkbd"});
}

} // namespace velcro::seat

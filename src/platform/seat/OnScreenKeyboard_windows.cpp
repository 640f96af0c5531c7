#include "platform/seat/OnScreenKeyboard.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace velcro::seat {

namespace {

QString firstThere(const QStringList& paths) {
    for (const QString& path : paths) {
        if (QFileInfo::exists(path)) {
            return path;
        }
    }
    return {};
}

} // namespace

QString touchKeyboard() {
    const QString ink = QStringLiteral("/Common Files/Microsoft Shared/Ink/TabTip.exe");
    return firstThere(
        {QStringLiteral("C:/Program Files") + ink, QStringLiteral("C:/Program Files (x86)") + ink});
}

QString onScreenKeyboard() {
    const QString root = QDir::fromNativeSeparators(qEnvironmentVariable("SystemRoot"));
    return firstThere(
        {root + QStringLiteral("/SysNative/osk.exe"), root + QStringLiteral("/System32/osk.exe")});
}

bool hasKeyboard() {
    return !touchKeyboard().isEmpty() || !onScreenKeyboard().isEmpty();
}

// Started again, the system's own keyboards show the one that runs.
bool isKeyboardRunning(const QString& /*path*/) {
    return false;
}

} // namespace velcro::seat

#include "platform/seat/OnScreenKeyboard.h"

#include "platform/seat/Programs.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
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
    return firstOf({"onboard", "florence", "xvkbd", "matchbox-keyboard"});
}

bool hasKeyboard() {
    return !touchKeyboard().isEmpty() || !onScreenKeyboard().isEmpty();
}

QStringList keyboardArguments(const QString& path) {
    const auto name = QFileInfo(path).fileName();
    if (name == QLatin1String("xvkbd")) {
        const auto* screen = QGuiApplication::primaryScreen();
        const QSize pixels = screen->size() * screen->devicePixelRatio();
        // Its guesses at words would lie over its digits.
        return {QStringLiteral("-no-functionkey"),
                QStringLiteral("-always-on-top"),
                QStringLiteral("-xrm"),
                QStringLiteral("xvkbd*integrateCompletionPanel: false"),
                QStringLiteral("-geometry"),
                QStringLiteral("%1x%2+0-0").arg(pixels.width()).arg(pixels.height() * 2 / 5)};
    }
    if (name == QLatin1String("matchbox-keyboard")) {
        return {QStringLiteral("lq1")}; // its other layouts have no digits
    }
    return {};
}

// One that runs is on the screen. It is known by the first two words of each process: some are scripts
// that an interpreter runs.
bool showRunningKeyboard(const QString& path) {
    const auto name = QFileInfo(path).fileName();
    const auto processes = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    return std::any_of(processes.begin(), processes.end(), [&name](const QString& process) {
        QFile line(QStringLiteral("/proc/%1/cmdline").arg(process));
        if (!line.open(QIODevice::ReadOnly)) {
            return false;
        }
        const auto words = line.readAll().split('\0').mid(0, 2);
        return std::any_of(words.begin(), words.end(), [&name](const QByteArray& word) {
            return QFileInfo(QFile::decodeName(word)).fileName() == name;
        });
    });
}

} // namespace velcro::seat

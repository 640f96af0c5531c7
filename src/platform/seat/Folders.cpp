#include "platform/seat/Folders.h"

#include <QDir>
#include <QFileInfo>

namespace velcro::seat {

namespace {
QStringList otherRoots;
}

QStringList programFilesRoots() {
    return otherRoots.isEmpty() ? system::programFilesRoots() : otherRoots;
}

void setProgramFilesRoots(const QStringList& roots) {
    otherRoots = roots;
}

QString workingFolder(const QString& programFile) {
    const QFileInfo program(programFile);
    QString folder = program.absolutePath();
    if (isInstalled(programFile) || !system::canWriteIn(folder)) {
        folder = system::userData() + QLatin1Char('/') + program.completeBaseName();
        makePrivateFolder(folder);
    }
    return QDir::cleanPath(folder) + QLatin1Char('/');
}

bool isInstalled(const QString& programFile) {
    return QFileInfo::exists(QFileInfo(programFile).absolutePath() + QLatin1String("/installed"));
}

bool makePrivateFolder(const QString& path) {
    return system::makePrivateFolder(path);
}

QString nativePath(const QString& path) {
    QString native = path;
#ifdef Q_OS_WIN
    native.replace(QLatin1Char('/'), QLatin1Char('\\'));
#else
    native.replace(QLatin1Char('\\'), QLatin1Char('/'));
#endif
    return native;
}

} // namespace velcro::seat

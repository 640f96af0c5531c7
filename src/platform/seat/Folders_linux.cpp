#include "platform/seat/Folders.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace velcro::seat::system {

QStringList programFilesRoots() {
    return {QStringLiteral("/opt/velmara"),
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                QLatin1String("/velmara")};
}

QString userData() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

bool canWriteIn(const QString& folder) {
    return QFileInfo(folder).isWritable();
}

bool makePrivateFolder(const QString& path) {
    const QFile::Permissions owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QDir().mkpath(QFileInfo(path).path());
    return QDir().mkdir(path, owner) ||
           (QFileInfo(path).isDir() && QFile::setPermissions(path, owner));
}

} // namespace velcro::seat::system

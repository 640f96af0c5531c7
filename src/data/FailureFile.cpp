#include "data/FailureFile.h"

#include "platform/seat/Folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

void writeFailureFile(const QString& name, const QString& text) {
    const QString path = velcro::seat::nativePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) ||
        file.write(bytes) != bytes.size()) {
        qWarning("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
}

#include "platform/seat/Folders.h"

#include <QDir>

namespace velcro::seat::system {

QStringList programFilesRoots() {
    return {QStringLiteral("C:\\Program Files"), QStringLiteral("C:\\Program Files (x86)")};
}

// Folders below the user's profile inherit that nobody else may look into them.
bool makePrivateFolder(const QString& path) {
    return QDir().mkpath(path);
}

} // namespace velcro::seat::system

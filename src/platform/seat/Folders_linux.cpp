#include "platform/seat/Folders.h"

#include <QStandardPaths>

namespace velcro::seat::system {

QStringList programFilesRoots() {
    return {QStringLiteral("/opt/velmara"),
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                QLatin1String("/velmara")};
}

} // namespace velcro::seat::system

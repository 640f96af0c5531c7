#include "platform/seat/Folders.h"

namespace velcro::seat::system {

QStringList programFilesRoots() {
    return {QStringLiteral("C:\\Program Files"), QStringLiteral("C:\\Program Files (x86)")};
}

} // namespace velcro::seat::system

#include "platform/seat/Programs.h"

#include <QProcess>

namespace velcro::seat::system {

bool startProgram(const QString& path, const QStringList& arguments) {
    return QProcess::startDetached(path, arguments);
}

} // namespace velcro::seat::system

#include "platform/seat/SystemMenu.h"

#include <QByteArray>

namespace velcro::seat {

// The title bar belongs to the desktop's window manager, which takes no items.
bool appendToSystemMenu(WId /*window*/, int /*command*/, const QString& /*text*/) {
    return false;
}

int systemMenuCommand(const QByteArray& /*eventType*/, const void* /*message*/) {
    return 0;
}

} // namespace velcro::seat

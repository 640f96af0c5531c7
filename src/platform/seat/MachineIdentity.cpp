#include "platform/seat/MachineIdentity.h"

#include <QByteArray>

namespace velcro::seat {

QString adapterText(const QByteArray& address) {
    return address.size() == 6 ? QString::fromLatin1(address.toHex('-').toUpper()) : QString();
}

} // namespace velcro::seat

#include "platform/seat/AnsiText.h"

namespace velcro::seat {

QString fromAnsi(const QByteArray& bytes) {
    return QString::fromLocal8Bit(bytes);
}

} // namespace velcro::seat

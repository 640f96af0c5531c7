#include "platform/seat/Clock.h"

namespace velcro::seat {

namespace {
QDateTime stoppedAt;
}

QDateTime now() {
    return stoppedAt.isValid() ? stoppedAt : QDateTime::currentDateTime();
}

void setClock(const QDateTime& moment) {
    stoppedAt = moment;
}

} // namespace velcro::seat

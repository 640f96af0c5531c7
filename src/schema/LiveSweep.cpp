#include "schema/LiveSweep.h"

#include "schema/SysDBGen.h"

#include <QCoreApplication>

namespace velcro::schema {

namespace {

constexpr qint64 millisecondsBetweenPaints = 100;

void paint() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

LiveSweep::LiveSweep() {
    gSchemaWatch = {.afterLookUp = [this] { tick(); },
                    .afterSend = [this](const QString&, bool) { tick(); }};
    paint();
    sincePainted_.start();
}

LiveSweep::~LiveSweep() {
    gSchemaWatch = {};
}

void LiveSweep::tick() {
    if (sincePainted_.elapsed() >= millisecondsBetweenPaints) {
        paint();
        sincePainted_.restart();
    }
}

} // namespace velcro::schema

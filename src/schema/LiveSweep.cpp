#include "schema/LiveSweep.h"

#include "schema/SysDBGen.h"

#include <utility>

namespace velcro::schema {

namespace {

constexpr qint64 millisecondsBetweenPaints = 100;

} // namespace

LiveSweep::LiveSweep(std::function<void()> paint)
    : paint_(std::move(paint)) {
    gSchemaWatch = {.afterLookUp = [this] { tick(); },
                    .afterSend = [this](const QString&, bool) { tick(); }};
    paint_();
    sincePainted_.start();
}

LiveSweep::~LiveSweep() {
    gSchemaWatch = {};
}

void LiveSweep::tick() {
    if (sincePainted_.elapsed() >= millisecondsBetweenPaints) {
        paint_();
        sincePainted_.restart();
    }
}

} // namespace velcro::schema

#include "ui/Events.h"

#include "ui/InputGate.h"

#include <QCoreApplication>
#include <QTimer>

namespace velcro::ui {

namespace {

/// One round of the loop may leave what the window system has queued for the next one.
void processEvents() {
    QCoreApplication::processEvents();
    QWindowSystemInterface::sendWindowSystemEvents(QEventLoop::AllEvents);
}

} // namespace

void pumpEvents() {
    const InputHold hold;
    processEvents();
}

void pumpUntil(const std::function<bool()>& isSo, int milliseconds) {
    const InputHold hold;
    QTimer atLatest;
    atLatest.setSingleShot(true);
    atLatest.start(milliseconds);
    while (!isSo() && atLatest.isActive()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void pumpPaint() {
    const InputHold hold;
    auto& gate = InputGate::instance();
    gate.restTimers(true);
    processEvents();
    gate.restTimers(false);
}

bool inputWaits() {
    return InputGate::instance().isClosed();
}

bool inputIsQueued() {
    return InputGate::instance().hasInput();
}

void dropTaps() {
    InputGate::instance().dropTaps();
}

InputHold::InputHold() {
    InputGate::instance().hold();
}

InputHold::~InputHold() {
    InputGate::instance().release();
}

StopWatch::StopWatch(QAbstractButton& button)
    : before_(InputGate::instance().watchStop(&button)) {}

StopWatch::~StopWatch() {
    InputGate::instance().watchStop(before_);
}

ModalInput::ModalInput(QDialog& form)
    : heldBelow_(InputGate::instance().enter(form)) {}

ModalInput::~ModalInput() {
    InputGate::instance().leave(heldBelow_);
}

} // namespace velcro::ui

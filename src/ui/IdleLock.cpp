#include "ui/IdleLock.h"

#include "ui/Handler.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <utility>

namespace velcro::ui {

namespace {

qint64 sinceStart() {
    static const QElapsedTimer started = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
    return started.elapsed();
}

bool isUse(QEvent::Type type) {
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride: // all that is seen of a key that is a shortcut
    case QEvent::InputMethod:      // keyboards on screen write without keys
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TabletPress:
        return true;
    default:
        return false;
    }
}

} // namespace

IdleLock::IdleLock(QObject* parent)
    : QObject(parent)
    , clock_(sinceStart) {
    timer_.setInterval(1000);
    connectHandler(&timer_, &QTimer::timeout, this, [this] { check(); });
    QCoreApplication::instance()->installEventFilter(this);
}

void IdleLock::setClock(Clock clock) {
    clock_ = std::move(clock);
    lastUse_ = clock_();
}

void IdleLock::setEnabled(bool enabled) {
    locked_ = false;
    lastUse_ = clock_();
    if (enabled) {
        timer_.start();
    } else {
        timer_.stop();
    }
}

void IdleLock::UnLock() {
    locked_ = false;
    lastUse_ = clock_();
}

void IdleLock::check() {
    if (!enabled() || locked_ || clock_() - lastUse_ < qint64(IdleSeconds) * 1000) {
        return;
    }
    locked_ = true;
    emit idle();
}

bool IdleLock::eventFilter(QObject* watched, QEvent* event) {
    if (isUse(event->type())) {
        lastUse_ = clock_();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace velcro::ui

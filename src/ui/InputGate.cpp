#include "ui/InputGate.h"

#include <private/qguiapplication_p.h>
#include <private/qwindow_p.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QInputMethodEvent>
#include <QTimer>
#include <QWindow>

#include <utility>

namespace velcro::ui {

namespace {

using System = QWindowSystemInterfacePrivate;

template <typename Kind>
std::unique_ptr<InputGate::Event> copyOf(const InputGate::Event& event) {
    return std::make_unique<Kind>(static_cast<const Kind&>(event));
}

/// Nothing for what is no input, or none that anybody would miss.
std::unique_ptr<InputGate::Event> copyOfInput(const InputGate::Event& event) {
    switch (event.type) {
    case System::Key:
        return copyOf<System::KeyEvent>(event);
    case System::Mouse:
        return static_cast<const System::MouseEvent&>(event).buttonType == QEvent::MouseMove
                   ? nullptr
                   : copyOf<System::MouseEvent>(event);
    case System::Wheel:
        return copyOf<System::WheelEvent>(event);
    case System::Touch:
        return copyOf<System::TouchEvent>(event);
    case System::Tablet:
        return copyOf<System::TabletEvent>(event);
    case System::ContextMenu:
        return copyOf<System::ContextMenuEvent>(event);
    case System::Close:
        return copyOf<System::CloseEvent>(event);
    default:
        return nullptr;
    }
}

// Nobody has seen a new screen, and aimed at it, in fewer milliseconds; the second click of a double
// click comes within them.
constexpr int untilSeen = 300;

bool isTap(const InputGate::Event& event) {
    switch (event.type) {
    case System::Mouse:
        return static_cast<const System::MouseEvent&>(event).buttonType != QEvent::MouseMove;
    case System::Touch:
    case System::Tablet:
        return true;
    default:
        return false;
    }
}

bool beginsTap(const InputGate::Event& event) {
    switch (event.type) {
    case System::Mouse:
        return static_cast<const System::MouseEvent&>(event).buttonType == QEvent::MouseButtonPress;
    case System::Touch:
        return static_cast<const System::TouchEvent&>(event).touchType == QEvent::TouchBegin;
    default:
        return false;
    }
}

/// The program closes a window itself and wants to know at once whether it closed.
bool isOwnClose(const InputGate::Event& event) {
    if (event.type != System::Close) {
        return false;
    }
    auto* window = static_cast<const System::CloseEvent&>(event).window.data();
    return window != nullptr && qt_window_private(window)->inClose;
}

bool takesKeys(QWindow* window) {
    return window != nullptr && window->isVisible() &&
           !QGuiApplicationPrivate::instance()->isWindowBlocked(window);
}

QWindow* windowForKeys() {
    auto* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal->windowHandle() : QGuiApplication::focusWindow();
}

/// Sends a key on to the screen that has come up, or come back, since it was pressed. One that says
/// it repeats too: a scanner's "77" comes so fast that Qt takes the second for a key held down.
void sendOn(System::KeyEvent& key) {
    if (!key.nullWindow() && !takesKeys(key.window)) {
        key.window = windowForKeys();
    }
}

bool isTimer(const QObject& object) {
    return qobject_cast<const QTimer*>(&object) != nullptr || object.inherits("QSingleShotTimer");
}

} // namespace

InputGate& InputGate::instance() {
    static QPointer<InputGate> gate;
    if (gate.isNull()) {
        gate = new InputGate;
    }
    return *gate;
}

InputGate::InputGate() {
    setParent(QCoreApplication::instance());
    System::installWindowSystemEventHandler(this);
    QCoreApplication::instance()->installEventFilter(this);
}

InputGate::~InputGate() {
    System::removeWindowSystemEventhandler(this);
}

bool InputGate::isClosed() const {
    // A form that is closing still stands between its opener and the next key.
    return held_ > 0 || (!forms_.empty() && forms_.back() && !forms_.back()->isVisible());
}

bool InputGate::hasInput() const {
    return !kept_.empty() || System::windowSystemEventsQueued() > 0;
}

void InputGate::release() {
    --held_;
    letThrough();
}

int InputGate::enter(QDialog& form) {
    forms_.emplace_back(&form);
    return std::exchange(held_, 0);
}

void InputGate::leave(int heldBelow) {
    forms_.pop_back();
    held_ = heldBelow;
    letThrough();
}

void InputGate::dropTaps() {
    std::erase_if(kept_, [](const auto& event) { return isTap(*event); });
    sinceChange_.start();
}

bool InputGate::isAimedElsewhere(const Event& event) {
    if (!isTap(event)) {
        return false;
    }
    if (beginsTap(event)) {
        dropsTap_ = !isClosed() && sinceChange_.isValid() && sinceChange_.elapsed() < untilSeen;
    }
    return dropsTap_;
}

// Before what has come since: the window system's queue hands it out in its order.
void InputGate::letThrough() {
    if (isClosed() || kept_.empty()) {
        return;
    }
    for (; !kept_.empty(); kept_.pop_back()) {
        System::windowSystemEventQueue.prepend(kept_.back().release());
    }
    QCoreApplication::eventDispatcher()->wakeUp();
}

bool InputGate::sendEvent(Event* event) {
    if (isAimedElsewhere(*event)) {
        return true;
    }
    if (isClosed() && !isOwnClose(*event)) {
        if (auto copy = copyOfInput(*event)) {
            if (!isStop(*event)) {
                kept_.push_back(std::move(copy));
            } else {
                stop_->click();
            }
            return true;
        }
    }
    if (event->type == System::Key) {
        sendOn(static_cast<System::KeyEvent&>(*event));
    }
    return QWindowSystemEventHandler::sendEvent(event);
}

bool InputGate::isStop(const Event& event) const {
    if (stop_ == nullptr || !stop_->isVisible()) {
        return false;
    }
    if (event.type == System::Key) {
        const auto& key = static_cast<const System::KeyEvent&>(event);
        return key.key == Qt::Key_Escape && key.keyType == QEvent::KeyPress;
    }
    const auto isOn = [this](const QPointF& global) {
        return stop_->rect().contains(stop_->mapFromGlobal(global.toPoint()));
    };
    if (event.type == System::Mouse) {
        const auto& mouse = static_cast<const System::MouseEvent&>(event);
        return mouse.buttonType == QEvent::MouseButtonPress && isOn(mouse.globalPos);
    }
    if (event.type == System::Touch) {
        const auto& touch = static_cast<const System::TouchEvent&>(event);
        return touch.touchType == QEvent::TouchBegin && !touch.points.isEmpty() &&
               isOn(touch.points.first().globalPosition());
    }
    return false;
}

bool InputGate::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Timer) {
        return timersRest_ && isTimer(*watched);
    }
    if (event->type() != QEvent::InputMethod || !isClosed()) {
        return false;
    }
    const auto text = static_cast<QInputMethodEvent*>(event)->commitString();
    if (!text.isEmpty()) {
        const ulong now = ulong(System::eventTime.elapsed());
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            kept_.push_back(std::make_unique<System::KeyEvent>(
                QGuiApplication::focusWindow(), now, type, Qt::Key_unknown, Qt::NoModifier, text));
        }
    }
    return true;
}

} // namespace velcro::ui

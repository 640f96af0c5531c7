#include "support/TypedAhead.h"

#include <qpa/qwindowsysteminterface.h>

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace velcro::test {

using System = QWindowSystemInterface;
using Later = QWindowSystemInterface::AsynchronousDelivery;

void queueKey(Qt::Key key, const QString& text, QWidget* window) {
    auto* addressed = window != nullptr ? window->windowHandle() : QGuiApplication::focusWindow();
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        System::handleKeyEvent<Later>(addressed, type, key, Qt::NoModifier, text);
    }
}

void queueRepeat(Qt::Key key, const QString& text) {
    System::handleKeyEvent<Later>(QGuiApplication::focusWindow(), QEvent::KeyPress, key,
                                  Qt::NoModifier, text, true);
}

void queueText(const QString& text) {
    for (const QChar letter : text) {
        queueKey(letter == QLatin1Char('\r') ? Qt::Key_Return : Qt::Key(letter.toUpper().unicode()),
                 letter);
    }
}

void queueClick(QWidget& control) {
    auto* window = control.window()->windowHandle();
    const QPoint middle = control.mapTo(control.window(), control.rect().center());
    const QPoint global = control.mapToGlobal(control.rect().center());
    System::handleMouseEvent<Later>(window, middle, global, Qt::LeftButton, Qt::LeftButton,
                                    QEvent::MouseButtonPress);
    System::handleMouseEvent<Later>(window, middle, global, Qt::NoButton, Qt::LeftButton,
                                    QEvent::MouseButtonRelease);
}

void takeQueue() {
    QApplication::processEvents();
}

} // namespace velcro::test

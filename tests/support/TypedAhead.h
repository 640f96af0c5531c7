// Input as a window system queues it: addressed to the window that has the keyboard when it is
// pressed, and taken out later.
#pragma once

#include <QString>
#include <qnamespace.h>

class QWidget;

namespace velcro::test {

/// Presses and releases a key in the window that has the keyboard, or in the given one.
void queueKey(Qt::Key key, const QString& text = {}, QWidget* window = nullptr);
/// Presses a key once more because it is held down.
void queueRepeat(Qt::Key key, const QString& text);
/// Each letter as a key; \r is Enter.
void queueText(const QString& text);
/// Presses and releases the left button in the middle of the control.
void queueClick(QWidget& control);
/// Takes out of the queue what is in it.
void takeQueue();

} // namespace velcro::test

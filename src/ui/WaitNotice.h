// Tells that the program waits for something that may take long, over the screen that waits, with a
// button to stop waiting.
#pragma once

#include "ui/Events.h"

#include <QPointer>
#include <QString>

#include <optional>

class QFrame;

namespace velcro::ui {

class WaitNotice
{
public:
    /// From here on the wait is told, in milliseconds; before, a busy cursor says enough.
    static constexpr int patience = 500;

    ~WaitNotice() { over(); }

    /// Paints, and tells of the wait once it is long. Timers rest and user input waits, but for
    /// Escape and the button: false once the user does not want to wait any more.
    bool goOn(const QString& text, qint64 waitedMilliseconds);
    /// The wait is over.
    void over();

private:
    void show(const QString& text);

    QPointer<QFrame> notice_;       // goes with its window
    std::optional<InputHold> hold_; // from the first look to the end of the wait
    bool stopped_ = false;
};

} // namespace velcro::ui

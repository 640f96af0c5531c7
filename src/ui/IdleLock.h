// Notices that nobody has used the program for a while: no key, no mouse, no touch.
#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace velcro::ui {

class IdleLock : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds of a clock that never goes back.
    using Clock = std::function<qint64()>;

    explicit IdleLock(QObject* parent);
    /// Stands at a known moment, for tests.
    void setClock(Clock clock);

    int IdleMinutes = 0;
    int IdleSeconds = 0;

    bool enabled() const { return timer_.isActive(); }
    /// Enabling starts a new count of idle time.
    void setEnabled(bool enabled);
    /// The user is back: the watch, which rests while the program is locked, goes on.
    void UnLock();
    /// Looks at the clock now; happens by itself each second while enabled.
    void check();

signals:
    void idle();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Clock clock_;
    QTimer timer_;
    qint64 lastUse_ = 0;
    bool locked_ = false;
};

} // namespace velcro::ui

// Stands between the window system and the program's windows, and lets user input through or keeps
// it. Qt offers this place in its private headers only; nothing but this unit includes them.
#pragma once

#include <qpa/qwindowsysteminterface_p.h>

#include <QAbstractButton>
#include <QDialog>
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

#include <deque>
#include <memory>
#include <utility>
#include <vector>

namespace velcro::ui {

class InputGate final : public QObject, private QWindowSystemEventHandler
{
public:
    using Event = QWindowSystemInterfacePrivate::WindowSystemEvent;

    /// Made with the first use, lives as long as the application.
    static InputGate& instance();
    ~InputGate() override;

    bool isClosed() const;
    bool hasInput() const;
    void hold() { ++held_; }
    void release();
    /// The form's own loop begins with nothing held; gives what is held below it.
    int enter(QDialog& form);
    void leave(int heldBelow);

    /// Taps that wait, and those of the next moment, were aimed at a screen that is gone.
    void dropTaps();

    QAbstractButton* watchStop(QAbstractButton* button) { return std::exchange(stop_, button); }
    void restTimers(bool rest) { timersRest_ = rest; }

protected:
    /// Letters of an input method come past the window system's queue.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    InputGate();
    bool sendEvent(Event* event) override;
    bool isStop(const Event& event) const;
    bool isAimedElsewhere(const Event& event);
    void letThrough();

    int held_ = 0;
    bool timersRest_ = false;
    bool dropsTap_ = false;     // from its press to its release
    QElapsedTimer sinceChange_; // of the screen
    QAbstractButton* stop_ = nullptr;
    std::vector<QPointer<QDialog>> forms_; // that run a loop, the topmost last
    std::deque<std::unique_ptr<Event>> kept_;
};

} // namespace velcro::ui

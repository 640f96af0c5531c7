// The one place that pumps messages. What the user does meanwhile, keys, mouse, touch and letters of
// an input method, waits in its order for the screen that is meant to get it.
#pragma once

#include <functional>

class QAbstractButton;
class QDialog;
class QWidget;

namespace velcro::ui {

/// Paints, and runs what timers and sockets have ready. User input waits.
void pumpEvents();

/// Pumps until it is so, or so many milliseconds have gone. User input waits.
void pumpUntil(const std::function<bool()>& isSo, int milliseconds);

/// Pumps while a statement is under way: paints, but starts nothing that could need the connection.
/// Timers rest, user input waits.
void pumpPaint();

/// Whether user input waits at the moment, whatever the user does.
bool inputWaits();
/// Whether there is any that nobody has taken yet.
bool inputIsQueued();

/// A screen has come up or gone: taps and clicks that wait were aimed at the one before, and so is
/// what comes before anybody can have seen the new one, such as the second click of a double click.
/// Keys stay.
void dropTaps();

/// User input waits while one lives, and then goes on in its order.
class InputHold
{
public:
    InputHold();
    ~InputHold();
    InputHold(const InputHold&) = delete;
    InputHold& operator=(const InputHold&) = delete;
};

/// While one lives, Escape and a press on the button click it although input waits.
class StopWatch
{
public:
    explicit StopWatch(QAbstractButton& button);
    ~StopWatch();
    StopWatch(const StopWatch&) = delete;
    StopWatch& operator=(const StopWatch&) = delete;

private:
    QAbstractButton* before_;
};

/// While one lives, the form's own loop takes user input, whatever the loop below does with it; it
/// waits while the form is not on screen, on its way up and on its way down. Keys meant for a window
/// that is gone or lies below go to the form that has come up since.
class ModalInput
{
public:
    explicit ModalInput(QDialog& form);
    ~ModalInput();
    ModalInput(const ModalInput&) = delete;
    ModalInput& operator=(const ModalInput&) = delete;

private:
    int heldBelow_;
};

} // namespace velcro::ui

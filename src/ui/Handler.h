// How event handlers are connected: an exception that leaves one goes to the application's default
// error display, and the program goes on.
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace velcro::ui {

/// Where exceptions of handlers are shown; until one is set, a message box.
void setErrorDisplay(std::function<void(const QString& message)> display);

/// Shows the exception that is being handled; call it in a catch block.
void displayCurrentException();

/// Runs what an overridden event does.
template <typename Body>
void guarded(Body&& body) {
    try {
        std::forward<Body>(body)();
    } catch (...) {
        displayCurrentException();
    }
}

/// Marks a handler as running; it may delete the connection that it is called through.
class Entered
{
public:
    explicit Entered(std::shared_ptr<bool> running)
        : running_(std::move(running)) {
        *running_ = true;
    }
    ~Entered() { *running_ = false; }
    Entered(const Entered&) = delete;
    Entered& operator=(const Entered&) = delete;

private:
    std::shared_ptr<bool> running_;
};

/// Calls a handler: a member function of the receiver or a callable, that takes all arguments or
/// none.
template <typename Receiver, typename Handler, typename... Arguments>
void callHandler([[maybe_unused]] Receiver* receiver, Handler& handler, Arguments&&... arguments) {
    if constexpr (std::is_member_function_pointer_v<Handler>) {
        if constexpr (std::is_invocable_v<Handler, Receiver*, Arguments...>) {
            std::invoke(handler, receiver, std::forward<Arguments>(arguments)...);
        } else {
            std::invoke(handler, receiver);
        }
    } else if constexpr (std::is_invocable_v<Handler&, Arguments...>) {
        handler(std::forward<Arguments>(arguments)...);
    } else {
        handler();
    }
}

/// QObject::connect for handlers, as callHandler takes them. One that is running, and that runs a
/// modal form or pumps, is not entered a second time.
template <typename Sender, typename Signal, typename Receiver, typename Handler>
QMetaObject::Connection connectHandler(const Sender* sender, Signal signal, Receiver* receiver,
                                       Handler handler) {
    return QObject::connect(
        sender, signal, receiver,
        [receiver, handler, running = std::make_shared<bool>(false)](auto&&... arguments) mutable {
            if (*running) {
                return;
            }
            const Entered entered(running);
            guarded([&] { callHandler(receiver, handler, arguments...); });
        });
}

} // namespace velcro::ui

// How event handlers are connected: an exception that leaves one goes to the application's default
// error display, and the program goes on.
#pragma once

#include <QObject>
#include <QString>

#include <functional>
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

/// QObject::connect for handlers, as callHandler takes them.
template <typename Sender, typename Signal, typename Receiver, typename Handler>
QMetaObject::Connection connectHandler(const Sender* sender, Signal signal, Receiver* receiver,
                                       Handler handler) {
    return QObject::connect(sender, signal, receiver,
                            [receiver, handler](auto&&... arguments) mutable {
                                guarded([&] { callHandler(receiver, handler, arguments...); });
                            });
}

} // namespace velcro::ui

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

/// QObject::connect for handlers. The handler is a member function of the receiver or a callable,
/// and takes all arguments of the signal or none.
template <typename Sender, typename Signal, typename Receiver, typename Handler>
QMetaObject::Connection connectHandler(const Sender* sender, Signal signal, Receiver* receiver,
                                       Handler handler) {
    return QObject::connect(sender, signal, receiver, [receiver, handler](auto&&... arguments) {
        guarded([&] {
            if constexpr (std::is_member_function_pointer_v<Handler>) {
                if constexpr (std::is_invocable_v<Handler, Receiver*, decltype(arguments)...>) {
                    std::invoke(handler, receiver, arguments...);
                } else {
                    std::invoke(handler, receiver);
                }
            } else if constexpr (std::is_invocable_v<const Handler&, decltype(arguments)...>) {
                handler(arguments...);
            } else {
                handler();
            }
        });
    });
}

} // namespace velcro::ui

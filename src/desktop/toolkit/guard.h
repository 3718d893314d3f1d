#pragma once

#include <QObject>
#include <QWidget>
#include <exception>
#include <type_traits>
#include <utility>

/// Nothing that a handler throws may leave it: the toolkit would end the program. A fault becomes a message
/// with its text, and the job stays.
namespace quillmark::desktop {

/// Shows the text of the exception being handled over that window. A command that the screen does not take in
/// its present state is no fault: nothing shows.
void ShowFault(QWidget* over);

/// Runs a handler; false if it threw.
template <class Handler>
bool Guarded(QWidget* over, Handler&& handler) {
    try {
        std::forward<Handler>(handler)();
        return true;
    } catch (...) {
        ShowFault(over);
        return false;
    }
}

/// Connects a signal to a guarded handler, which takes all of the signal's arguments or none. The connection
/// ends with `window`, over which faults are shown.
template <class Sender, class Owner, class Handler, class... Arguments>
void On(Sender* sender, void (Owner::*signal)(Arguments...), QWidget* window, Handler handler) {
    QObject::connect(sender, signal, window, [window, handler](Arguments... arguments) {
        Guarded(window, [&] {
            if constexpr (std::is_invocable_v<const Handler&, Arguments...>)
                handler(arguments...);
            else
                handler();
        });
    });
}

}  // namespace quillmark::desktop

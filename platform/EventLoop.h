// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace vell {

// The one thread's source of events: sockets, timers and, where there is a window, its messages.
class EventLoop {
  public:
    using TimerId = int;  // 0 is no timer

    virtual ~EventLoop() = default;

    // Lets everything that is pending happen once and returns. May be called from inside a handler that it is running,
    // to any depth. An error that a handler lets escape ends up in the handler's own trap, never here.
    virtual void DoEvents() = 0;

    // The same for a caller that comes back within a moment, as one does who is told of every piece of a file: most of
    // the time it does nothing, since events were looked at less than five milliseconds ago.
    virtual void DoEventsNowAndThen() = 0;

    // Returns as soon as something happened (and was handled), at the latest after `milliseconds`. A window's messages
    // may wait for five milliseconds.
    virtual void WaitForEvents(int milliseconds) = 0;

    // Blocks without letting anything happen.
    virtual void Sleep(int milliseconds) = 0;

    // Calls `tick` every `periodMilliseconds` from DoEvents and WaitForEvents, never from anywhere else. A tick that
    // is due while its own handler runs comes in that handler's yields. Ticks that were missed come once.
    [[nodiscard]] virtual TimerId SetTimer(int periodMilliseconds, std::function<void()> tick) = 0;
    // An unknown or ended timer is no error. A timer may end itself from its own tick.
    virtual void KillTimer(TimerId timer) = 0;
};

}  // namespace vell

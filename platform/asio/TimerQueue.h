// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/Clock.h"
#include "platform/EventLoop.h"

namespace vell {

// The timers of an event loop: who is due, and when the next one will be. Knows the time only from its caller.
class TimerQueue {
  public:
    using Tick = std::shared_ptr<const std::function<void()>>;

    [[nodiscard]] EventLoop::TimerId add(SteadyTime now, std::chrono::milliseconds period, std::function<void()> tick);
    void remove(EventLoop::TimerId timer);

    // The tick of the timer that has been due longest, which is then due a period later; null when none is. Asked
    // again and again with the same `now` it gives every due timer once.
    [[nodiscard]] Tick takeDue(SteadyTime now);
    // 0 when one is due; nothing when there is no timer.
    [[nodiscard]] std::optional<std::chrono::milliseconds> untilNext(SteadyTime now) const;

  private:
    struct Timer {
        EventLoop::TimerId Id;
        std::chrono::milliseconds Period;
        SteadyTime Due;
        Tick Call;
    };
    // A program has a handful of timers: searching beats sorting.
    std::vector<Timer> timers_;
    EventLoop::TimerId lastId_ = 0;
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "platform/asio/TimerQueue.h"

#include <algorithm>
#include <utility>

namespace vell {

using std::chrono::milliseconds;

EventLoop::TimerId TimerQueue::add(SteadyTime now, milliseconds period, std::function<void()> tick) {
    // A period of 0 would be due for ever, and every wait would spin.
    period = std::max(period, milliseconds{1});
    timers_.push_back(
        {++lastId_, period, now + period, std::make_shared<const std::function<void()>>(std::move(tick))});
    return lastId_;
}

void TimerQueue::remove(EventLoop::TimerId timer) {
    std::erase_if(timers_, [timer](const Timer& one) { return one.Id == timer; });
}

TimerQueue::Tick TimerQueue::takeDue(SteadyTime now) {
    const auto next = std::ranges::min_element(timers_, {}, &Timer::Due);
    if (next == timers_.end() || next->Due > now) return nullptr;
    // Keeps the beat; ticks that were missed are left out.
    next->Due += next->Period;
    if (next->Due <= now) next->Due = now + next->Period;
    return next->Call;
}

std::optional<milliseconds> TimerQueue::untilNext(SteadyTime now) const {
    const auto next = std::ranges::min_element(timers_, {}, &Timer::Due);
    if (next == timers_.end()) return std::nullopt;
    return std::max(next->Due - now, milliseconds{0});
}

}  // namespace vell

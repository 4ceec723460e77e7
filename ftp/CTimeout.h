// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/EventLoop.h"

namespace vell {

class TimeoutCounter;

// Bounds a wait by counting the ticks of a one-second timer. A value of N runs out with tick N+1.
class CTimeout {
  public:
    CTimeout(EventLoop& loop, TimeoutCounter& counter) : loop_(loop), counter_(counter) {}
    ~CTimeout() { StopTimer(); }
    CTimeout(const CTimeout&) = delete;
    CTimeout& operator=(const CTimeout&) = delete;

    void StartTimer();
    void StopTimer();
    void TimeoutValue(std::int16_t seconds) { timeoutValue_ = seconds; }
    [[nodiscard]] std::int16_t TimeoutValue() const { return timeoutValue_; }
    // Has the allowance run out? Stops the timer when it has.
    [[nodiscard]] bool Timeout();
    // The allowance begins anew; the timer keeps running.
    void Reset();

  private:
    EventLoop& loop_;
    TimeoutCounter& counter_;
    EventLoop::TimerId timer_ = 0;
    std::int16_t timeoutValue_ = 0;
};

}  // namespace vell

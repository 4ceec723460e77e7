// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "base/Date.h"

namespace vell {

// Time that only goes forward; everything that measures how long something takes uses it.
using SteadyTime = std::chrono::time_point<std::chrono::steady_clock, std::chrono::milliseconds>;

class Clock {
  public:
    virtual ~Clock() = default;

    // Wall time in the user's zone; it may jump.
    [[nodiscard]] virtual LocalTime Now() const = 0;
    [[nodiscard]] virtual SteadyTime Steady() const = 0;

    // How a wait passes. The event loop asks how long a wait of `length` may really last, and tells when that time went
    // by without an event. A clock driven by a test makes waits short and moves on by `length` instead.
    [[nodiscard]] virtual std::chrono::milliseconds realLength(std::chrono::milliseconds length) const {
        return length;
    }
    virtual void passed(std::chrono::milliseconds /*length*/) {}
};

}  // namespace vell

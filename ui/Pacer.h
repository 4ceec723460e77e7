// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

#include "platform/Clock.h"

namespace vell {

// Keeps work that is asked for all the time (painting, refreshing lists) to a small share of the time: it is done at
// most once per interval, and the more seldom the longer it takes.
class Pacer {
  public:
    Pacer(const Clock& clock, std::chrono::milliseconds interval) : clock_(clock), interval_(interval) {}

    [[nodiscard]] bool isDue() const { return !next_ || clock_.Steady() >= *next_; }

    // Does the work now, due or not.
    template <class Work>
    void run(Work&& work) {
        constexpr int idleShare = 20;  // the work takes at most about a twentieth of the time
        const SteadyTime begun = clock_.Steady();
        std::forward<Work>(work)();
        const SteadyTime ended = clock_.Steady();
        next_ = ended + std::max(interval_, (ended - begun) * idleShare);
    }

  private:
    const Clock& clock_;
    std::chrono::milliseconds interval_;
    std::optional<SteadyTime> next_;
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <utility>

#include "platform/Clock.h"

namespace vell {

// Tells a transfer that goes on from one that only drips: over every five minutes of waiting for it, 64 bytes a second
// must have come.
class TransferPace {
  public:
    void begin(SteadyTime now) {
        *this = {};
        wait(now);
    }
    // From here on it is the server's turn.
    void wait(SteadyTime now) { since_ = now; }
    // False when a stretch of waiting has ended with these bytes, and was too poor.
    [[nodiscard]] bool isFair(std::size_t bytes, SteadyTime now) {
        waited_ += now - since_;
        since_ = now;
        bytes_ += bytes;
        if (waited_ < stretch) return true;
        waited_ = {};
        return std::exchange(bytes_, 0) >= leastBytes;
    }

  private:
    static constexpr std::chrono::seconds stretch{300};
    static constexpr std::size_t leastBytes = 64 * stretch.count();

    SteadyTime since_;
    SteadyTime::duration waited_{};
    std::size_t bytes_ = 0;
};

}  // namespace vell

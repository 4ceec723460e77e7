// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>

namespace vell {

// The elapsed seconds of the wait that is under way. The program waits for one thing at a time, so it has one counter,
// which all its CTimeout objects share.
class TimeoutCounter {
  public:
    void Reset() { seconds_ = 0; }
    void tick() { seconds_ = static_cast<std::int16_t>(seconds_ + (seconds_ < most ? 1 : 0)); }
    [[nodiscard]] std::int16_t seconds() const { return seconds_; }

  private:
    static constexpr std::int16_t most = std::numeric_limits<std::int16_t>::max();
    std::int16_t seconds_ = 0;
};

}  // namespace vell

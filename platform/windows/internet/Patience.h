// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>

#include "platform/Clock.h"
#include "platform/internetErrors.h"

namespace vell {

// How long an answer may keep somebody waiting: 30 seconds without a byte, and five minutes for a portion that a
// server with 64 bytes a second at least has ready in time.
class Patience {
  public:
    explicit Patience(const Clock& clock) : clock_(clock), lastByte_(clock.Steady()) {}

    void begin() { lastByte_ = clock_.Steady(); }
    // So many bytes have come in all.
    void received(std::uint64_t bytes) {
        if (bytes == received_) return;
        received_ = bytes;
        lastByte_ = clock_.Steady();
        if (received_ - portionFrom_ < wholePortion) return;
        portionFrom_ = received_;
        waitedForPortion_ = {};
    }
    // Somebody has waited so long for bytes, come or not.
    void waited(std::chrono::milliseconds time) { waitedForPortion_ += time; }

    // Fails as cancelled once it has been silent for so long; at once when that is no time at all.
    void cancelAfterSilenceOf(std::chrono::milliseconds silence) {
        longestSilence_ = std::min(longestSilence_, silence);
        cancelled_ = true;
    }
    [[nodiscard]] bool isAbandoned() const { return longestSilence_.count() == 0; }
    // The number to fail with now; 0 to go on waiting.
    [[nodiscard]] std::int32_t out() const {
        if (waitedForPortion_ >= longestForPortion) return internet_error::Timeout;
        if (clock_.Steady() - lastByte_ < longestSilence_) return 0;
        return cancelled_ ? internet_error::Cancelled : internet_error::Timeout;
    }

  private:
    static constexpr std::chrono::minutes longestForPortion{5};
    static constexpr std::uint64_t wholePortion = std::uint64_t{64} * 300;

    const Clock& clock_;
    SteadyTime lastByte_;
    std::chrono::milliseconds longestSilence_{30'000};
    std::uint64_t received_ = 0;
    std::uint64_t portionFrom_ = 0;
    std::chrono::milliseconds waitedForPortion_{};
    bool cancelled_ = false;
};

}  // namespace vell

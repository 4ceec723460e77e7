// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"

namespace vell::test {

// A clock that stands still until the test moves it. A wait of the event loop that nothing ended moves it by the
// wait's length, after a real moment in which a peer on loopback had the chance to be heard.
class DrivenClock : public Clock {
  public:
    explicit DrivenClock(LocalTime start = {{2004, 3, 7}, 6, 29, 0},
                         std::chrono::milliseconds realMoment = std::chrono::milliseconds{1})
        : realMoment_(realMoment) {
        setNow(start);
    }

    [[nodiscard]] LocalTime Now() const override;
    [[nodiscard]] SteadyTime Steady() const override { return steady_; }
    [[nodiscard]] std::chrono::milliseconds realLength(std::chrono::milliseconds length) const override;
    void passed(std::chrono::milliseconds length) override { advance(length); }

    // How long a wait really takes. None at all makes hours pass in no time, peers or not.
    void setRealMoment(std::chrono::milliseconds moment) { realMoment_ = moment; }

    // Both clocks go on.
    void advance(std::chrono::milliseconds by);
    // Only the wall clock jumps.
    void setNow(LocalTime now);

  private:
    std::chrono::milliseconds realMoment_;
    SteadyTime steady_{};
    std::chrono::sys_time<std::chrono::milliseconds> wall_;
};

}  // namespace vell::test

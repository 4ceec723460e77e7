// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"

namespace vell {

class SystemClock : public Clock {
  public:
    [[nodiscard]] LocalTime Now() const override;
    [[nodiscard]] SteadyTime Steady() const override;
};

}  // namespace vell

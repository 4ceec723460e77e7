// SPDX-License-Identifier: MIT
#include "ftp/CTimeout.h"

#include <utility>

#include "ftp/TimeoutCounter.h"

namespace vell {

void CTimeout::StartTimer() {
    StopTimer();
    timer_ = loop_.SetTimer(1000, [&counter = counter_] { counter.tick(); });
}

void CTimeout::StopTimer() {
    counter_.Reset();
    if (timer_ != 0) loop_.KillTimer(std::exchange(timer_, 0));
}

bool CTimeout::Timeout() {
    if (counter_.seconds() <= timeoutValue_) return false;
    StopTimer();
    return true;
}

void CTimeout::Reset() {
    counter_.Reset();
}

}  // namespace vell

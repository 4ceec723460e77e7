// SPDX-License-Identifier: MIT
#include "platform/windows/program/SystemClock.h"

namespace vell {

LocalTime SystemClock::Now() const {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return {{now.wYear, now.wMonth, now.wDay}, now.wHour, now.wMinute, now.wSecond};
}

SteadyTime SystemClock::Steady() const {
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::steady_clock::now());
}

}  // namespace vell

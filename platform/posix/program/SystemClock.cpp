// SPDX-License-Identifier: MIT
#include "platform/posix/program/SystemClock.h"

#include <ctime>

#include <time.h>

namespace vell {

LocalTime SystemClock::Now() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    tzset();  // localtime_r alone need not notice that the zone has become another
    localtime_r(&now, &local);
    return {{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday}, local.tm_hour, local.tm_min, local.tm_sec};
}

SteadyTime SystemClock::Steady() const {
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::steady_clock::now());
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "tests/support/DrivenClock.h"

#include <algorithm>

namespace vell::test {

using std::chrono::days, std::chrono::floor, std::chrono::hh_mm_ss, std::chrono::hours, std::chrono::milliseconds,
    std::chrono::minutes, std::chrono::seconds, std::chrono::sys_days, std::chrono::year, std::chrono::year_month_day;

LocalTime DrivenClock::Now() const {
    const auto midnight = floor<days>(wall_);
    const year_month_day day{midnight};
    const hh_mm_ss time{floor<seconds>(wall_ - midnight)};
    return {{static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
             static_cast<int>(static_cast<unsigned>(day.day()))},
            static_cast<int>(time.hours().count()),
            static_cast<int>(time.minutes().count()),
            static_cast<int>(time.seconds().count())};
}

milliseconds DrivenClock::realLength(milliseconds length) const {
    return std::min(length, realMoment_);
}

void DrivenClock::advance(milliseconds by) {
    steady_ += by;
    wall_ += by;
}

void DrivenClock::setNow(LocalTime now) {
    wall_ = sys_days{year{now.Day.Year} / now.Day.Month / now.Day.Day} + hours{now.Hour} + minutes{now.Minute} +
            seconds{now.Second};
}

}  // namespace vell::test

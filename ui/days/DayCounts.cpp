// SPDX-License-Identifier: MIT
#include "ui/days/DayCounts.h"

#include <algorithm>
#include <utility>

#include "store/modGlobal.h"

namespace vell {

DayCounts::~DayCounts() {
    p_.Loop.KillTimer(timer_);
}

void DayCounts::start() {
    isStarted_ = true;
    wake(startPause);
}

void DayCounts::setDays(const std::vector<Date>& days) {
    const auto isGone = [&](const Date& day) { return !std::ranges::binary_search(days, day, std::greater{}); };
    std::erase_if(counts_, [&](const auto& known) { return isGone(known.first); });
    std::erase_if(due_, isGone);
    for (const Date& day : days)
        if (!counts_.contains(day)) due_.insert(day);
    wake(pause);
}

std::optional<DayCount> DayCounts::of(const Date& day) const {
    const auto found = counts_.find(day);
    return found == counts_.end() ? std::nullopt : std::optional(found->second);
}

void DayCounts::set(const Date& day, const DayCount& count) {
    due_.erase(day);
    const bool isOther = of(day) != count;
    counts_[day] = count;
    if (isOther && told_) told_(day);
}

void DayCounts::recount(const Date& day) {
    if (!counts_.contains(day)) return;  // it is not there, or waits for its turn
    due_.insert(day);
    wake(pause);
}

void DayCounts::recountAll() {
    for (const auto& [day, count] : counts_)
        due_.insert(day);
    wake(pause);
}

DayCount DayCounts::countNow(const Date& day) {
    const DayCount count = p_.Store.CountDay(day);
    if (counts_.contains(day)) set(day, count);
    return count;
}

void DayCounts::wake(int milliseconds) {
    if (!isStarted_ || timer_ != 0 || due_.empty()) return;
    timer_ = p_.Loop.SetTimer(milliseconds, [this] { work(); });
}

void DayCounts::work() {
    p_.Loop.KillTimer(std::exchange(timer_, 0));
    trapStep(p_.Log, "CountDays()", [this] {
        const SteadyTime end = p_.Time.Steady() + longestStep;
        while (!due_.empty()) {  // somebody else may have counted what was due
            const Date day = *due_.begin();
            due_.erase(due_.begin());
            set(day, p_.Store.CountDay(day));
            if (p_.Time.Steady() >= end) break;
        }
    });
    wake(pause);
}

}  // namespace vell

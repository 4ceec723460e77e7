// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "base/Date.h"
#include "log/EventLog.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "store/DayCount.h"

namespace vell {

class modGlobal;

// How many clippings each day has. A day is counted on the disk, the newest first, in short steps in the event loop, so
// that years of days hold nobody up; and again when it is said to have changed.
class DayCounts {
  public:
    // Milliseconds: after a start the window comes first; later the loop has most of the time for others.
    static constexpr int startPause = 500;
    static constexpr int pause = 25;
    // The days of one step; a day is counted in one go.
    static constexpr std::chrono::milliseconds longestStep{10};

    struct Parts {
        modGlobal& Store;
        EventLoop& Loop;
        const Clock& Time;
        EventLog& Log;
    };
    explicit DayCounts(const Parts& parts) : p_(parts) {}
    ~DayCounts();
    DayCounts(const DayCounts&) = delete;
    DayCounts& operator=(const DayCounts&) = delete;

    // From now on days are counted; before that, and in a program that shows no days, nothing is read.
    void start();
    // Told when a day has another count than before.
    void onCounted(std::function<void(const Date& day)> told) { told_ = std::move(told); }

    // The days there are, newest first. What is known of others is forgotten.
    void setDays(const std::vector<Date>& days);
    [[nodiscard]] std::optional<DayCount> of(const Date& day) const;
    // Somebody has read the day anyway.
    void set(const Date& day, const DayCount& count);
    // One of the days may have changed, or each of them.
    void recount(const Date& day);
    void recountAll();
    // As the disk has it at this moment.
    DayCount countNow(const Date& day);

  private:
    void wake(int milliseconds);
    void work();

    Parts p_;
    std::function<void(const Date&)> told_;
    std::map<Date, DayCount> counts_;
    std::set<Date, std::greater<>> due_;
    bool isStarted_ = false;
    EventLoop::TimerId timer_ = 0;
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "base/Date.h"
#include "log/EventLog.h"
#include "platform/EventLoop.h"

namespace vell {

class ClippingsBrowser;
class Clock;
class DownloadSession;
struct Session;

// The weekly schedule: its timer starts the downloads that are due.
class ScheduledRuns {
  public:
    struct Parts {
        Session& State;
        EventLoop& Loop;
        const Clock& Time;
        EventLog& Log;
        DownloadSession& Download;
        ClippingsBrowser& Browser;
    };
    explicit ScheduledRuns(const Parts& parts) : p_(parts) {}

    // The timer ticks in the event loop from start on.
    void start();
    // Whom to tell that the timer has ticked.
    void onTick(std::function<void()> tell) { ticked_ = std::move(tell); }
    void stop();
    // One tick: starts the runs that are due in this minute, one after the other. No record is kept of what was
    // served: the next tick of the same minute starts them again. One that comes while anything else is under way is
    // logged, and that is all.
    void tmrSchedule_Timer();
    // The next minute, after now, in which the schedule starts something; nothing within a week when it is empty.
    [[nodiscard]] std::optional<LocalTime> nextDue() const;

  private:
    Parts p_;
    EventLoop::TimerId tmrSchedule_ = 0;
    std::function<void()> ticked_;
};

}  // namespace vell

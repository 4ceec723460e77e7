// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "base/Date.h"
#include "log/EventLog.h"

namespace vell {

class ClippingsBrowser;
class Clock;
class DownloadRun;
class EventLoop;
class InternetLink;
class MainView;
struct Session;

// The ways in which download runs start.
class ScheduledRuns {
  public:
    ScheduledRuns(Session& session, MainView& view, EventLoop& loop, const Clock& clock, EventLog& log,
                  DownloadRun& run, InternetLink& link, ClippingsBrowser& browser);

    // One tick of the schedule's timer: starts the runs that are due in this minute, one after the other. No record is
    // kept of what was served: the next tick of the same minute starts them again, and one that comes in the middle of
    // a run finds the program busy.
    void tmrSchedule_Timer();
    // How often it ticks.
    static constexpr int tickMilliseconds = 10000;
    // The next minute, after now, in which the schedule starts something; nothing within a week when it is empty.
    [[nodiscard]] std::optional<LocalTime> nextDue() const;

    // The user's download: today's day, or the days of the range one after the other.
    void mnuForceDownload_Click();

    // The user has changed one end of the range. A From behind the To is refused with a message.
    void dtFromDate_Change(const Date& from);
    void dtToDate_Change(const Date& to);

  private:
    // One run, with the internet connection brought up before it and, where that is wanted, hung up after it.
    void RunDownloadSession();
    void closeConnection();
    [[nodiscard]] bool runRange();
    void runDays();

    Session& session_;
    MainView& view_;
    EventLoop& loop_;
    const Clock& clock_;
    EventLog& log_;
    DownloadRun& run_;
    InternetLink& link_;
    ClippingsBrowser& browser_;
};

}  // namespace vell

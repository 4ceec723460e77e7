// SPDX-License-Identifier: MIT
#pragma once

#include "base/Date.h"
#include "log/EventLog.h"

namespace vell {

class ClippingsBrowser;
class Clock;
class DownloadRun;
class EventLoop;
class MainView;
struct Session;

// The ways in which download runs start.
class ScheduledRuns {
  public:
    ScheduledRuns(Session& session, MainView& view, EventLoop& loop, const Clock& clock, EventLog& log,
                  DownloadRun& run, ClippingsBrowser& browser);

    // The user's download: today's day, or the days of the range one after the other.
    void mnuForceDownload_Click();

    // The user has changed one end of the range. A From behind the To is refused with a message.
    void dtFromDate_Change(const Date& from);
    void dtToDate_Change(const Date& to);

  private:
    // One run.
    void RunDownloadSession();
    [[nodiscard]] bool runRange();

    Session& session_;
    MainView& view_;
    EventLoop& loop_;
    const Clock& clock_;
    EventLog& log_;
    DownloadRun& run_;
    ClippingsBrowser& browser_;
};

}  // namespace vell

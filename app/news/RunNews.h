// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/Date.h"
#include "log/EventLog.h"

namespace vell {

class ClippingsBrowser;
class Clock;
class Files;
class MainView;
class RunFeedback;
class ScheduledRuns;
class Translations;
struct LastRun;
struct RunContext;

// Tells what downloads bring: in the status line, and to people who look at something else.
class RunNews {
  public:
    struct Parts {
        MainView& View;
        ClippingsBrowser& Browser;
        Files& Disk;
        const Clock& Time;
        EventLog& Log;
        RunFeedback& Status;
        const ScheduledRuns& Schedule;
        const Translations& Words;
        const std::string& AppPath;  // as it is once the session is up
    };
    explicit RunNews(const Parts& parts) : p_(parts) {}

    void runEnded(const RunContext& run);
    // That of an earlier session, which has left its record.
    void showLastRun();
    // The schedule, or the time, has become another.
    void showNextRun();
    // Shows the day of the last notice. The row of its first new clipping, when that is listed.
    std::optional<std::size_t> goToNews();

  private:
    void show(const LastRun& run);
    void notify(const RunContext& run);
    [[nodiscard]] std::vector<std::string> titles(const std::string& dayFolder, std::vector<std::string> names) const;

    Parts p_;
    std::optional<Date> day_;  // of the last notice
    std::string first_;        // path of its first new clipping
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "app/run/ScheduledRuns.h"

#include <algorithm>
#include <array>

#include "app/Session.h"
#include "app/run/DownloadSession.h"
#include "base/text.h"
#include "platform/Clock.h"
#include "ui/ClippingsBrowser.h"

namespace vell {

namespace {

// Monday first, as in the log.
constexpr std::array<std::string_view, 7> dayTexts{"MON", "TUE", "WED", "THU", "FRI", "SAT", "SUN"};

bool isDue(const ScheduleEntry& entry, int weekday, std::string_view hourMinute) {
    return entry.Days[static_cast<std::size_t>(weekday) - 1] && entry.Time == hourMinute;
}

}  // namespace

void ScheduledRuns::start() {
    constexpr int tickMilliseconds = 10000;
    tmrSchedule_ = p_.Loop.SetTimer(tickMilliseconds, [this] {
        tmrSchedule_Timer();
        if (ticked_) ticked_();
    });
}

void ScheduledRuns::stop() {
    p_.Loop.KillTimer(tmrSchedule_);
}

void ScheduledRuns::tmrSchedule_Timer() {
    if (p_.State.Setup.ScheduleList.empty()) return;
    p_.Loop.DoEvents();
    const LocalTime now = p_.Time.Now();
    const int weekday = now.Day.weekday();
    const std::string day(dayTexts[static_cast<std::size_t>(weekday) - 1]);
    // The user may edit the schedule while a run goes on.
    const std::vector<ScheduleEntry> entries = p_.State.Setup.ScheduleList;
    for (const ScheduleEntry& entry : entries) {
        if (p_.State.IsEnding || !isDue(entry, weekday, now.hourMinute())) continue;
        p_.Log.WriteLog("STARTED " + day + " Scheduled download at " + entry.Time);
        const bool ran = p_.Download.RunDownloadSession(Starter::Schedule, now.Day);
        p_.Log.WriteLog("ENDED " + day + " Scheduled download at " + entry.Time);
        if (ran) p_.Browser.refresh();
    }
}

std::optional<LocalTime> ScheduledRuns::nextDue() const {
    const LocalTime now = p_.Time.Now();
    std::optional<LocalTime> next;
    for (const ScheduleEntry& entry : p_.State.Setup.ScheduleList) {
        if (entry.Time.size() != 5) continue;
        for (int ahead = 0; ahead <= 7; ++ahead) {
            const Date day = now.Day.plusDays(ahead);
            const auto digits = [&](std::size_t at) { return static_cast<int>(Val(entry.Time.substr(at, 2))); };
            const LocalTime due{day, digits(0), digits(3), 0};
            if (due <= now || due.Hour > 23 || !isDue(entry, day.weekday(), due.hourMinute())) continue;
            next = next ? std::min(*next, due) : due;
            break;
        }
    }
    return next;
}

}  // namespace vell

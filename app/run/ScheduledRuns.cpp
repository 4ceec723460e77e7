// SPDX-License-Identifier: MIT
#include "app/run/ScheduledRuns.h"

#include <algorithm>
#include <array>

#include "app/MainView.h"
#include "app/Session.h"
#include "app/run/DownloadRun.h"
#include "app/run/InternetLink.h"
#include "base/text.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "ui/ClippingsBrowser.h"

namespace vell {

namespace {

constexpr std::string_view wrongRange = "To date can not be less that From date. Please correct it.";

// Monday first, as in the log.
constexpr std::array<std::string_view, 7> dayTexts{"MON", "TUE", "WED", "THU", "FRI", "SAT", "SUN"};

bool isDue(const ScheduleEntry& entry, int weekday, std::string_view hourMinute) {
    return entry.Days[static_cast<std::size_t>(weekday) - 1] && entry.Time == hourMinute;
}

}  // namespace

ScheduledRuns::ScheduledRuns(Session& session, MainView& view, EventLoop& loop, const Clock& clock, EventLog& log,
                             DownloadRun& run, InternetLink& link, ClippingsBrowser& browser)
    : session_(session),
      view_(view),
      loop_(loop),
      clock_(clock),
      log_(log),
      run_(run),
      link_(link),
      browser_(browser) {}

void ScheduledRuns::tmrSchedule_Timer() {
    if (session_.Setup.ScheduleList.empty()) return;
    loop_.DoEvents();
    const LocalTime now = clock_.Now();
    const int weekday = now.Day.weekday();
    const std::string_view day = dayTexts[static_cast<std::size_t>(weekday) - 1];
    // The user may edit the schedule while a run goes on.
    const std::vector<ScheduleEntry> entries = session_.Setup.ScheduleList;
    for (const ScheduleEntry& entry : entries) {
        if (session_.IsEnding || !isDue(entry, weekday, now.hourMinute())) continue;
        log_.WriteLog("STARTED " + std::string(day) + " Scheduled download at " + entry.Time);
        if (!session_.gIsBusy) {
            session_.StartedByUser = false;
            session_.Outcome = {};
        }
        session_.Day.gCurrentDate = now.Day;
        RunDownloadSession();
        log_.WriteLog("ENDED " + std::string(day) + " Scheduled download at " + entry.Time);
        browser_.refresh();
    }
}

std::optional<LocalTime> ScheduledRuns::nextDue() const {
    const LocalTime now = clock_.Now();
    std::optional<LocalTime> next;
    for (const ScheduleEntry& entry : session_.Setup.ScheduleList) {
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

void ScheduledRuns::mnuForceDownload_Click() {
    session_.gStopRequested = false;
    if (!session_.gIsBusy) {
        session_.StartedByUser = true;
        session_.Outcome = {};
    }
    log_.WriteLog("FORCEd download by user");
    view_.showForcedRun(true);
    if (session_.DownloadToday) {
        session_.Day.gCurrentDate = clock_.Now().Day;
        RunDownloadSession();
    } else if (!runRange()) {
        return;  // Stop stays visible until the next forced download ends: people know it so
    }
    view_.showForcedRun(false);
    log_.WriteLog("FORCEd download ENDED");
    browser_.refresh();
}

void ScheduledRuns::RunDownloadSession() {
    if (link_.StartINET())
        run_.StartDownload();
    else
        session_.Outcome.NoConnection = true;
    closeConnection();
}

void ScheduledRuns::closeConnection() {
    if (!session_.Setup.CloseConnection || session_.gStopRequested) return;
    log_.WriteLog("Stopping internet connection.");
    if (!link_.StopINET(false)) log_.WriteLog("\t\tFAILED.");
}

bool ScheduledRuns::runRange() {
    if (session_.dtFromDate > session_.dtToDate) {
        view_.displayInfoMessageBox(wrongRange);
        return false;
    }
    if (link_.StartINET())
        runDays();
    else
        session_.Outcome.NoConnection = true;
    closeConnection();
    return true;
}

void ScheduledRuns::runDays() {
    Date& from = session_.dtFromDate;
    const Date& to = session_.dtToDate;
    do {
        if (session_.gStopRequested) return;
        session_.Day.gCurrentDate = from;
        run_.StartDownload();
        loop_.DoEvents();
        from = from.plusDays(1);  // the picker itself counts, so that the user sees it walk
        view_.showDateRange(from, to);
        loop_.DoEvents();
    } while (from <= to);
    from = from.plusDays(-1);
    view_.showDateRange(from, to);
}

void ScheduledRuns::dtFromDate_Change(const Date& from) {
    session_.dtFromDate = from;
    if (session_.dtToDate >= from) return;
    view_.displayInfoMessageBox(wrongRange);
    session_.dtFromDate = session_.dtToDate;
    view_.showDateRange(session_.dtFromDate, session_.dtToDate);
}

void ScheduledRuns::dtToDate_Change(const Date& to) {
    session_.dtToDate = to;
    if (to >= session_.dtFromDate) return;
    view_.displayInfoMessageBox(wrongRange);
    session_.dtToDate = session_.dtFromDate;
    view_.showDateRange(session_.dtFromDate, session_.dtToDate);
}

}  // namespace vell

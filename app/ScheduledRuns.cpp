// SPDX-License-Identifier: MIT
#include "app/ScheduledRuns.h"

#include "app/DownloadRun.h"
#include "app/MainView.h"
#include "app/Session.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "ui/ClippingsBrowser.h"

namespace vell {

namespace {
constexpr std::string_view wrongRange = "To date can not be less that From date. Please correct it.";
}

ScheduledRuns::ScheduledRuns(Session& session, MainView& view, EventLoop& loop, const Clock& clock, EventLog& log,
                             DownloadRun& run, ClippingsBrowser& browser)
    : session_(session), view_(view), loop_(loop), clock_(clock), log_(log), run_(run), browser_(browser) {}

void ScheduledRuns::mnuForceDownload_Click() {
    session_.gStopRequested = false;
    session_.Outcome = {};
    log_.WriteLog("FORCEd download by user");
    view_.showForcedRun(true);
    if (session_.DownloadToday) {
        session_.Day.gCurrentDate = clock_.Now().Day.folderName();
        RunDownloadSession();
    } else if (!runRange()) {
        return;  // Stop stays visible until the next forced download ends: people know it so
    }
    view_.showForcedRun(false);
    log_.WriteLog("FORCEd download ENDED");
    browser_.refresh();
}

void ScheduledRuns::RunDownloadSession() {
    run_.StartDownload();
}

bool ScheduledRuns::runRange() {
    Date& from = session_.dtFromDate;
    const Date& to = session_.dtToDate;
    if (from > to) {
        view_.displayInfoMessageBox(wrongRange);
        return false;
    }
    bool stopped = false;
    do {
        stopped = session_.gStopRequested;
        if (stopped) break;
        session_.Day.gCurrentDate = from.folderName();
        run_.StartDownload();
        loop_.DoEvents();
        from = from.plusDays(1);  // the picker itself counts, so that the user sees it walk
        view_.showDateRange(from, to);
        loop_.DoEvents();
    } while (from <= to);
    if (!stopped) {
        from = from.plusDays(-1);
        view_.showDateRange(from, to);
    }
    return true;
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

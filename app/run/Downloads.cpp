// SPDX-License-Identifier: MIT
#include "app/run/Downloads.h"

#include "app/MainView.h"
#include "app/Session.h"
#include "app/run/DownloadSession.h"
#include "app/run/FtpSession.h"
#include "platform/Clock.h"
#include "platform/ConnectionApi.h"
#include "platform/EventLoop.h"
#include "platform/InternetApi.h"
#include "platform/Platform.h"
#include "service/RunFeedback.h"
#include "ui/ClippingsBrowser.h"

namespace vell {

namespace {
constexpr std::string_view wrongRange = "To date can not be less that From date. Please correct it.";
}

void Downloads::reset(const Date& today) {
    chooseRange(today, today);
    chooseOnlyToday(true);
}

void Downloads::chooseRange(const Date& from, const Date& to) {
    onlyToday_ = false;
    dtFromDate_ = from;
    dtToDate_ = to;
    showRange();
}

void Downloads::dtFromDate_Change(const Date& from) {
    dtFromDate_ = from;
    if (dtToDate_ >= from) return;
    p_.View.displayInfoMessageBox(wrongRange);
    dtFromDate_ = dtToDate_;
    showRange();
}

void Downloads::dtToDate_Change(const Date& to) {
    dtToDate_ = to;
    if (to >= dtFromDate_) return;
    p_.View.displayInfoMessageBox(wrongRange);
    dtToDate_ = dtFromDate_;
    showRange();
}

void Downloads::typedNoDay(std::string_view text) {
    p_.View.displayInfoMessageBox("'" + std::string(text) + "' is no day of the calendar. Write a day as dd/mm/yyyy.");
}

void Downloads::showRange() {
    p_.View.showDateRange(dtFromDate_, dtToDate_);
}

void Downloads::mnuForceDownload_Click() {
    if (isBusy() || p_.State.IsEnding) return;
    p_.Log.WriteLog("FORCEd download by user");
    p_.View.showForcedRun(true);
    if (!download()) return;  // the wrong range is to be corrected: Stop stays visible until the next download ends
    p_.View.showForcedRun(false);
    p_.Log.WriteLog("FORCEd download ENDED");
    p_.Browser.refresh();
}

bool Downloads::download() {
    if (onlyToday_) return p_.Download.RunDownloadSession(Starter::Person, p_.Os.Time.Now().Day);
    if (dtFromDate_ > dtToDate_) {
        p_.View.displayInfoMessageBox(wrongRange);
        return false;
    }
    return p_.Download.RunDownloadSession(Starter::Person, dtFromDate_, [this] { return nextOfRange(); });
}

// The picker itself counts, so that the user sees it walk.
std::optional<Date> Downloads::nextOfRange() {
    p_.Os.Loop.DoEvents();
    dtFromDate_ = dtFromDate_.plusDays(1);
    showRange();
    p_.Os.Loop.DoEvents();
    if (dtFromDate_ <= dtToDate_) return dtFromDate_;
    dtFromDate_ = dtFromDate_.plusDays(-1);
    showRange();
    return std::nullopt;
}

void Downloads::cmdStopDownload_Click() {
    p_.State.gStopRequested = true;
    if (p_.State.Doing == Activity::Connecting) p_.Os.Connection.CancelWaits();
    // A file that comes in is let come; one whose server has fallen silent would hold up the end of the run.
    p_.Os.Internet.CancelRequests(InternetApi::Cancel::Stalled);
    p_.Os.Loop.DoEvents();
    (void)p_.Ftp.StopFTP(true);
    p_.Status.StatusBar("Download STOPED by user.");
}

bool Downloads::isBusy() const {
    return !p_.State.isIdle();
}

const RunOutcome& Downloads::outcome() const {
    return p_.State.Run.Outcome;
}

}  // namespace vell

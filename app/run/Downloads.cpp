// SPDX-License-Identifier: MIT
#include "app/run/Downloads.h"

#include "app/MainView.h"
#include "app/Session.h"
#include "app/failures/MissingDays.h"
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
    p_.View.showForcedRun(MainView::ForcedRun::Running);
    if (!download()) return;  // the wrong range is to be corrected: Stop stays visible until the next download ends
    p_.View.showForcedRun(endOfRun());
    p_.Log.WriteLog("FORCEd download ENDED");
    p_.Browser.refresh();
}

MainView::ForcedRun Downloads::endOfRun() const {
    using enum MainView::ForcedRun;
    if (!outcome().isGood()) return Failed;
    return outcome().Stopped ? Stopped : EndedWell;
}

void Downloads::tryAgain() {
    // The days that were to be fetched are those that the user still sees.
    const RunContext& run = p_.State.Run;
    if (run.Summary.NotBegun && run.BegunBy == Starter::Person && run.Only.empty())
        mnuForceDownload_Click();
    else
        fetch(missingDays(p_.State));
}

void Downloads::fetchAgain(const std::vector<FailedFile>& files) {
    fetch(missingDays(p_.State, files));
}

void Downloads::fetch(const MissingDays& missing) {
    if (isBusy() || p_.State.IsEnding || missing.Days.empty()) return;
    p_.Log.WriteLog("What has failed is fetched again, asked for by user");
    p_.View.showForcedRun(MainView::ForcedRun::Running);
    p_.Download.RunDownloadSession(
        Starter::Person, missing.Days.front(),
        [next = std::size_t{0}, days = missing.Days]() mutable {
            return ++next < days.size() ? std::optional(days[next]) : std::nullopt;
        },
        missing.Only);
    p_.View.showForcedRun(endOfRun());
    p_.Log.WriteLog("What had failed was fetched again");
    p_.Browser.refresh();
}

bool Downloads::canTryAgain() const {
    return !isBusy() && isAnythingMissing(p_.State);
}

bool Downloads::download() {
    if (onlyToday_) return p_.Download.RunDownloadSession(Starter::Person, p_.Os.Time.Now().Day);
    if (dtFromDate_ > dtToDate_) {
        p_.View.displayInfoMessageBox(wrongRange);
        return false;
    }
    return p_.Download.RunDownloadSession(Starter::Person, dtFromDate_, [this] { return nextOfRange(); });
}

// The picker itself counts, so that the user sees it walk; it ends on the last day that was fetched.
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

const FailedFiles& Downloads::failed() const {
    return p_.State.Failed;
}

const RunSummary& Downloads::summary() const {
    return p_.State.Run.Summary;
}

}  // namespace vell

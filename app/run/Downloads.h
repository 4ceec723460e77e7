// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "app/MainView.h"
#include "app/RunContext.h"
#include "base/Date.h"
#include "log/EventLog.h"

namespace vell {

class ClippingsBrowser;
class DownloadSession;
class FailedFiles;
class FtpSession;
class RunFeedback;
struct MissingDays;
struct Platform;
struct Session;

// The user's downloads: which days, their start and their stop.
class Downloads {
  public:
    struct Parts {
        Session& State;
        const Platform& Os;
        MainView& View;
        EventLog& Log;
        DownloadSession& Download;
        FtpSession& Ftp;
        RunFeedback& Status;
        ClippingsBrowser& Browser;
    };
    explicit Downloads(const Parts& parts) : p_(parts) {}

    // Today is chosen, and both ends of the range are today, too.
    void reset(const Date& today);
    // Today, or the range as it stands.
    void chooseOnlyToday(bool onlyToday) { onlyToday_ = onlyToday; }
    // A new range.
    void chooseRange(const Date& from, const Date& to);
    // The user has changed one end of the range. A From behind the To is refused with a message.
    void dtFromDate_Change(const Date& from);
    void dtToDate_Change(const Date& to);
    // What the user has typed for one end is told to be no day.
    void typedNoDay(std::string_view text);

    // Fetches today's day, or the days of the range one after the other. The outcome tells how it went.
    void mnuForceDownload_Click();
    void cmdStopDownload_Click();
    // Fetches what the last download has not brought and what is missing since earlier ones, or those files alone.
    void tryAgain();
    void fetchAgain(const std::vector<FailedFile>& files);
    [[nodiscard]] bool canTryAgain() const;
    [[nodiscard]] const FailedFiles& failed() const;
    [[nodiscard]] bool isBusy() const;
    [[nodiscard]] const RunOutcome& outcome() const;
    [[nodiscard]] const RunSummary& summary() const;

  private:
    [[nodiscard]] bool download();
    void fetch(const MissingDays& missing);
    [[nodiscard]] MainView::ForcedRun endOfRun() const;
    [[nodiscard]] std::optional<Date> nextOfRange();
    void showRange();

    Parts p_;
    bool onlyToday_ = true;  // else the days from dtFromDate to dtToDate
    Date dtFromDate_;
    Date dtToDate_;
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "app/run/DownloadSession.h"

#include <utility>

#include "app/Session.h"
#include "app/run/DownloadRun.h"
#include "app/run/InternetLink.h"
#include "platform/Clock.h"

namespace vell {

bool DownloadSession::RunDownloadSession(Starter begunBy, const Date& first, const NextDay& next,
                                         std::vector<FailedFile> only) {
    if (!session_.isIdle() || session_.IsEnding) return false;
    RunContext run;
    run.BegunBy = begunBy;
    run.FirstDay = first;
    run.Only = std::move(only);
    run.Setup = session_.Setup;
    runWhole(std::move(run), next);
    for (const auto& tell : listeners_)
        tell(session_.Run);
    return true;
}

void DownloadSession::runWhole(RunContext run, const NextDay& next) {
    const ActivityScope whole(session_, Activity::BetweenDays);
    session_.gStopRequested = false;
    session_.Run = std::move(run);
    run_.downloadBegins();
    if (connect()) runDays(session_.Run.FirstDay, next);
    session_.Run.Outcome.Stopped = session_.gStopRequested;
    hangUp();
    session_.Run.Summary.Ended = clock_.Now();
}

bool DownloadSession::connect() {
    const ActivityScope connecting(session_, Activity::Connecting);
    const bool isUp = link_.StartINET();
    session_.Run.Outcome.NoConnection = !isUp && !session_.gStopRequested;
    if (session_.Run.Outcome.NoConnection) session_.Run.Summary.NotBegun = session_.Run.LastFailure;
    return isUp;
}

void DownloadSession::runDays(const Date& first, const NextDay& next) {
    for (std::optional<Date> day = first; day && !session_.gStopRequested;) {
        session_.Run.Day = {.gCurrentDate = *day, .gDayFolder = {}, .cmbDate = day};
        session_.Run.LastFailure = {};
        session_.Run.Summary.Days.push_back({.Day = *day});
        run_.StartDownload();
        day = next ? next() : std::nullopt;
    }
}

void DownloadSession::hangUp() {
    if (!session_.Run.Setup.CloseConnection || session_.gStopRequested) return;
    const ActivityScope hangingUp(session_, Activity::HangingUp);
    log_.WriteLog("Stopping internet connection.");
    if (!link_.StopINET(false)) log_.WriteLog("\t\tFAILED.");
}

}  // namespace vell

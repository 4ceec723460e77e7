// SPDX-License-Identifier: MIT
#include "app/run/DownloadSession.h"

#include <utility>

#include "app/Session.h"
#include "app/run/DownloadRun.h"
#include "app/run/InternetLink.h"

namespace vell {

bool DownloadSession::RunDownloadSession(Starter begunBy, const Date& first, const NextDay& next) {
    if (!session_.isIdle() || session_.IsEnding) return false;
    const ActivityScope whole(session_, Activity::BetweenDays);
    session_.gStopRequested = false;
    RunContext run;
    run.BegunBy = begunBy;
    run.Setup = session_.Setup;
    session_.Run = std::move(run);
    if (connect()) runDays(first, next);
    session_.Run.Outcome.Stopped = session_.gStopRequested;
    hangUp();
    return true;
}

bool DownloadSession::connect() {
    const ActivityScope connecting(session_, Activity::Connecting);
    const bool isUp = link_.StartINET();
    session_.Run.Outcome.NoConnection = !isUp && !session_.gStopRequested;
    return isUp;
}

void DownloadSession::runDays(const Date& first, const NextDay& next) {
    for (std::optional<Date> day = first; day && !session_.gStopRequested;) {
        session_.Run.Day = {.gCurrentDate = *day, .gDayFolder = {}, .cmbDate = day};
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

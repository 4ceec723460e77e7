// SPDX-License-Identifier: MIT
#include "app/run/DownloadRun.h"

#include "app/MainView.h"
#include "app/Session.h"
#include "app/failures/folderFailure.h"
#include "app/failures/leaveOnlyWanted.h"
#include "app/failures/settleFailures.h"
#include "app/progress/TransferProgress.h"
#include "app/run/FtpSession.h"
#include "app/run/LiveUpdate.h"
#include "service/DownloadList.h"
#include "store/Articles.h"
#include "store/IndexFile.h"
#include "store/modGlobal.h"
#include "ui/ClippingsBrowser.h"

namespace vell {

DownloadRun::DownloadRun(const Parts& parts)
    : p_(parts),
      transfer_({p_.State, p_.Loop, p_.Time, p_.Disk, p_.Log, p_.Http, p_.Ftp, p_.Progress}),
      books_({p_.State, p_.Time, p_.Disk, p_.Log, p_.Store, p_.Article, p_.Progress, p_.Browser.news()}),
      turns_({p_.State, p_.View, p_.Loop, p_.Time, p_.Disk, p_.Log, transfer_, books_, p_.Browser, p_.Progress}) {}

void DownloadRun::downloadBegins() {
    p_.Progress.dayBegins();
}

void DownloadRun::StartDownload() {
    Session& state = p_.State;
    if (state.gIsBusy() || state.IsEnding) return;
    const ActivityScope running(state, Activity::Running);
    turnsEnded_ = 0;
    p_.Progress.dayBegins();
    try {
        run();
    } catch (...) {
        const RunTimeError error = currentError();
        state.Run.Outcome.Broken = true;
        p_.Progress.failed(failureOf(error));
        breakOff();
        p_.Log.WriteLog("ERROR while downloading files.");
        p_.Log.LogError(error, "StartDownload()");
        p_.Progress.StatusBar("ERROR while downloading files.");
        closeBooks();
    }
    p_.Browser.dayChanged(state.Run.Day.gCurrentDate);
    p_.Browser.loadAlert();
}

void DownloadRun::run() {
    if (!prepare()) return;
    if (!p_.State.Run.Setup.UseHTTP && !p_.Ftp.open()) {
        p_.State.Run.Outcome.FtpFailed = !p_.State.gStopRequested;
        if (!p_.State.gStopRequested) breakOff();
        return;
    }
    fetchAll();
    finish();
}

bool DownloadRun::prepare() {
    p_.Log.WriteLog("Get/Create dir to put downloaded files.");
    if (!p_.Store.CreateDownloadDirPath()) {
        p_.Progress.StatusBar("Error! Download folder not created. Check 'Download Path' in Setup.");
        p_.Log.WriteLog("ERROR Get/Create download dir to put downloaded files.");
        p_.State.Run.Outcome.FolderFailed = true;
        p_.Progress.failed(folderFailure(p_.Disk, p_.State.Run.Setup.LocalDir));
        breakOff();
        return false;
    }
    if (p_.View.followsRun() || !p_.Browser.chosenDay()) {
        p_.Browser.PopulateDateCombo();
        p_.Browser.chooseDay(p_.State.Run.Day.gCurrentDate);
    }
    transfer_.begin();
    p_.Progress.StatusBar("Getting list of files to download...");
    p_.Log.WriteLog("Getting files to download...");
    if (!p_.List.GetDownloadFiles()) {
        if (p_.State.gStopRequested) {
            finish();
            return false;
        }
        say("Error while getting list of files to download");
        p_.State.Run.Outcome.ListFailed = true;
        breakOff();
        return false;
    }
    p_.State.Run.Summary.Days.back().Listed = static_cast<std::size_t>(p_.State.Downloads.gClippingsCount);
    if (!p_.State.gStopRequested && !p_.List.GetAlert()) p_.Log.WriteLog("Error while getting Alert data.");
    if (p_.State.Downloads.HasNewAlert) p_.Browser.news().alertArrived(p_.State.Run.Day.gCurrentDate);
    if (p_.State.Downloads.gClippingsCount == 0) {
        reportNothingToDownload();
        return false;
    }
    leaveOnlyWanted(p_.State, p_.Disk);
    return true;
}

// The reason is the one that was told last.
void DownloadRun::breakOff() {
    RunContext& run = p_.State.Run;
    run.Summary.Days.back().BrokenOff = run.LastFailure;
}

void DownloadRun::reportNothingToDownload() {
    say("No files to download found.");
    settleFailures(p_.State, p_.State.Downloads.gDownloadList.size());
    if (!p_.State.Downloads.ServiceWasSilent) p_.Store.DeleteDayFile(std::string(indexFileName));
}

void DownloadRun::fetchAll() {
    Session& state = p_.State;
    const auto count = static_cast<std::int32_t>(state.Downloads.gDownloadList.size());
    state.gClippingsDownloaded = 0;
    state.gLastProgressBytes = 0;
    books_.open();
    const Articles::Batch printing(p_.Article);
    p_.Log.WriteLog("Number of files to download :" + std::to_string(count));
    p_.Browser.refresh();
    for (std::int32_t i = 1; i <= count && !state.gStopRequested; ++i) {
        lastOk_ = turns_.take(i);
        if (lastOk_ || !state.gStopRequested) turnsEnded_ = static_cast<std::size_t>(i);
    }
    closeBooks();
    p_.Progress.dayEnded(turnsEnded_ == state.Downloads.gDownloadList.size() &&
                         state.Run.Summary.Days.back().FailedFiles.empty());
    p_.Browser.refresh();
}

void DownloadRun::closeBooks() {
    books_.close();
    settleFailures(p_.State, turnsEnded_);
}

void DownloadRun::finish() {
    Session& state = p_.State;
    p_.Update.afterRun();
    if (state.gStopRequested) {
        say("Download STOPED by user.");
        (void)p_.Ftp.StopFTP(true);
        return;
    }
    if (const auto dropped = state.Downloads.DroppedRecords; dropped > 0)
        say("Clippings left out because their names cannot be stored: " + std::to_string(dropped));
    if (!lastOk_) {
        p_.Log.WriteLog("Error while downloading files.");
        p_.Progress.StatusBar("ERROR while downloading files.");
    }
    p_.Log.WriteLog("Stopping FTP");
    if (!p_.Ftp.StopFTP(true)) p_.Log.WriteLog("\t\tFAILED");
}

void DownloadRun::say(const std::string& text) {
    p_.Log.WriteLog(text);
    p_.Progress.StatusBar(text);
}

}  // namespace vell

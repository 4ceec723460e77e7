// SPDX-License-Identifier: MIT
#include "app/run/DownloadRun.h"

#include "app/MainView.h"
#include "app/Session.h"
#include "app/run/FtpSession.h"
#include "app/run/RetryPause.h"
#include "app/run/TransferProgress.h"
#include "base/text.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"
#include "service/DownloadList.h"
#include "service/modHTTP.h"
#include "store/Articles.h"
#include "store/IndexFile.h"
#include "store/modGlobal.h"
#include "ui/ClippingsBrowser.h"

namespace vell {

namespace {

constexpr std::string_view indent = "\t\t";

std::string statusLine(bool ok) {
    return std::string(indent).append("Ended with status ").append(BooleanText(ok));
}

}  // namespace

DownloadRun::DownloadRun(const Parts& parts) : p_(parts), index_(parts.Disk) {}

void DownloadRun::StartDownload() {
    Session& state = p_.State;
    if (state.gIsBusy || state.IsEnding) return;
    state.gIsBusy = true;
    state.gIsTransferring = false;
    state.gStopRequested = false;
    try {
        run();
    } catch (...) {
        const RunTimeError error = currentError();
        state.Outcome.Broken = true;
        p_.Log.WriteLog("ERROR while downloading files.");
        p_.Log.LogError(error, "StartDownload()");
        p_.Progress.StatusBar("ERROR while downloading files.");
    }
    state.gIsTransferring = false;
    state.gIsBusy = false;
}

void DownloadRun::run() {
    if (!prepare()) return;
    if (!p_.State.Setup.UseHTTP && !p_.Ftp.open()) {
        p_.State.Outcome.FtpFailed = !p_.State.gStopRequested;
        p_.State.Outcome.Stopped = p_.State.gStopRequested;
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
        p_.State.Outcome.FolderFailed = true;
        return false;
    }
    if (p_.View.followsRun() || !p_.Browser.chosenDay()) {
        p_.Browser.PopulateDateCombo();
        p_.Browser.chooseDay(p_.State.Day.gCurrentDate);
    }
    p_.Progress.StatusBar("Getting list of files to download...");
    p_.Log.WriteLog("Getting files to download...");
    if (!p_.List.GetDownloadFiles()) {
        say("Error while getting list of files to download");
        p_.State.Outcome.ListFailed = true;
        return false;
    }
    if (!p_.List.GetAlert()) p_.Log.WriteLog("Error while getting Alert data.");
    if (p_.State.Downloads.gClippingsCount == 0) {
        reportNothingToDownload();
        return false;
    }
    return true;
}

void DownloadRun::reportNothingToDownload() {
    say("No files to download found.");
    p_.Store.DeleteDayFile(std::string(indexFileName));
}

void DownloadRun::fetchAll() {
    Session& state = p_.State;
    const auto count = static_cast<std::int32_t>(state.Downloads.gDownloadList.size());
    state.gClippingsDownloaded = 0;
    state.gLastProgressBytes = 0;
    pdfOk_ = false;
    textOk_ = false;
    p_.View.showProgress(0, 0);
    p_.Log.WriteLog("Number of files to download :" + std::to_string(count));
    p_.Browser.refresh();
    for (std::int32_t i = 1; i <= count && !state.gStopRequested; ++i)
        fetchOne(i);
    state.gIsTransferring = false;
    p_.Browser.refresh();
    p_.Browser.loadAlert();
}

void DownloadRun::fetchOne(std::int32_t index) {
    Session& state = p_.State;
    state.gCurrentFileIndex = index;
    const std::string& name = state.Downloads.gDownloadList[static_cast<std::size_t>(index) - 1].FileName;
    const FileTurn turn{index, name, localSize(name), equalNoCase(name, advertisementFile)};
    state.gIsTransferring = true;
    p_.Log.WriteLog(counter(index) + "  Downloading " + name + " (Starting from " + std::to_string(turn.Start) +
                    " bytes)");
    bool ok = attempt(turn);
    if (turn.IsAdvertisement) {
        p_.View.showAdvertisement(state.gAppPath + name);
        ++state.gClippingsDownloaded;
    } else if (!ok && !state.gStopRequested) {
        ok = retry(turn);
    }
    lastOk_ = ok;
    // A day without its advertisement is a whole day.
    if (!ok && !state.gStopRequested && !turn.IsAdvertisement) ++state.Outcome.FilesFailed;
    keepBooks(name, ok);
    p_.Log.WriteLog(statusLine(ok));
    p_.Browser.refreshDuringRun();
    p_.Loop.DoEvents();
    printWhenNew(turn);
}

bool DownloadRun::attempt(const FileTurn& turn) {
    const Session& state = p_.State;
    return adownloadFile(turn.Name, (turn.IsAdvertisement ? state.gAppPath : state.Day.gDayFolder) + turn.Name);
}

bool DownloadRun::retry(const FileTurn& turn) {
    const Session& state = p_.State;
    const std::int16_t most = state.Setup.RetryOnFailure;
    bool ok = false;
    for (int r = 1; !ok && (r == 1 || r <= most) && !state.gStopRequested; ++r) {
        const std::string attemptOf = std::to_string(r) + "/" + std::to_string(most) + " " + turn.Name;
        p_.Progress.StatusBar(p_.Progress.clippingCounter() + " Retrying " + attemptOf + " (" +
                              std::to_string(turn.Start) + ")");
        p_.Log.WriteLog(counter(turn.Index) + "  Retrying " + attemptOf + " (Starting from " +
                        std::to_string(turn.Start) + " bytes)");
        retryPause(state, p_.Loop, p_.Time);
        p_.Loop.DoEvents();
        ok = !state.gStopRequested && attempt(turn);
        p_.Log.WriteLog(statusLine(ok));
        p_.Loop.DoEvents();
    }
    return ok;
}

bool DownloadRun::adownloadFile(const std::string& name, const std::string& localPath) {
    if (!p_.State.Setup.UseHTTP) return p_.Ftp.download(name, localPath);
    std::int32_t bytes = 0;
    return p_.Http.HttpDownloadFile(name, localPath, bytes);
}

void DownloadRun::keepBooks(const std::string& name, bool ok) {
    const std::string_view ending = Right(name, 3);
    if (ending == "PDF") pdfOk_ = ok;
    if (ending == "TXT") textOk_ = ok;
    if (ending != ".MT") return;
    if (ok && textOk_ && pdfOk_) markDownloaded(Replace(name, ".MT", ".PDF"));
    pdfOk_ = false;
    textOk_ = false;
}

void DownloadRun::markDownloaded(const std::string& pdfName) {
    try {
        p_.State.gClippingsDownloaded += index_.markDownloaded(p_.State.Day.gDayFolder, pdfName);
    } catch (...) {
        // An index that cannot be written must not keep the next clippings from coming.
        p_.Log.LogError(currentError(), "StartDownload()");
        ++p_.State.Outcome.FilesFailed;
    }
}

void DownloadRun::printWhenNew(const FileTurn& turn) {
    const Session& state = p_.State;
    if (!state.Setup.PrintOnDownload || InStr(Upper(turn.Name), ".PDF") == 0) return;
    if (localSize(turn.Name) == turn.Start) return;
    const std::string path = state.Day.gDayFolder + turn.Name;
    say("Printing " + turn.Name);
    if (!p_.Article.PrintArticle(path))
        say("FAILED Printing " + turn.Name);
    else if (!p_.Store.MarkFilePrinted(path))
        p_.Log.WriteLog("FAILED Marking as Printed " + turn.Name);
}

void DownloadRun::finish() {
    Session& state = p_.State;
    if (state.gStopRequested) {
        say("Download STOPED by user.");
        state.gIsTransferring = false;
        state.gIsBusy = false;
        state.Outcome.Stopped = true;
        (void)p_.Ftp.StopFTP(true);
        return;
    }
    if (!lastOk_) {
        p_.Log.WriteLog("Error while downloading files.");
        p_.Progress.StatusBar("ERROR while downloading files.");
    }
    p_.Log.WriteLog("Stopping FTP");
    if (!p_.Ftp.StopFTP(true)) p_.Log.WriteLog(std::string(indent) + "FAILED");
}

void DownloadRun::say(const std::string& text) {
    p_.Log.WriteLog(text);
    p_.Progress.StatusBar(text);
}

std::string DownloadRun::counter(std::int32_t index) const {
    return "(" + std::to_string(index) + "/" + std::to_string(p_.State.Downloads.gDownloadList.size()) + ")";
}

std::int64_t DownloadRun::localSize(const std::string& name) const {
    return p_.Disk.FileSize(p_.State.Day.gDayFolder + name).value_or(0);
}

}  // namespace vell

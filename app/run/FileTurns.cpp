// SPDX-License-Identifier: MIT
#include "app/run/FileTurns.h"

#include "app/MainView.h"
#include "app/Session.h"
#include "app/run/ClippingBooks.h"
#include "app/run/FtpSession.h"
#include "app/run/RetryPause.h"
#include "app/run/TransferProgress.h"
#include "base/text.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"
#include "service/modHTTP.h"
#include "ui/ClippingsBrowser.h"

namespace vell {

namespace {

std::string statusLine(bool ok) {
    return std::string("\t\tEnded with status ").append(BooleanText(ok));
}

}  // namespace

bool FileTurns::take(std::int32_t index) {
    Session& state = p_.State;
    state.gCurrentFileIndex = index;
    const std::string& name = state.Downloads.gDownloadList[static_cast<std::size_t>(index) - 1].FileName;
    const Turn turn{index, name, p_.Disk.FileSize(state.Run.Day.gDayFolder + name).value_or(0),
                    equalNoCase(name, advertisementFile)};
    p_.Log.WriteLog(counter(index) + "  Downloading " + name + " (Starting from " + std::to_string(turn.Start) +
                    " bytes)");
    bool ok = attempt(turn);
    if (turn.IsAdvertisement) {
        p_.View.showAdvertisement(state.gAppPath + name);
        ++state.gClippingsDownloaded;
    } else if (!ok && !state.gStopRequested) {
        ok = retry(turn);
    }
    // A day without its advertisement is a whole day.
    if (!ok && !state.gStopRequested && !turn.IsAdvertisement) ++state.Run.Outcome.FilesFailed;
    p_.Books.enter(name, ok);
    p_.Log.WriteLog(statusLine(ok));
    p_.Browser.refreshDuringRun();
    p_.Loop.DoEvents();
    p_.Books.printWhenNew(name, turn.Start);
    return ok;
}

bool FileTurns::attempt(const Turn& turn) {
    const Session& state = p_.State;
    return adownloadFile(turn.Name, (turn.IsAdvertisement ? state.gAppPath : state.Run.Day.gDayFolder) + turn.Name);
}

bool FileTurns::retry(const Turn& turn) {
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

bool FileTurns::adownloadFile(const std::string& name, const std::string& localPath) {
    if (!p_.State.Run.OverHttp) return p_.Ftp.download(name, localPath);
    std::int32_t bytes = 0;
    return p_.Http.HttpDownloadFile(name, localPath, bytes);
}

std::string FileTurns::counter(std::int32_t index) const {
    return "(" + std::to_string(index) + "/" + std::to_string(p_.State.Downloads.gDownloadList.size()) + ")";
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "app/run/FileTurns.h"

#include "app/MainView.h"
#include "app/Session.h"
#include "app/progress/TransferProgress.h"
#include "app/run/ClippingBooks.h"
#include "app/run/RetryPause.h"
#include "base/text.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"
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
    const DownloadEntry& entry = state.Downloads.gDownloadList[static_cast<std::size_t>(index) - 1];
    if (entry.IsHere) {
        p_.Books.enter(entry, true);
        return true;
    }
    const std::string name = entry.FileName;
    const Turn turn{index, entry, lengthOf(state.Run.Day.gDayFolder + name), equalNoCase(name, advertisementFile)};
    p_.Log.WriteLog(counter(index) + "  Downloading " + name + " (Starting from " + std::to_string(turn.Start) +
                    " bytes)");
    bool ok = attempt(turn, FileTransfer::Attempt::Repeatable);
    if (turn.IsAdvertisement) {
        p_.View.showAdvertisement(state.gAppPath + name);
        ++state.gClippingsDownloaded;
    } else if (!ok && !state.gStopRequested) {
        ok = retry(turn);
    }
    // A day without its advertisement is a whole day.
    if (!ok && !state.gStopRequested && !turn.IsAdvertisement) {
        ++state.Run.Outcome.FilesFailed;
        DaySummary& day = state.Run.Summary.Days.back();
        day.FailedFiles.push_back({day.Day, name, turn.Entry.Change, state.Run.LastFailure});
    }
    p_.Books.enter(turn.Entry, ok);
    p_.Log.WriteLog(statusLine(ok));
    p_.Browser.refreshDuringRun();
    p_.Loop.WaitForEvents(0);  // who has stopped the run is heard before the next file
    if (ok) p_.Books.printWhenNew(name, turn.Start);
    return ok;
}

bool FileTurns::attempt(const Turn& turn, FileTransfer::Attempt attempt) {
    const Session& state = p_.State;
    p_.Progress.attemptBegins();
    const bool ok = p_.Transfer.adownloadFile(
        turn.Entry, turn.IsAdvertisement ? state.gAppPath : state.Run.Day.gDayFolder, attempt);
    if (!ok) p_.Progress.attemptFailed();
    return ok;
}

bool FileTurns::retry(const Turn& turn) {
    const Session& state = p_.State;
    using Attempt = FileTransfer::Attempt;
    const std::int16_t most = state.Run.Setup.RetryOnFailure;
    bool ok = false;
    for (int r = 1; !ok && (r == 1 || r <= most) && !state.gStopRequested; ++r) {
        const std::string attemptOf = std::to_string(r) + "/" + std::to_string(most) + " " + turn.Entry.FileName;
        p_.Progress.StatusBar(p_.Progress.clippingCounter() + " Retrying " + attemptOf + " (" +
                              std::to_string(turn.Start) + ")");
        p_.Log.WriteLog(counter(turn.Index) + "  Retrying " + attemptOf + " (Starting from " +
                        std::to_string(turn.Start) + " bytes)");
        retryPause(state, p_.Loop, p_.Time);
        p_.Loop.DoEvents();
        ok = !state.gStopRequested && attempt(turn, r < most ? Attempt::Repeatable : Attempt::Last);
        p_.Log.WriteLog(statusLine(ok));
        p_.Loop.DoEvents();
    }
    return ok;
}

// What cannot be looked at gives way to what comes.
std::int64_t FileTurns::lengthOf(const std::string& path) const {
    return trap(p_.Log, "StartDownload()", std::int64_t{0}, [&] { return p_.Disk.FileSize(path).value_or(0); });
}

std::string FileTurns::counter(std::int32_t index) const {
    return "(" + std::to_string(index) + "/" + std::to_string(p_.State.Downloads.gDownloadList.size()) + ")";
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "app/run/FileTurns.h"

#include <algorithm>

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
    if (entry.IsHere) return passOver(entry);
    const std::string name = entry.FileName;
    const Turn turn{index, entry, lengthOf(state.Run.Day.gDayFolder + name), equalNoCase(name, advertisementFile)};
    p_.Log.WriteLog(counter(index) + "  Downloading " + name + " (Starting from " + std::to_string(turn.Start) +
                    " bytes)");
    bool ok = attempt(turn, FileTransfer::Attempt::Repeatable);
    if (turn.IsAdvertisement) {
        p_.View.showAdvertisement(state.gAppPath + name);
        ++state.gClippingsDownloaded;
    } else if (!ok && mayTryAgain()) {
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
    p_.Browser.refreshDuringRun(state.Run.Day.gCurrentDate);
    p_.Loop.WaitForEvents(0);  // who has stopped the run is heard before the next file
    if (ok) p_.Books.printWhenNew(name, turn.Start);
    return ok;
}

// In the progress it counts like one that has come: of a clipping the last file, else the advertisement.
bool FileTurns::passOver(const DownloadEntry& entry) {
    if (equalNoCase(entry.FileName, advertisementFile)) ++p_.State.gClippingsDownloaded;
    p_.Progress.fileIsHere();
    p_.Books.enter(entry, true);
    return true;
}

bool FileTurns::attempt(const Turn& turn, FileTransfer::Attempt attempt) {
    const Session& state = p_.State;
    p_.Progress.attemptBegins();
    const bool ok = p_.Transfer.adownloadFile(
        turn.Entry, turn.IsAdvertisement ? state.gAppPath : state.Run.Day.gDayFolder, attempt);
    if (!ok) p_.Progress.attemptFailed();
    return ok;
}

// Over HTTP somebody was asked to make room on a full disk, and would not. Over FTP nobody is asked.
bool FileTurns::mayTryAgain() const {
    const RunContext& run = p_.State.Run;
    const bool isRefusedRoom = run.Setup.UseHTTP && run.LastFailure.Why == Cause::DiskFull;
    return !p_.State.gStopRequested && !isRefusedRoom;
}

bool FileTurns::retry(const Turn& turn) {
    const Session& state = p_.State;
    using Attempt = FileTransfer::Attempt;
    const std::int16_t wanted = state.Run.Setup.RetryOnFailure;
    const int most = std::max<int>(wanted, 1);
    bool ok = false;
    for (int r = 1; !ok && r <= most && mayTryAgain(); ++r) {
        const std::string which = std::to_string(r) + "/";
        p_.Progress.StatusBar(p_.Progress.clippingCounter() + " Retrying " + which + std::to_string(most) + " " +
                              turn.Entry.FileName + " (" + std::to_string(turn.Start) + ")");
        // The log names the setting as it is, also where it is no number of attempts.
        p_.Log.WriteLog(counter(turn.Index) + "  Retrying " + which + std::to_string(wanted) + " " +
                        turn.Entry.FileName + " (Starting from " + std::to_string(turn.Start) + " bytes)");
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

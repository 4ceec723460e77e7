// SPDX-License-Identifier: MIT
#include "app/run/ClippingBooks.h"

#include "app/Session.h"
#include "app/progress/TransferProgress.h"
#include "base/text.h"
#include "platform/Files.h"
#include "service/FailureLog.h"
#include "store/Articles.h"
#include "store/modGlobal.h"
#include "ui/News.h"

namespace vell {

namespace {
constexpr std::chrono::seconds markInterval{10};
}

void ClippingBooks::open() {
    pdfOk_ = false;
    textOk_ = false;
    arrived_.clear();
    new_.clear();
    markedAt_ = p_.Time.Steady();
}

void ClippingBooks::enter(const DownloadEntry& entry, bool ok) {
    const std::string& name = entry.FileName;
    const std::string_view ending = Right(name, 3);
    if (ending == "PDF") pdfOk_ = ok;
    if (ending == "TXT") textOk_ = ok;
    if (ending != ".MT") return;
    if (ok && textOk_ && pdfOk_) {
        arrived_.push_back({Replace(name, ".MT", ".PDF"), entry.Change});
        if (entry.IsNew) {
            new_.push_back(arrived_.back().PdfName);
            p_.Brought.clippingArrived(p_.State.Run.Day.gDayFolder + arrived_.back().PdfName);
        }
        ++p_.State.gClippingsDownloaded;
    }
    pdfOk_ = false;
    textOk_ = false;
    if (p_.Time.Steady() - markedAt_ >= markInterval) markArrived();
}

void ClippingBooks::close() {
    markArrived();
    const int lost = static_cast<int>(arrived_.size());
    p_.State.gClippingsDownloaded -= lost;
    RunContext& run = p_.State.Run;
    run.Outcome.FilesFailed += lost;
    for (const ArrivedClipping& clipping : arrived_) {
        DaySummary& day = run.Summary.Days.back();
        day.FailedFiles.push_back({day.Day, clipping.PdfName, clipping.Change, run.LastFailure});
    }
    arrived_.clear();
    new_.clear();
}

// An index that cannot be written must not keep the next clippings from coming: it is tried again the next time.
void ClippingBooks::markArrived() {
    markedAt_ = p_.Time.Steady();
    if (arrived_.empty()) return;
    FailureLog log(p_.Log, p_.Progress);
    trapStep(log, "StartDownload()", [&] {
        const std::string& folder = p_.State.Run.Day.gDayFolder;
        p_.Disk.Flush(folder);
        index_.markDownloaded(folder, arrived_);
        arrived_.clear();
        auto& told = p_.State.Run.Summary.Days.back().New;
        told.insert(told.end(), new_.begin(), new_.end());
        new_.clear();
    });
}

void ClippingBooks::printWhenNew(const std::string& name, std::int64_t before) {
    const Session& state = p_.State;
    if (!state.Run.Setup.PrintOnDownload || InStr(Upper(name), ".PDF") == 0) return;
    const std::string path = state.Run.Day.gDayFolder + name;
    const auto now = trap(p_.Log, "StartDownload()", before, [&] { return p_.Disk.FileSize(path).value_or(0); });
    if (now == before) return;
    say("Printing " + name);
    if (!p_.Article.PrintArticle(path))
        say("FAILED Printing " + name);
    else if (!p_.Store.MarkFilePrinted(path))
        p_.Log.WriteLog("FAILED Marking as Printed " + name);
}

void ClippingBooks::say(const std::string& text) {
    p_.Log.WriteLog(text);
    p_.Progress.StatusBar(text);
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "app/run/ClippingBooks.h"

#include "app/Session.h"
#include "app/run/TransferProgress.h"
#include "base/text.h"
#include "platform/Files.h"
#include "store/Articles.h"
#include "store/modGlobal.h"

namespace vell {

void ClippingBooks::open() {
    pdfOk_ = false;
    textOk_ = false;
}

void ClippingBooks::enter(const std::string& name, bool ok) {
    const std::string_view ending = Right(name, 3);
    if (ending == "PDF") pdfOk_ = ok;
    if (ending == "TXT") textOk_ = ok;
    if (ending != ".MT") return;
    if (ok && textOk_ && pdfOk_) markDownloaded(Replace(name, ".MT", ".PDF"));
    pdfOk_ = false;
    textOk_ = false;
}

void ClippingBooks::markDownloaded(const std::string& pdfName) {
    try {
        const DownloadEntry* entry = p_.State.currentEntry();
        const std::string change = entry != nullptr ? entry->Change : std::string();
        p_.State.gClippingsDownloaded += index_.markDownloaded(p_.State.Run.Day.gDayFolder, pdfName, change);
    } catch (...) {
        // An index that cannot be written must not keep the next clippings from coming.
        p_.Log.LogError(currentError(), "StartDownload()");
        ++p_.State.Run.Outcome.FilesFailed;
    }
}

void ClippingBooks::printWhenNew(const std::string& name, std::int64_t before) {
    const Session& state = p_.State;
    if (!state.Setup.PrintOnDownload || InStr(Upper(name), ".PDF") == 0) return;
    const std::string path = state.Run.Day.gDayFolder + name;
    if (p_.Disk.FileSize(path).value_or(0) == before) return;
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

// SPDX-License-Identifier: MIT
#include "ui/ClippingOpening.h"

#include <utility>
#include <vector>

#include "store/Articles.h"
#include "store/modGlobal.h"
#include "ui/ClippingsBrowser.h"

namespace vell {

namespace {
constexpr std::size_t openedAtOnce = 20;
}

ClippingOpening::ClippingOpening(ClippingsBrowser& browser, modGlobal& store, Articles& articles, EventLog& log,
                                 StatusText status, StatusText message)
    : browser_(browser),
      store_(store),
      articles_(articles),
      log_(log),
      status_(std::move(status)),
      message_(std::move(message)) {}

void ClippingOpening::grdLocalFiles_DblClick(std::size_t row) {
    trapStep(log_, "grdLocalFiles_DblClick()", [&] {
        const std::string path = browser_.rows().at(row).path();
        if (store_.IsFileOpened(path))
            status_("This clipping has been opened already. Press Enter to open it again.");
        else
            open(path);
    });
}

void ClippingOpening::openRow(std::size_t row) {
    trapStep(log_, "grdLocalFiles_KeyPress()", [&] { open(browser_.rows().at(row).path()); });
}

void ClippingOpening::openNext20() {
    trapStep(log_, "mnuOpenNext_Click()", [&] {
        std::vector<std::string> next;
        for (const ClippingRow& row : browser_.rows())
            if (!row.Opened && next.size() < openedAtOnce) next.push_back(row.path());
        if (next.empty()) status_("All clippings of the list have been opened already.");
        for (const std::string& path : next)
            if (open(path) == Outcome::Failed) return;
    });
}

void ClippingOpening::openDayFolder() {
    trapStep(log_, "mnuOpenFolder_Click()", [&] {
        if (const auto day = browser_.chosenDay()) articles_.ShellExec(store_.folderOfDay(*day), "");
    });
}

void ClippingOpening::openHelp() {
    articles_.ShellExec("Vellhelp.htm", "");
}

void ClippingOpening::openAddress(const std::string& address) {
    articles_.ShellExec(address, "");
}

ClippingOpening::Outcome ClippingOpening::open(const std::string& path) {
    if (!articles_.ShellExec(path, "")) return Outcome::Failed;
    const bool isMarked = store_.MarkFileOpened(path);
    if (!isMarked) message_("Opened, but it could not be marked as opened. The log says why.");
    browser_.refreshMarks(path);
    return isMarked ? Outcome::Done : Outcome::Unmarked;
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "ui/ClippingOpening.h"

#include <utility>
#include <vector>

#include "store/Articles.h"
#include "store/modGlobal.h"
#include "ui/ClippingsBrowser.h"
#include "ui/numberedText.h"
#include "ui/wantsMany.h"

namespace vell {

namespace {
constexpr std::size_t openedAtOnce = 20;
}

ClippingOpening::ClippingOpening(const Parts& parts, StatusText status, StatusText message)
    : p_(parts), status_(std::move(status)), message_(std::move(message)) {}

void ClippingOpening::grdLocalFiles_DblClick(std::size_t row) {
    trapStep(p_.Log, "grdLocalFiles_DblClick()", [&] {
        const std::string path = p_.Browser.rows().at(row).path();
        if (p_.Store.IsFileOpened(path))
            status_("This clipping has been opened already. Press Enter to open it again.");
        else
            open(path);
    });
}

void ClippingOpening::openNext20() {
    trapStep(p_.Log, "mnuOpenNext_Click()", [&] {
        std::vector<std::string> next;
        for (const ClippingRow& row : p_.Browser.rows())
            if (!row.Opened && next.size() < openedAtOnce) next.push_back(row.path());
        if (next.empty()) status_("All clippings of the list have been opened already.");
        openAll(next);
    });
}

void ClippingOpening::openRows(std::span<const std::size_t> rows) {
    trapStep(p_.Log, "grdLocalFiles_KeyPress()", [&] {
        const std::vector<std::string> paths = p_.Browser.pathsOf(rows);
        if (wantsMany(p_.Boxes, paths.size(),
                      numberedText(p_.Words, "Open %d clipping?", "Open %d clippings?", paths.size())))
            openAll(paths);
    });
}

void ClippingOpening::openAll(const std::vector<std::string>& paths) {
    for (const std::string& path : paths)
        if (open(path) == Outcome::Failed) return;
}

bool ClippingOpening::markRows(std::span<const std::size_t> rows, bool opened) {
    return trap(p_.Log, "mnuMark_Click()", false, [&] {
        const std::vector<std::string> paths = p_.Browser.pathsOf(rows);
        const bool isMarked = p_.Store.markOpened(paths, opened);
        if (!isMarked) message_(p_.Words.translate("The marks could not be written. The log says why."));
        p_.Browser.refreshMarks(paths);
        return isMarked;
    });
}

void ClippingOpening::openDayFolder() {
    trapStep(p_.Log, "mnuOpenFolder_Click()", [&] {
        if (const auto day = p_.Browser.chosenDay()) p_.Article.ShellExec(p_.Store.folderOfDay(*day), "");
    });
}

void ClippingOpening::openHelp() {
    // Translators: the file of the help page in this language, beside the English one.
    p_.Article.ShellExec(p_.Words.translate("Vellhelp.htm"), "");
}

void ClippingOpening::openAddress(const std::string& address) {
    p_.Article.ShellExec(address, "");
}

ClippingOpening::Outcome ClippingOpening::open(const std::string& path) {
    if (!p_.Article.ShellExec(path, "")) return Outcome::Failed;
    const bool isMarked = p_.Store.MarkFileOpened(path);
    if (!isMarked) message_("Opened, but it could not be marked as opened. The log says why.");
    p_.Browser.refreshMarks(path);
    return isMarked ? Outcome::Done : Outcome::Unmarked;
}

}  // namespace vell

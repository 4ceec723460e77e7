// SPDX-License-Identifier: MIT
#include "ui/dialogs/frmPrint.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/ScopedFlag.h"
#include "base/text.h"
#include "config/Settings.h"
#include "platform/EventLoop.h"
#include "platform/MessageBoxes.h"
#include "platform/Printers.h"
#include "store/Articles.h"
#include "ui/ClippingsBrowser.h"

namespace vell {

namespace {

using Names = std::vector<std::string>;

void moveOne(Names& from, std::size_t entry, Names& to) {
    if (entry >= from.size()) return;
    const auto at = from.begin() + static_cast<std::ptrdiff_t>(entry);
    to.push_back(std::move(*at));
    from.erase(at);
}

void moveAll(Names& from, Names& to) {
    std::ranges::move(from, std::back_inserter(to));
    from.clear();
}

std::string textOf(const PrinterSettings& printer) {
    return printer.DeviceName + ",PaperSize:" + std::to_string(printer.PaperSize) +
           ",Orientation:" + std::to_string(printer.Orientation) +
           ",PrintQuality:" + std::to_string(printer.PrintQuality) + ",Zoom:" + std::to_string(printer.Zoom);
}

}  // namespace

frmPrint::frmPrint(const PrintParts& parts, PrintBatch& batch, Names categories)
    : p_(parts), batch_(batch), all_(std::move(categories)) {
    std::erase_if(all_, [](const std::string& category) { return Trim(category).empty(); });
}

void frmPrint::cmdAdd_Click(std::size_t entry) {
    moveOne(all_, entry, chosen_);
}
void frmPrint::cmdAddAll_Click() {
    moveAll(all_, chosen_);
}
void frmPrint::cmdRemove_Click(std::size_t entry) {
    moveOne(chosen_, entry, all_);
}
void frmPrint::cmdRemoveAll_Click() {
    moveAll(chosen_, all_);
}

bool frmPrint::cmdPrint_Click(const StatusText& status) {
    return trap(p_.Log, "cmdPrint_Click()", false, [&] {
        if (batch_.IsUnderWay) return false;
        if (chosen_.empty()) {
            p_.Boxes.Show("No categories selected. Please selected categories to print.", "Print", Buttons::Ok,
                          BoxIcon::None);
            return false;
        }
        batch_.StopRequested = false;
        const ScopedFlag printing(batch_.IsUnderWay);
        return print(documents(), status);
    });
}

void frmPrint::cmdPrinterSettings_Click() {
    trapStep(p_.Log, "cmdPrinterSettings_Click()", [&] {
        std::string reason;
        const auto printer = p_.Printer.DefaultPrinter(reason);
        if (printer) p_.Boxes.Show(textOf(*printer), programCaption, Buttons::Ok, BoxIcon::None);
        if (!printer || !p_.Printer.ShowProperties(printer->DeviceName, reason))
            p_.Boxes.Show(reason, programCaption, Buttons::Ok, BoxIcon::Warning);
    });
}

Names frmPrint::documents() const {
    Names paths;
    for (const ClippingRow& row : p_.Browser.rows())
        if (isAmong(chosen_, row.File->Category)) paths.push_back(row.path());
    return paths;
}

bool frmPrint::print(const Names& documents, const StatusText& status) {
    const Articles::Batch batch(p_.Article);
    bool all = true;
    for (std::size_t k = 0; k < documents.size() && !batch_.StopRequested; ++k) {
        const std::string& path = documents[k];
        if (InStr(Upper(path), ".PDF") == 0) continue;
        all = p_.Article.PrintArticle(path) && all;
        status("Printing " + std::to_string(k + 1) + "/" + std::to_string(documents.size()) + " " +
               std::string(Mid(path, InStrRev(path, "\\") + 1)));
        printPause(p_.Loop, p_.Setup);
    }
    status("");
    return all && !batch_.StopRequested;
}

void printPause(EventLoop& loop, const Settings& settings) {
    constexpr int millisecondsPerSecond = 1000;
    loop.DoEvents();
    loop.Sleep(settings.PrintAllDelay * millisecondsPerSecond);
    loop.DoEvents();
}

}  // namespace vell

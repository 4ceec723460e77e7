// SPDX-License-Identifier: MIT
#include "ui/dialogs/frmPrint.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

#include "base/ScopedFlag.h"
#include "base/text.h"
#include "config/Settings.h"
#include "platform/EventLoop.h"
#include "platform/MessageBoxes.h"
#include "platform/Printers.h"
#include "platform/Translations.h"
#include "store/Articles.h"
#include "ui/ClippingsBrowser.h"
#include "ui/list/RowOrder.h"

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
    : p_(parts), batch_(batch), whole_(std::move(categories)) {
    offer(whole_);
}

void frmPrint::splitCategories(bool split) {
    split_ = split;
    Names names = whole_;
    if (split) {
        names.clear();
        for (const ClippingRow& row : p_.Browser.rows())
            for (std::string& name : categoriesOf(*row.File))
                if (!isAmong(names, name)) names.push_back(std::move(name));
    }
    offer(std::move(names));
}

void frmPrint::offer(Names categories) {
    chosen_.clear();
    all_ = std::move(categories);
    std::erase_if(all_, [](const std::string& category) { return Trim(category).empty(); });
    std::ranges::stable_sort(all_, {}, lookUpKey);
    counts_.clear();
    for (const ClippingRow& row : p_.Browser.rows()) {
        std::set<std::string> its;
        for (const std::string& name : categoriesIn(*row.File))
            its.insert(Upper(name));
        for (const std::string& name : its)
            ++counts_[name];
    }
}

Names frmPrint::categoriesIn(const CFtpFile& clipping) const {
    return split_ ? categoriesOf(clipping) : Names{clipping.Category};
}

std::string frmPrint::text(const std::string& category) const {
    const auto found = counts_.find(Upper(category));
    return category + " (" + std::to_string(found == counts_.end() ? 0 : found->second) + ")";
}

std::string frmPrint::outcome() const {
    const std::size_t count = documents().size();
    return Replace(p_.Words.translate("Prints %d clipping.", "Prints %d clippings.", count), "%d",
                   std::to_string(count));
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
    const auto isChosen = [this](const std::string& category) { return isAmong(chosen_, category); };
    for (const ClippingRow& row : p_.Browser.rows())
        if (std::ranges::any_of(categoriesIn(*row.File), isChosen)) paths.push_back(row.path());
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

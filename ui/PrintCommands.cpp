// SPDX-License-Identifier: MIT
#include "ui/PrintCommands.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/ScopedFlag.h"
#include "base/text.h"
#include "platform/EventLoop.h"
#include "platform/MessageBoxes.h"
#include "platform/Translations.h"
#include "store/Articles.h"
#include "store/modGlobal.h"
#include "ui/ClippingsBrowser.h"
#include "ui/numberedText.h"
#include "ui/wantsMany.h"

namespace vell {

namespace {
constexpr const char* notMarked = "Printed, but it could not be marked as printed. The log says why.";
}

PrintCommands::PrintCommands(const PrintParts& parts, StatusText status, StatusText message)
    : p_(parts), status_(std::move(status)), message_(std::move(message)) {}

bool PrintCommands::asBatch(std::string_view procedure, const std::function<bool()>& work) {
    return trap(p_.Log, procedure, false, [&] {
        if (batch_.IsUnderWay) return false;
        batch_.StopRequested = false;
        const ScopedFlag printing(batch_.IsUnderWay);
        return work();
    });
}

bool PrintCommands::mnuPrintAll_Click() {
    return asBatch("mnuPrintAll_Click()", [&] {
        const std::string question = p_.Browser.showsAllDays()
                                         ? p_.Words.translate("Do you want to print all documents found in all days?")
                                         : "Do you want to print all documents for selected date?";
        if (p_.Boxes.ShowWithDetail(question, whatIsListed(), "Print All", Buttons::YesNo, BoxIcon::Question) !=
            Answer::Yes)
            return false;
        // The list may change in the pauses: what was asked for is what stands in it now.
        return print(std::vector(p_.Browser.rows()));
    });
}

std::string PrintCommands::whatIsListed() const {
    const auto listed = p_.Browser.rows().size();
    const auto all = p_.Browser.filtered().size();
    const auto hidden = all - std::min(all, listed);
    std::string text = numberedText(p_.Words, "%d document will be printed.", "%d documents will be printed.", listed);
    if (hidden > 0 && p_.Browser.showsAllDays())
        text += " " + numberedText(p_.Words, "%d other does not pass the filter and is left out.",
                                   "%d others do not pass the filter and are left out.", hidden);
    else if (hidden > 0)
        text += " " + numberedText(p_.Words, "%d other of the day is not listed and is left out.",
                                   "%d others of the day are not listed and are left out.", hidden);
    return text;
}

bool PrintCommands::printRows(std::span<const std::size_t> rows) {
    if (rows.size() == 1) return mnuPrintSel_Click(rows.front());
    return asBatch("mnuPrintSel_Click()", [&] {
        std::vector<ClippingRow> wanted;
        for (const std::size_t row : rows)
            wanted.push_back(p_.Browser.rows().at(row));
        return wantsMany(p_.Boxes, wanted.size(),
                         numberedText(p_.Words, "Print %d clipping?", "Print %d clippings?", wanted.size())) &&
               print(wanted);
    });
}

bool PrintCommands::print(const std::vector<ClippingRow>& rows) {
    const Articles::Batch batch(p_.Article);
    std::size_t printed = 0, marked = 0;
    for (std::size_t i = 0; i < rows.size() && !batch_.StopRequested; ++i) {
        if (!p_.Article.PrintArticle(rows[i].path())) continue;
        ++printed;
        p_.Loop.DoEvents();
        status_("Printing " + std::to_string(i + 1) + "/" + std::to_string(rows.size()) + " " +
                rows[i].File->Description);
        if (p_.Store.MarkFilePrinted(rows[i].path())) ++marked;
        p_.Browser.refreshMarks(rows[i].path());
        printPause(p_.Loop, p_.Setup);
    }
    status_("");
    if (marked < printed) message_(notMarked);
    return marked == rows.size();
}

bool PrintCommands::mnuPrintSel_Click(std::size_t row) {
    return trap(p_.Log, "mnuPrintSel_Click()", false, [&] {
        const std::string path = p_.Browser.rows().at(row).path();
        if (!p_.Article.PrintArticle(path)) return false;
        const bool isMarked = p_.Store.MarkFilePrinted(path);
        if (!isMarked) message_(notMarked);
        p_.Browser.refreshMarks(path);
        return isMarked;
    });
}

frmPrint PrintCommands::mnuPrintByCategory_Click() {
    std::vector<std::string> categories;
    for (const ClippingRow& row : p_.Browser.rows()) {
        const std::string_view category = Trim(row.File->Category);
        if (!category.empty() && std::ranges::find(categories, category) == categories.end())
            categories.emplace_back(category);
    }
    return {p_, batch_, std::move(categories)};
}

}  // namespace vell

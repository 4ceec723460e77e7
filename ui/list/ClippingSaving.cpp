// SPDX-License-Identifier: MIT
#include "ui/list/ClippingSaving.h"

#include <algorithm>
#include <set>
#include <utility>

#include "base/text.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "ui/numberedText.h"

namespace vell {

namespace {

// "NAME.PDF", then "NAME (2).PDF": clippings of several days may have one name.
std::string uniqueName(const std::string& name, std::set<std::string>& used) {
    const std::size_t dot = std::min(name.rfind('.'), name.size());
    std::string unique = name;
    for (int number = 2; !used.insert(Upper(unique)).second; ++number)
        unique = name.substr(0, dot) + " (" + std::to_string(number) + ")" + name.substr(dot);
    return unique;
}

std::string nameOf(const std::string& clipping) {
    return std::string(Mid(clipping, InStrRev(clipping, "\\") + 1));
}

}  // namespace

ClippingSaving::ClippingSaving(const Parts& parts, StatusText status, StatusText message)
    : p_(parts), status_(std::move(status)), message_(std::move(message)) {}

std::string ClippingSaving::proposedName(const std::string& clipping) {
    return utf8FromCodePage(nameOf(clipping));
}

void ClippingSaving::saveAs(const std::string& clipping, const std::string& place) {
    save({{clipping, place}});
}

void ClippingSaving::saveAll(const std::vector<std::string>& clippings, const std::string& folder) {
    std::vector<Copy> copies;
    copies.reserve(clippings.size());
    std::set<std::string> used;
    for (const std::string& clipping : clippings)
        copies.push_back({clipping, folder + '/' + utf8FromCodePage(uniqueName(nameOf(clipping), used))});
    const auto isTaken = [this](const Copy& copy) { return p_.Disk.IsTaken(copy.Place); };
    const auto taken = static_cast<std::size_t>(std::ranges::count_if(copies, isTaken));
    if (taken > 0 && p_.Boxes.Show(numberedText(p_.Words, "%d of these files is there already. Replace it?",
                                                "%d of these files are there already. Replace them?", taken),
                                   programCaption, Buttons::NoYes, BoxIcon::Question) != Answer::Yes)
        std::erase_if(copies, isTaken);
    save(copies);
}

void ClippingSaving::save(const std::vector<Copy>& copies) {
    std::size_t saved = 0;
    std::string reason;
    for (const Copy& copy : copies) {
        try {
            p_.Disk.CopyOut(copy.Clipping, copy.Place);
            ++saved;
        } catch (...) {
            const RunTimeError error = currentError();
            p_.Log.LogError(error, "mnuSaveAs_Click()");
            if (reason.empty()) reason = error.Description;
        }
        p_.Loop.DoEvents();
    }
    status_(numberedText(p_.Words, "%d clipping saved.", "%d clippings saved.", saved));
    const std::size_t failed = copies.size() - saved;
    if (failed > 0)
        message_(numberedText(p_.Words, "%d clipping could not be saved.", "%d clippings could not be saved.", failed) +
                 " " + reason);
}

}  // namespace vell

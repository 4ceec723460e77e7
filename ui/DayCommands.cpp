// SPDX-License-Identifier: MIT
#include "ui/DayCommands.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <utility>

#include "platform/MessageBoxes.h"
#include "platform/Translations.h"
#include "store/modGlobal.h"
#include "ui/ClippingsBrowser.h"
#include "ui/days/DayCounts.h"
#include "ui/numberedText.h"

namespace vell {

namespace {

// One day by its name, several by their number.
std::string namesOf(const std::vector<Date>& days, const Translations& words) {
    return days.size() == 1 ? days.front().dayName() : numberedText(words, "%d day", "%d days", days.size());
}

}  // namespace

DayCommands::DayCommands(const Parts& parts, std::function<bool()> isBusy) : p_(parts), isBusy_(std::move(isBusy)) {}

void DayCommands::chooseFirst(const std::optional<Date>& day) {
    if (day && p_.Browser.chooseDay(*day)) return;
    if (const auto& days = p_.Browser.days(); !days.empty() && p_.Browser.chooseDay(Date(days.front()))) return;
    p_.Browser.PopulateLocalFilesGrid();
    p_.Browser.loadAlert();
}

void DayCommands::reload() {
    p_.Browser.PopulateDateCombo();
    p_.Counts.recountAll();
    chooseFirst(p_.Browser.chosenDay());
}

void DayCommands::chooseNewer() {
    step(-1);
}

void DayCommands::chooseOlder() {
    step(1);
}

void DayCommands::step(int places) {
    const auto& days = p_.Browser.days();
    const auto chosen = std::ranges::find(days, p_.Browser.chosenDay());
    const auto target = chosen == days.end() ? 0 : chosen - days.begin() + places;
    if (target < 0 || target >= std::ssize(days)) return;
    const Date day = days[static_cast<std::size_t>(target)];
    p_.Browser.chooseDay(day);
}

// What is deleted is what was asked about: a day that has other clippings by now stays.
void DayCommands::mnuDeleteDay_Click(const std::vector<Date>& days) {
    trapStep(p_.Log, "mnuDeleteDay_Click()", [&] {
        if (days.empty()) return;
        std::vector<std::size_t> counts;
        counts.reserve(days.size());
        for (const Date& day : days)
            counts.push_back(p_.Counts.countNow(day).Clippings);
        if (!wantsToDelete(days, std::accumulate(counts.begin(), counts.end(), std::size_t{0}))) return;
        std::vector<Date> kept;
        for (std::size_t i = 0; i < days.size(); ++i) {
            if (isBusy_() || p_.Counts.countNow(days[i]).Clippings != counts[i]) {
                kept.push_back(days[i]);
                continue;
            }
            p_.Store.DeleteContent(days[i]);
            if (p_.Store.PathExists(p_.Store.folderOfDay(days[i]))) break;  // and nobody wants it tried again
        }
        if (!kept.empty()) tellKept(kept);
        reload();
    });
}

bool DayCommands::wantsToDelete(const std::vector<Date>& days, std::size_t clippings) const {
    // Translators: a day or "3 days", with "41 clippings".
    const std::string question =
        filledText(p_.Words.translate("Delete %1$s with %2$s?"),
                   {namesOf(days, p_.Words), numberedText(p_.Words, "%d clipping", "%d clippings", clippings)});
    return p_.Boxes.Show(question, "Delete Day", Buttons::NoYes, BoxIcon::Question) == Answer::Yes;
}

void DayCommands::tellKept(const std::vector<Date>& days) const {
    const std::string text = filledText(p_.Words.translate("A download has been at work meanwhile. Not deleted: %1$s"),
                                        {namesOf(days, p_.Words)});
    p_.Boxes.Show(text, programCaption, Buttons::Ok, BoxIcon::None);
}

}  // namespace vell

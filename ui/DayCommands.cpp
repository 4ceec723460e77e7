// SPDX-License-Identifier: MIT
#include "ui/DayCommands.h"

#include <algorithm>
#include <utility>

#include "platform/MessageBoxes.h"
#include "store/modGlobal.h"
#include "ui/ClippingsBrowser.h"

namespace vell {

DayCommands::DayCommands(ClippingsBrowser& browser, modGlobal& store, MessageBoxes& boxes, EventLog& log,
                         std::function<bool()> isBusy)
    : browser_(browser), store_(store), boxes_(boxes), log_(log), isBusy_(std::move(isBusy)) {}

bool DayCommands::canDelete() const {
    return browser_.chosenDay() && !isBusy_();
}

void DayCommands::chooseFirst(const std::optional<Date>& day) {
    if (day && browser_.chooseDay(*day)) return;
    if (const auto& days = browser_.days(); !days.empty() && browser_.chooseDay(Date(days.front()))) return;
    browser_.PopulateLocalFilesGrid();
    browser_.loadAlert();
}

void DayCommands::reload() {
    browser_.PopulateDateCombo();
    chooseFirst(browser_.chosenDay());
}

void DayCommands::chooseNewer() {
    step(-1);
}

void DayCommands::chooseOlder() {
    step(1);
}

void DayCommands::step(int places) {
    const auto& days = browser_.days();
    const auto chosen = std::ranges::find(days, browser_.chosenDay());
    const auto target = chosen == days.end() ? 0 : chosen - days.begin() + places;
    if (target < 0 || target >= std::ssize(days)) return;
    const Date day = days[static_cast<std::size_t>(target)];
    browser_.chooseDay(day);
}

void DayCommands::mnuDeleteDay_Click() {
    trapStep(log_, "mnuDeleteDay_Click()", [&] {
        const std::optional<Date> day = browser_.chosenDay();
        if (!day) return;
        if (boxes_.Show("Do you want to delete all clippings of " + day->dayName() + "?", "Delete Day", Buttons::YesNo,
                        BoxIcon::Question) != Answer::Yes)
            return;
        if (!canDelete()) {  // the schedule has begun something while the question was open
            boxes_.Show("A download has begun meanwhile. " + day->dayName() + " was not deleted.", programCaption,
                        Buttons::Ok, BoxIcon::None);
            return;
        }
        store_.DeleteContent(*day);
        reload();
    });
}

}  // namespace vell

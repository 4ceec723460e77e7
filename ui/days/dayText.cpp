// SPDX-License-Identifier: MIT
#include "ui/days/dayText.h"

#include "config/ScheduleEntry.h"
#include "platform/Translations.h"
#include "ui/numberedText.h"

namespace vell {

std::string dayText(const Date& day, const std::optional<DayCount>& count, const Translations& words) {
    const auto weekday = static_cast<std::size_t>(day.weekday()) - 1;
    std::string text = words.translate(scheduleDays.at(weekday)) + " " + day.dayName();
    if (!count) return text;
    text += " (" + std::to_string(count->Clippings);
    if (count->Unread > 0) text += ", " + numberedText(words, "%d unread", "%d unread", count->Unread);
    return text + ")";
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "base/errors.h"
#include "config/ScheduleEntry.h"

namespace vell {

class modIni;
struct Settings;

// The entry that a stored text such as "Mon Wed 15:30" stands for. Day names count in any case; whatever is no day
// name is the time, the last one wins, and an empty piece (two blanks in a row, one at the end) is such a time too.
[[nodiscard]] ScheduleEntry scheduleEntryOf(std::string_view stored);
// The text under which an entry is stored.
[[nodiscard]] std::string storedTextOf(const ScheduleEntry& entry);

// The complaint about an entry as somebody types it, such as "wed mon 07:30": days if any, in any order, and one time.
// Empty when there is none.
[[nodiscard]] std::string mistakeInTyped(std::string_view entry);
// The entry that such a text stands for; one without days is active on all of them.
[[nodiscard]] ScheduleEntry scheduleEntryTyped(std::string_view entry);

// True for five characters "HH:MM" between blanks, digits only. The hour 24 is accepted.
[[nodiscard]] bool IsTimeValid(std::string_view text);

// Fills ScheduleList anew from the settings file: Schedule1, Schedule2 and so on up to the first number that is
// missing.
void GetSchedule(Settings& settings, const modIni& ini, ErrorLog& log);

}  // namespace vell

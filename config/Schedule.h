// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/errors.h"
#include "config/ScheduleEntry.h"

namespace vell {

class modIni;
struct Settings;

// Where entries are stored, counted from 1.
inline constexpr std::string_view scheduleSection = "Schedule";
[[nodiscard]] inline std::string scheduleKey(std::size_t number) {
    return "Schedule" + std::to_string(number);
}

// The entry that a stored text such as "Mon Wed 15:30" stands for. Day names count in any case; whatever is no day
// name is the time, the last one wins, and an empty piece (two blanks in a row, one at the end) is such a time too.
[[nodiscard]] ScheduleEntry scheduleEntryOf(std::string_view stored);
// The text under which an entry is stored.
[[nodiscard]] std::string storedTextOf(const ScheduleEntry& entry);

// The complaint about an entry as somebody types it, such as "wed mon 07:30": days if any, in any order, and one time,
// which may lack the 0 in front.
// Empty when there is none.
[[nodiscard]] std::string mistakeInTyped(std::string_view entry);
// The entry that such a text stands for; one without days is active on all of them.
[[nodiscard]] ScheduleEntry scheduleEntryTyped(std::string_view entry);

// What a schedule becomes that two have changed at the same time, both from `before`: the entries of `ours`, without
// those that `theirs` has lost and with those that it has gained.
[[nodiscard]] std::vector<ScheduleEntry> mergedSchedule(const std::vector<ScheduleEntry>& before,
                                                        const std::vector<ScheduleEntry>& theirs,
                                                        std::vector<ScheduleEntry> ours);

// A time between blanks as its check wants it: an hour of one digit gets a 0 in front. Whatever else stands there
// stays.
[[nodiscard]] std::string completedTime(std::string_view text);

// True for five characters "HH:MM" between blanks, digits only. The hour 24 is accepted.
[[nodiscard]] bool IsTimeValid(std::string_view text);

// The stored schedule: Schedule1, Schedule2 and so on up to the first number that is missing.
[[nodiscard]] std::vector<ScheduleEntry> storedSchedule(const modIni& ini);
// Fills ScheduleList anew from the settings file. False, and nothing has changed, when that is there and cannot be
// read.
bool GetSchedule(Settings& settings, const modIni& ini, ErrorLog& log);

}  // namespace vell

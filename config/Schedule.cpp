// SPDX-License-Identifier: MIT
#include "config/Schedule.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "base/text.h"
#include "config/Settings.h"
#include "config/modIni.h"

namespace vell {

namespace {

// The value of two digits; -1 when one is none.
int twoDigits(std::string_view text) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return std::ranges::all_of(text, isDigit) ? (text[0] - '0') * 10 + (text[1] - '0') : -1;
}

// The place of a day in the week, 7 for what is no day.
std::size_t dayOf(std::string_view name) {
    const auto found = std::ranges::find_if(scheduleDays, [&](auto day) { return equalNoCase(day, name); });
    return static_cast<std::size_t>(found - scheduleDays.begin());
}

// The entries of the one that the other has not. An entry may stand in both several times.
std::vector<ScheduleEntry> without(std::vector<ScheduleEntry> one, const std::vector<ScheduleEntry>& other) {
    for (const ScheduleEntry& entry : other)
        if (const auto at = std::ranges::find(one, entry); at != one.end()) one.erase(at);
    return one;
}

std::vector<std::string_view> words(std::string_view text) {
    auto pieces = Split(text, " ");
    std::erase(pieces, "");
    return pieces;
}

}  // namespace

ScheduleEntry scheduleEntryOf(std::string_view stored) {
    ScheduleEntry entry;
    for (const std::string_view piece : Split(stored, " ")) {
        if (const std::size_t day = dayOf(piece); day < scheduleDays.size())
            entry.Days[day] = true;
        else
            entry.Time = piece;
    }
    return entry;
}

std::string storedTextOf(const ScheduleEntry& entry) {
    std::string text;
    for (std::size_t day = 0; day < scheduleDays.size(); ++day)
        if (entry.Days[day]) text.append(scheduleDays[day]).append(" ");
    return text + entry.Time;
}

std::string mistakeInTyped(std::string_view entry) {
    int times = 0;
    for (const std::string_view word : words(entry)) {
        if (dayOf(word) < scheduleDays.size()) continue;
        if (!IsTimeValid(completedTime(word)))
            return "'" + std::string(word) + "' is neither a day (Mon Tue Wed Thu Fri Sat Sun) nor a time (HH:MM).";
        ++times;
    }
    return times == 1 ? "" : "An entry has one time, such as \"Mon Wed 07:30\".";
}

ScheduleEntry scheduleEntryTyped(std::string_view entry) {
    std::string single;
    for (const std::string_view word : words(entry))
        single.append(single.empty() ? "" : " ").append(completedTime(word));
    ScheduleEntry typed = scheduleEntryOf(single);
    if (std::ranges::find(typed.Days, true) == typed.Days.end()) typed.Days.fill(true);
    return typed;
}

std::string completedTime(std::string_view text) {
    constexpr std::size_t length = 4;
    text = Trim(text);
    return (text.size() == length && text[1] == ':' ? "0" : "") + std::string(text);
}

bool IsTimeValid(std::string_view text) {
    constexpr std::size_t length = 5;
    text = Trim(text);
    if (text.size() != length || text[2] != ':') return false;
    const int hours = twoDigits(Left(text, 2));
    const int minutes = twoDigits(Right(text, 2));
    return hours >= 0 && hours <= 24 && minutes >= 0 && minutes <= 59;
}

std::vector<ScheduleEntry> mergedSchedule(const std::vector<ScheduleEntry>& before,
                                          const std::vector<ScheduleEntry>& theirs, std::vector<ScheduleEntry> ours) {
    for (const ScheduleEntry& lost : without(before, theirs))
        if (const auto at = std::ranges::find(ours, lost); at != ours.end()) ours.erase(at);
    std::ranges::copy(without(theirs, before), std::back_inserter(ours));
    return ours;
}

std::vector<ScheduleEntry> storedSchedule(const modIni& ini) {
    std::vector<ScheduleEntry> entries;
    std::string stored;
    while (ini.VellIniReadString(scheduleSection, scheduleKey(entries.size() + 1), stored))
        entries.push_back(scheduleEntryOf(stored));
    return entries;
}

bool GetSchedule(Settings& settings, const modIni& ini, ErrorLog& log) {
    return trap(log, "GetSchedule()", false,
                [&] { return ini.readAtOnce([&] { settings.ScheduleList = storedSchedule(ini); }); });
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "config/Schedule.h"

#include <algorithm>
#include <cstddef>
#include <vector>

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
        if (!IsTimeValid(word))
            return "'" + std::string(word) + "' is neither a day (Mon Tue Wed Thu Fri Sat Sun) nor a time (HH:MM).";
        ++times;
    }
    return times == 1 ? "" : "An entry has one time, such as \"Mon Wed 07:30\".";
}

ScheduleEntry scheduleEntryTyped(std::string_view entry) {
    std::string single;
    for (const std::string_view word : words(entry))
        single.append(single.empty() ? "" : " ").append(word);
    ScheduleEntry typed = scheduleEntryOf(single);
    if (std::ranges::find(typed.Days, true) == typed.Days.end()) typed.Days.fill(true);
    return typed;
}

bool IsTimeValid(std::string_view text) {
    constexpr std::size_t length = 5;
    text = Trim(text);
    if (text.size() != length || text[2] != ':') return false;
    const int hours = twoDigits(Left(text, 2));
    const int minutes = twoDigits(Right(text, 2));
    return hours >= 0 && hours <= 24 && minutes >= 0 && minutes <= 59;
}

void GetSchedule(Settings& settings, const modIni& ini, ErrorLog& log) {
    trapStep(log, "GetSchedule()", [&] {
        settings.ScheduleList.clear();
        std::string stored;
        for (int n = 1; ini.VellIniReadString("Schedule", "Schedule" + std::to_string(n), stored); ++n)
            settings.ScheduleList.push_back(scheduleEntryOf(stored));
    });
}

}  // namespace vell

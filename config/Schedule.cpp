// SPDX-License-Identifier: MIT
#include "config/Schedule.h"

#include <algorithm>
#include <cstddef>

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

}  // namespace

ScheduleEntry scheduleEntryOf(std::string_view stored) {
    ScheduleEntry entry;
    for (const std::string_view piece : Split(stored, " ")) {
        const auto day = std::ranges::find_if(scheduleDays, [&](auto name) { return equalNoCase(name, piece); });
        if (day == scheduleDays.end())
            entry.Time = piece;
        else
            entry.Days[static_cast<std::size_t>(day - scheduleDays.begin())] = true;
    }
    return entry;
}

std::string storedTextOf(const ScheduleEntry& entry) {
    std::string text;
    for (std::size_t day = 0; day < scheduleDays.size(); ++day)
        if (entry.Days[day]) text.append(scheduleDays[day]).append(" ");
    return text + entry.Time;
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

// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace vell {

// A day of the calendar (proleptic Gregorian).
struct Date {
    int Year = 0;
    int Month = 0;  // 1 to 12
    int Day = 0;    // 1 to 31

    auto operator<=>(const Date&) const = default;

    // False for the zero date and for days that the calendar does not have.
    [[nodiscard]] bool isReal() const;
    // 1 for Monday up to 7 for Sunday.
    [[nodiscard]] int weekday() const;
    [[nodiscard]] Date plusDays(int days) const;

    // "ddmmyyyy", the name of the day's folder.
    [[nodiscard]] std::string folderName() const;
    // "dd/mm/yyyy", as the user sees the day.
    [[nodiscard]] std::string dayName() const;

    // Nothing unless the text is exactly of that form and names a real day.
    [[nodiscard]] static std::optional<Date> fromFolderName(std::string_view ddmmyyyy);
    [[nodiscard]] static std::optional<Date> fromDayName(std::string_view dayName);
};

// A moment on the wall clock, in local time. It may jump; only the schedule and the log look at it.
struct LocalTime {
    Date Day;
    int Hour = 0;
    int Minute = 0;
    int Second = 0;

    auto operator<=>(const LocalTime&) const = default;

    // "HH:MM", 24 hours, leading zeros.
    [[nodiscard]] std::string hourMinute() const;
    // "dd/mm/yyyy HH:MM:SS", as the log shows it.
    [[nodiscard]] std::string logText() const;
};

}  // namespace vell

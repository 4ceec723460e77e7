// SPDX-License-Identifier: MIT
#include "base/Date.h"

#include <algorithm>
#include <chrono>

namespace vell {

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

year_month_day calendarDay(const Date& date) {
    return year{date.Year} / month{static_cast<unsigned>(date.Month)} / day{static_cast<unsigned>(date.Day)};
}

std::string padded(int value, std::size_t width) {
    std::string text = std::to_string(value);
    return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

int number(std::string_view digits) {
    int value = 0;
    for (char c : digits)
        value = value * 10 + (c - '0');
    return value;
}

}  // namespace

bool Date::isReal() const {
    return Year >= 1 && Month >= 1 && Day >= 1 && Month <= 12 && Day <= 31 && calendarDay(*this).ok();
}

int Date::weekday() const {
    return static_cast<int>(std::chrono::weekday{sys_days{calendarDay(*this)}}.iso_encoding());
}

Date Date::plusDays(int days) const {
    const year_month_day moved{sys_days{calendarDay(*this)} + std::chrono::days{days}};
    return {static_cast<int>(moved.year()), static_cast<int>(static_cast<unsigned>(moved.month())),
            static_cast<int>(static_cast<unsigned>(moved.day()))};
}

std::string Date::folderName() const {
    return padded(Day, 2) + padded(Month, 2) + padded(Year, 4);
}
std::string Date::dayName() const {
    return padded(Day, 2) + "/" + padded(Month, 2) + "/" + padded(Year, 4);
}

std::optional<Date> Date::fromFolderName(std::string_view ddmmyyyy) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (ddmmyyyy.size() != 8 || !std::all_of(ddmmyyyy.begin(), ddmmyyyy.end(), isDigit)) return std::nullopt;
    const Date date{number(ddmmyyyy.substr(4)), number(ddmmyyyy.substr(2, 2)), number(ddmmyyyy.substr(0, 2))};
    return date.isReal() ? std::optional{date} : std::nullopt;
}

std::optional<Date> Date::fromDayName(std::string_view dayName) {
    if (dayName.size() != 10 || dayName[2] != '/' || dayName[5] != '/') return std::nullopt;
    std::string digits(dayName.substr(0, 2));
    digits.append(dayName.substr(3, 2)).append(dayName.substr(6));
    return fromFolderName(digits);
}

std::string LocalTime::hourMinute() const {
    return padded(Hour, 2) + ":" + padded(Minute, 2);
}
std::string LocalTime::logText() const {
    return Day.dayName() + " " + hourMinute() + ":" + padded(Second, 2);
}

}  // namespace vell

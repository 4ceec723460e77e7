// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/Translations.h"

namespace vell {

// The days as the schedule file and the schedule dialog name them, Monday first.
inline constexpr std::array<std::string_view, 7> scheduleDays{
    translatable("Mon"), translatable("Tue"), translatable("Wed"), translatable("Thu"),
    translatable("Fri"), translatable("Sat"), translatable("Sun")};

// One line of the weekly schedule.
struct ScheduleEntry {
    std::array<bool, 7> Days{};  // Monday first
    std::string Time;            // "HH:MM" as entered

    bool operator==(const ScheduleEntry&) const = default;
};

}  // namespace vell

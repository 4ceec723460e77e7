// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Date.h"

namespace vell {

struct RunContext;

// What is remembered of the last download when the program starts anew.
struct LastRun {
    enum class End : std::uint8_t { Whole, Stopped, Failed };

    LocalTime Ended;
    std::size_t New = 0;          // clippings
    std::size_t FailedFiles = 0;  // of days that had their turn
    End How = End::Whole;

    bool operator==(const LastRun&) const = default;
};

[[nodiscard]] LastRun lastRunOf(const RunContext& run);

// In the program's folder.
inline constexpr std::string_view lastRunFile = "lastrun.txt";
// One line for that file, and back; nothing of a line that was not written so.
[[nodiscard]] std::string lineOf(const LastRun& run);
[[nodiscard]] std::optional<LastRun> lastRunFrom(std::string_view line);

}  // namespace vell

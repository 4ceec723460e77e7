// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "base/Date.h"

namespace vell {

class Translations;
struct LastRun;
struct RunSummary;

// "14 new clippings"
[[nodiscard]] std::string newClippingsText(std::size_t number, const Translations& words);

// How a download went, in a few words: "Last: Mon 07:30, 14 new"; one of another week with its day's date.
[[nodiscard]] std::string lastRunText(const LastRun& run, const Date& today, const Translations& words);
// "Next: Tue 07:30"; empty when nothing is due.
[[nodiscard]] std::string nextRunText(const std::optional<LocalTime>& due, const Translations& words);
// What a download of several days comes to: "26 clippings in 2 days; none on 22/11/2026".
[[nodiscard]] std::string rangeText(const RunSummary& summary, const Translations& words);

}  // namespace vell

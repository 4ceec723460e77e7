// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "base/Date.h"

namespace vell {

class Translations;
struct Settings;

// What stands in the place of a list that has no row: why there is none, and the one command that helps. Texts are in
// the user's language; `Text` may have two lines.
struct EmptyHint {
    enum class Remedy { None, Setup, Download, ShowAll };

    std::string Title;
    std::string Text;
    Remedy Helps = Remedy::None;

    bool operator==(const EmptyHint&) const = default;
};

// What there is to say of a list without rows. `dayClippings` counts those of the chosen day, whether a filter hides
// them or not.
[[nodiscard]] EmptyHint emptyHint(const Settings& settings, bool hasDays, const std::optional<Date>& chosen,
                                  std::size_t dayClippings, const Translations& words);

// The same when words are looked for and no clipping has them, or none so far.
[[nodiscard]] EmptyHint findHint(bool isOver, const Translations& words);
// When a filter hides all that was found in all days.
[[nodiscard]] EmptyHint foundAreHiddenHint(std::size_t found, const Translations& words);

}  // namespace vell

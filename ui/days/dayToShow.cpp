// SPDX-License-Identifier: MIT
#include "ui/days/dayToShow.h"

#include <algorithm>

namespace vell {

std::optional<Date> dayToShow(const std::vector<Date>& selected, const std::optional<Date>& keyboard,
                              const std::optional<Date>& shown) {
    for (const auto& day : {keyboard, shown})
        if (std::ranges::find(selected, day) != selected.end()) return day;
    return selected.empty() ? shown : selected.front();
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "ui/days/DayTypeAhead.h"

namespace vell {

std::optional<std::size_t> DayTypeAhead::type(char letter, const std::vector<DayLine>& days,
                                              std::optional<std::size_t> current) {
    if (!isUnderWay()) isDate_ = letter >= '0' && letter <= '9';
    return typeAhead_.type(letter, days.size(), current,
                           [&](std::size_t at) { return isDate_ ? days[at].Day.dayName() : days[at].Text; });
}

}  // namespace vell

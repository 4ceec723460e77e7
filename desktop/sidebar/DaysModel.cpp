// SPDX-License-Identifier: MIT
#include "desktop/sidebar/DaysModel.h"

#include <algorithm>

#include "desktop/screenText.h"

namespace vell {

bool DaysModel::setDays(const std::vector<DayLine>& days) {
    if (std::ranges::equal(days, days_, {}, &DayLine::Day, &DayLine::Day)) {
        std::ranges::for_each(days, [this](const DayLine& day) { setText(day); });
        return false;
    }
    days_ = days;
    Reset(static_cast<unsigned int>(days_.size()));
    return true;
}

void DaysModel::setText(const DayLine& day) {
    const auto row = rowOf(day.Day);
    if (!row || days_[*row] == day) return;
    days_[*row] = day;
    RowChanged(static_cast<unsigned int>(*row));
}

std::optional<std::size_t> DaysModel::rowOf(const Date& day) const {
    const auto found = std::ranges::lower_bound(days_, day, std::greater{}, &DayLine::Day);  // the newest is first
    if (found == days_.end() || found->Day != day) return std::nullopt;
    return static_cast<std::size_t>(found - days_.begin());
}

void DaysModel::GetValueByRow(wxVariant& value, unsigned int row, unsigned int /*column*/) const {
    value = shownLine(days_.at(row).Text);
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "ui/days/DayLine.h"
#include "ui/list/TypeAhead.h"

namespace vell {

// Finds a day by the beginning of its date, or of its text, which begins with the weekday, for who begins with a
// letter.
class DayTypeAhead {
  public:
    explicit DayTypeAhead(const Clock& clock) : typeAhead_(clock) {}

    // The place to go to, if any. `current` is where the user is.
    [[nodiscard]] std::optional<std::size_t> type(char letter, const std::vector<DayLine>& days,
                                                  std::optional<std::size_t> current);
    // Another letter would go on with the beginning that is being typed.
    [[nodiscard]] bool isUnderWay() const { return typeAhead_.isUnderWay(); }

  private:
    TypeAhead typeAhead_;
    bool isDate_ = false;
};

}  // namespace vell

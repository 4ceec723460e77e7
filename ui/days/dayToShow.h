// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "base/Date.h"

namespace vell {

// The day whose clippings are to be seen when `selected` of the date list are, from the top down: the one that was
// chosen last, where the keyboard is. Who takes that one out of the selection goes on with the day that is shown, or
// else with the first that is left. Without a selection it stays at `shown`.
[[nodiscard]] std::optional<Date> dayToShow(const std::vector<Date>& selected, const std::optional<Date>& keyboard,
                                            const std::optional<Date>& shown);

}  // namespace vell

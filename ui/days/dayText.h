// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "base/Date.h"
#include "store/DayCount.h"

namespace vell {

class Translations;

// "Sun 07/03/2004 (3, 2 unread)"; without the brackets for a day that has not been counted.
[[nodiscard]] std::string dayText(const Date& day, const std::optional<DayCount>& count, const Translations& words);

}  // namespace vell

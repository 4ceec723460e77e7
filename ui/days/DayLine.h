// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/Date.h"

namespace vell {

// A day as the date list shows it.
struct DayLine {
    Date Day;
    std::string Text;

    bool operator==(const DayLine&) const = default;
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace vell {

// How many clippings a day has, and how many of them nobody has opened.
struct DayCount {
    std::size_t Clippings = 0;
    std::size_t Unread = 0;

    bool operator==(const DayCount&) const = default;
};

}  // namespace vell

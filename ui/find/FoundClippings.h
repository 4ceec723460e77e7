// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "base/Date.h"
#include "ftp/listing/CFtpFiles.h"

namespace vell {

// What a search leaves of the list.
struct FoundClippings {
    // Of this day; nothing for all days.
    std::optional<Date> OfDay;
    std::vector<CFtpFiles::Pointer> Clippings;  // the newest day first
    std::unordered_set<std::string> Names;      // their file names, when they are of one day
    std::size_t Searched = 0;                   // of so many
    bool IsComplete = false;                    // else the search goes on
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "ui/find/DayListings.h"

#include <array>
#include <string>
#include <utility>

#include "store/modGlobal.h"

namespace vell {

CFtpFiles DayListings::of(const Date& day) {
    const std::string folder = store_.folderOfDay(day);
    const auto stamp = disk_.Stamp(folder);
    if (const auto found = listings_.find(day); found != listings_.end()) {
        if (found->second.Folder == stamp) return found->second.Clippings;
        kept_ -= static_cast<std::size_t>(found->second.Clippings.Count());
        listings_.erase(found);
    }
    const std::array<std::string, 2> patterns{"*.PDF", ""};
    CFtpFiles clippings = store_.GetLocalFiles(folder, patterns);
    const auto count = static_cast<std::size_t>(clippings.Count());
    if (stamp && kept_ + count <= most_) {
        listings_.emplace(day, Listing{stamp, clippings});
        kept_ += count;
    }
    return clippings;
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "ui/list/TypeAhead.h"

#include <algorithm>

#include "ui/list/RowOrder.h"

namespace vell {

namespace {
constexpr std::chrono::milliseconds longestPause{1000};
}

bool TypeAhead::isUnderWay() const {
    return !typed_.empty() && clock_.Steady() - last_ <= longestPause;
}

std::optional<std::size_t> TypeAhead::type(char letter, std::size_t count, std::optional<std::size_t> current,
                                           const TextAt& textAt) {
    const SteadyTime now = clock_.Steady();
    if (!isUnderWay()) typed_.clear();
    last_ = now;
    typed_ += lookUpKey(std::string_view(&letter, 1));
    const bool oneLetter = std::all_of(typed_.begin(), typed_.end(), [this](char c) { return c == typed_.front(); });
    const std::string wanted = oneLetter ? typed_.substr(0, 1) : typed_;
    // A longer beginning may still fit where the user is; a single letter moves on.
    const std::size_t start = !current ? 0 : *current + (oneLetter ? 1 : 0);
    for (std::size_t step = 0; step < count; ++step) {
        const std::size_t place = (start + step) % count;
        if (lookUpKey(textAt(place)).starts_with(wanted)) return place;
    }
    return std::nullopt;
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "platform/MessageBoxes.h"

namespace vell {

// True when so many clippings may be worked on at once: more than ten are asked about, since they may have been
// selected by a slip of the hand.
[[nodiscard]] inline bool wantsMany(MessageBoxes& boxes, std::size_t count, const std::string& question) {
    constexpr std::size_t mostUnasked = 10;
    return count <= mostUnasked ||
           boxes.Show(question, programCaption, Buttons::YesNo, BoxIcon::Question) == Answer::Yes;
}

}  // namespace vell

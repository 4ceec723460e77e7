// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace vell {

// Files that are being written beside the one they will replace, called parts: how they are named, and how those that
// a killed program left behind are known and removed. A part that is being written is locked.

// ".<anything>.part": the service's names never begin with a dot.
[[nodiscard]] bool isPartName(std::string_view name);
// A name that no other writer has, in this process or elsewhere.
[[nodiscard]] std::string newPartName();
// Removes the parts in a folder that nobody writes and nobody has written for that long.
void removeLeftoverParts(const std::string& folder, std::chrono::hours age);

}  // namespace vell

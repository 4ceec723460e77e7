// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

// Files that are being written beside the one they will replace: how they are named, and how those that a killed
// program left behind are known and removed.

// A name that no other writer has, of this process or another.
[[nodiscard]] std::string newPartName();
[[nodiscard]] bool isPartName(std::string_view name);
// Removes the parts in a folder whose writer lives no more. Ours count as left over too: to be called while none is
// being written there.
void removeLeftoverParts(const std::string& folder);

}  // namespace vell

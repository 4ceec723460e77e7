// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>

namespace vell {

// Removes the parts in a folder that nobody writes and nobody has written for that long: a killed program left them
// behind. A part that is being written is locked.
void removeLeftoverParts(const std::string& folder, std::chrono::hours age);

}  // namespace vell

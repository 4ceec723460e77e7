// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vell {

// Files that are being written beside the one they will replace are called parts; this is how they are named.

// ".<anything>.part": the service's names never begin with a dot.
[[nodiscard]] bool isPartName(std::string_view name);
// A name that no other writer has, in this process or elsewhere.
[[nodiscard]] std::string newPartName();
// The part that stands for the lock of a file.
[[nodiscard]] std::string lockPartOf(std::string_view path);

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <shtypes.h>

namespace vell {

// One of the folders that the system keeps for the user (FOLDERID_...); empty when it cannot be had.
[[nodiscard]] std::wstring knownFolder(const KNOWNFOLDERID& which);

}  // namespace vell

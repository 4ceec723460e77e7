// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace vell {

// What the program calls the failure of a file that has this number of base/errors.h.
[[nodiscard]] const char* fileErrorText(std::int32_t number);

}  // namespace vell

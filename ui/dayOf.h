// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "base/Date.h"

namespace vell {

struct CFtpFile;

// The day of a clipping, by the folder it lies in.
[[nodiscard]] std::optional<Date> dayOf(const CFtpFile& clipping);
// The same by its full path.
[[nodiscard]] std::optional<Date> dayOfPath(std::string_view path);

}  // namespace vell

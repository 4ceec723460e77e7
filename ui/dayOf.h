// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "base/Date.h"

namespace vell {

struct CFtpFile;

// The day of a clipping, by the folder it lies in.
[[nodiscard]] std::optional<Date> dayOf(const CFtpFile& clipping);

}  // namespace vell

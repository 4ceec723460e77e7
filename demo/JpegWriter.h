// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "demo/Canvas.h"

namespace vell::demo {

// The picture as a baseline JPEG file (ITU-T T.81, JFIF 1.1). `coarseness` 1 is fine, 5 is visibly rough and small.
[[nodiscard]] std::string jpegOf(const Canvas& canvas, double coarseness);

}  // namespace vell::demo

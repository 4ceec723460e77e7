// SPDX-License-Identifier: MIT
#include "desktop/native/paintAfterLayout.h"

namespace vell {

// It always is.
void paintAfterLayout(wxGauge& /*bar*/) {}

}  // namespace vell

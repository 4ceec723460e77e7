// SPDX-License-Identifier: MIT
#include "desktop/native/oneStop.h"

namespace vell {

// Elsewhere the arrow takes no keyboard of its own.
void makeOneStop(wxComboBox& /*box*/) {}

}  // namespace vell

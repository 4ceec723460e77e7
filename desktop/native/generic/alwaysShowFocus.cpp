// SPDX-License-Identifier: MIT
#include "desktop/native/alwaysShowFocus.h"

namespace vell {

// A matter of the system's settings.
void alwaysShowFocus(wxTopLevelWindow& /*window*/) {}

}  // namespace vell

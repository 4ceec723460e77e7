// SPDX-License-Identifier: MIT
#include "desktop/native/insistOnPlace.h"

namespace vell {

// Where windows stand is the program's own matter here.
void insistOnPlace(wxTopLevelWindow& /*window*/, const wxPoint& /*corner*/) {}

}  // namespace vell

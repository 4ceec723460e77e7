// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class wxTopLevelWindow;

namespace vell {

// Brings the window to the front and gives it the keyboard, although the user has not touched it. `token`: the
// desktop's leave to do so, where it gave one.
void raiseWindow(wxTopLevelWindow& window, const std::string& token = {});

}  // namespace vell

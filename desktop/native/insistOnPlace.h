// SPDX-License-Identifier: MIT
#pragma once

class wxPoint;
class wxTopLevelWindow;

namespace vell {

// The window is to appear there, whatever the window manager thinks of programs that choose their own place.
void insistOnPlace(wxTopLevelWindow& window, const wxPoint& corner);

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

class wxTopLevelWindow;

namespace vell {

// Shows where the keyboard is in the window and its dialogs from the beginning; to be called before it is shown.
void alwaysShowFocus(wxTopLevelWindow& window);

}  // namespace vell

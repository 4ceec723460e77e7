// SPDX-License-Identifier: MIT
#pragma once

class wxDialog;

namespace vell {

// A screen reader announces the window as a dialog and not as another window of the program.
void giveDialogRole(wxDialog& dialog);

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

class wxDialog;

namespace vell {

// While it holds, the window behind the dialog takes no input. It keeps its looks: a download can be watched.
void holdParent(wxDialog& dialog, bool hold);

}  // namespace vell

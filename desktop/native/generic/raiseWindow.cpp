// SPDX-License-Identifier: MIT
#include "desktop/native/raiseWindow.h"

#include <wx/toplevel.h>

namespace vell {

void raiseWindow(wxTopLevelWindow& window, const std::string& /*token*/) {
    window.Iconize(false);
    window.Show();
    window.Raise();
}

}  // namespace vell

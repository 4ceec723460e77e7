// SPDX-License-Identifier: MIT
#include "desktop/native/showQuietly.h"

#include <wx/toplevel.h>

namespace vell {

void showQuietly(wxTopLevelWindow& window) {
    window.Show();
}

}  // namespace vell

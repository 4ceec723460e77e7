// SPDX-License-Identifier: MIT
#include "desktop/native/holdParent.h"

#include <wx/dialog.h>

namespace vell {

void holdParent(wxDialog& dialog, bool hold) {
    dialog.GetParent()->Enable(!hold);
}

}  // namespace vell

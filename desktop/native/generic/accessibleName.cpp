// SPDX-License-Identifier: MIT
#include "desktop/native/accessibleName.h"

#include <wx/window.h>

namespace vell {

void setAccessibleName(wxWindow& window, const wxString& name) {
    window.SetName(name);
}

void setAccessibleDescription(wxWindow& window, const wxString& description) {
    window.SetHelpText(description);
}

}  // namespace vell

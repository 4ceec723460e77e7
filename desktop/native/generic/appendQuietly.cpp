// SPDX-License-Identifier: MIT
#include "desktop/native/appendQuietly.h"

#include <wx/textctrl.h>

namespace vell {

void appendQuietly(wxTextCtrl& control, const wxString& text) {
    long from = 0, to = 0;
    control.GetSelection(&from, &to);
    control.AppendText(text);
    control.SetSelection(from, to);
}

}  // namespace vell

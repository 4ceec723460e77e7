// SPDX-License-Identifier: MIT
#pragma once

#include <wx/defs.h>

class wxDialog;
class wxMessageDialog;

namespace vell {

// The standard buttons of a dialog, or of a message box that answers with them, in the desktop's language.
void nameButtons(wxDialog& dialog);
void nameButtons(wxMessageDialog& box);

}  // namespace vell

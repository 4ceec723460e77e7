// SPDX-License-Identifier: MIT
#pragma once

class wxDialog;
class wxSizer;
class wxWindow;

namespace vell {

// The last step of a dialog's construction: as large as its content wants, as far as the screen has room for it, in the
// middle of its parent, a dialog for screen readers, too, and with the keyboard in `first`. `content` becomes the
// dialog's.
void finishDialog(wxDialog& dialog, wxSizer* content, wxWindow& first);

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <wx/dialog.h>

namespace vell {

// A message too long for a message box, which would grow beyond the display and its button with it.
class LongMessage : public wxDialog {
  public:
    LongMessage(const wxString& text, const wxString& caption);

    [[nodiscard]] static bool isNeededFor(const wxString& text);
};

}  // namespace vell

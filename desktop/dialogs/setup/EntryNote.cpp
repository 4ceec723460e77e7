// SPDX-License-Identifier: MIT
#include "desktop/dialogs/setup/EntryNote.h"

#include <wx/settings.h>

#include "desktop/native/accessibleName.h"

namespace vell {

namespace {
constexpr int width = 170;  // DIP
}

EntryNote::EntryNote(wxWindow* parent, wxWindow& entry)
    : wxStaticText(parent, wxID_ANY, "", wxDefaultPosition, parent->FromDIP(wxSize(width, -1)),
                   wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END),
      entry_(entry) {
    SetForegroundColour(wxSystemSettings::GetAppearance().IsDark() ? wxColour(255, 138, 128) : wxColour(176, 0, 32));
}

void EntryNote::show(const wxString& words) {
    if (GetLabelText() == words) return;
    SetLabelText(words);
    SetToolTip(words);
    setAccessibleDescription(entry_, words);
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "desktop/native/markPlaces.h"

#include <wx/settings.h>
#include <wx/textctrl.h>

namespace vell {

void markPlaces(wxTextCtrl& control, const std::vector<FoundPlace>& places) {
    const wxTextAttr plain(wxNullColour, wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    control.SetStyle(0, control.GetLastPosition(), plain);
    const wxTextAttr pen(*wxBLACK, wxColour(255, 230, 128));
    for (const FoundPlace& place : places)
        control.SetStyle(static_cast<long>(place.From), static_cast<long>(place.From + place.Length), pen);
}

}  // namespace vell

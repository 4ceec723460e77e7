// SPDX-License-Identifier: MIT
#include "desktop/native/whenAccepted.h"

#include <utility>

#include <wx/dialog.h>

namespace vell {

void whenAccepted(wxDialog& dialog, std::function<void()> tell) {
    dialog.Bind(
        wxEVT_BUTTON,
        [tell = std::move(tell)](wxCommandEvent& event) {
            event.Skip();
            tell();
        },
        wxID_OK);
}

}  // namespace vell

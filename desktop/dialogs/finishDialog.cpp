// SPDX-License-Identifier: MIT
#include "desktop/dialogs/finishDialog.h"

#include <wx/dialog.h>
#include <wx/display.h>
#include <wx/sizer.h>

#include "desktop/dialogs/buttonTexts.h"
#include "desktop/native/dialogRole.h"
#include "desktop/native/insistOnPlace.h"

namespace vell {

namespace {

constexpr int titleBar = 48;  // DIP, which the window manager adds

wxSize roomOnScreen(const wxDialog& dialog) {
    const int found = wxDisplay::GetFromWindow(dialog.GetParent() ? dialog.GetParent() : &dialog);
    const wxDisplay screen(found == wxNOT_FOUND ? 0U : static_cast<unsigned>(found));
    return screen.GetClientArea().GetSize() - dialog.FromDIP(wxSize(0, titleBar));
}

}  // namespace

void finishDialog(wxDialog& dialog, wxSizer* content, wxWindow& first) {
    nameButtons(dialog);
    dialog.SetSizer(content);
    wxSize size = content->ComputeFittingWindowSize(&dialog);
    size.DecTo(roomOnScreen(dialog));
    dialog.SetMinSize(size);
    dialog.SetSize(size);
    dialog.CentreOnParent();
    insistOnPlace(dialog, dialog.GetPosition());
    giveDialogRole(dialog);
    first.SetFocus();
}

}  // namespace vell

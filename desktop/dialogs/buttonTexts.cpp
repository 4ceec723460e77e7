// SPDX-License-Identifier: MIT
#include "desktop/dialogs/buttonTexts.h"

#include <wx/button.h>
#include <wx/msgdlg.h>
#include <wx/stockitem.h>
#include <wx/translation.h>

namespace vell {

namespace {

// A button whose words are wxWidgets' own for it gets GTK's, which knows no other language for them any more. So these
// have a context, and where it is translated, other words than those without one.
wxString textOf(wxStandardID button) {
    switch (button) {
        case wxID_OK:
            return wxGETTEXT_IN_CONTEXT("button", "&OK");
        case wxID_CANCEL:
            return wxGETTEXT_IN_CONTEXT("button", "&Cancel");
        case wxID_CLOSE:
            return wxGETTEXT_IN_CONTEXT("button", "&Close");
        case wxID_YES:
            return wxGETTEXT_IN_CONTEXT("button", "&Yes");
        case wxID_NO:
            return wxGETTEXT_IN_CONTEXT("button", "&No");
        default:
            return wxGetStockLabel(button);
    }
}

}  // namespace

void nameButtons(wxDialog& dialog) {
    for (const wxStandardID id : {wxID_OK, wxID_CANCEL, wxID_CLOSE}) {
        wxWindow* button = dialog.FindWindow(id);
        if (button && wxIsStockLabel(id, button->GetLabel())) button->SetLabel(textOf(id));
    }
}

void nameButtons(wxMessageDialog& box) {
    if ((box.GetMessageDialogStyle() & wxYES_NO) != 0)
        box.SetYesNoCancelLabels(textOf(wxID_YES), textOf(wxID_NO), textOf(wxID_CANCEL));
    else
        box.SetOKCancelLabels(textOf(wxID_OK), textOf(wxID_CANCEL));
}

}  // namespace vell

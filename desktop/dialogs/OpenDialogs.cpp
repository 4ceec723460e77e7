// SPDX-License-Identifier: MIT
#include "desktop/dialogs/OpenDialogs.h"

#include <algorithm>

#include <wx/app.h>
#include <wx/evtloop.h>

#include "desktop/native/holdParent.h"

namespace vell {

namespace {

// Below a yield, or a loop of somebody else's, one of the dialog's own handlers may be under way.
bool isOutermostLoop() {
    const wxEventLoopBase* active = wxEventLoopBase::GetActive();
    return active && active == wxTheApp->GetMainLoop() && !active->IsYielding();
}

}  // namespace

OpenDialogs::OpenDialogs() {
    wxTheApp->Bind(wxEVT_IDLE, &OpenDialogs::sweep, this);
}

OpenDialogs::~OpenDialogs() {
    wxTheApp->Unbind(wxEVT_IDLE, &OpenDialogs::sweep, this);
}

void OpenDialogs::open(wxDialog* dialog, const std::function<void()>& accepted) {
    dialogs_.emplace_back(dialog);
    dialog->Bind(wxEVT_SHOW, [dialog, accepted](wxShowEvent& event) {
        event.Skip();
        if (event.IsShown()) return;
        holdParent(*dialog, false);
        if (accepted && dialog->GetReturnCode() == wxID_OK) accepted();
    });
    holdParent(*dialog, true);
    dialog->Show();
}

bool OpenDialogs::raise() {
    const auto open = std::ranges::find_if(dialogs_, [](const auto& dialog) { return dialog && dialog->IsShown(); });
    if (open == dialogs_.end()) return false;
    (*open)->Raise();
    return true;
}

void OpenDialogs::sweep(wxIdleEvent& event) {
    event.Skip();
    if (dialogs_.empty() || !isOutermostLoop()) return;
    std::erase_if(dialogs_, [](const wxWeakRef<wxDialog>& dialog) {
        if (dialog && dialog->IsShown()) return false;
        if (dialog) dialog->Destroy();
        return true;
    });
}

}  // namespace vell

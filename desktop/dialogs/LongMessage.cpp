// SPDX-License-Identifier: MIT
#include "desktop/dialogs/LongMessage.h"

#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "desktop/dialogs/finishDialog.h"
#include "desktop/native/accessibleName.h"

namespace vell {

LongMessage::LongMessage(const wxString& text, const wxString& caption)
    : wxDialog(nullptr, wxID_ANY, caption, wxDefaultPosition, wxDefaultSize, wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
    auto* shown = new wxTextCtrl(this, wxID_ANY, text, wxDefaultPosition, FromDIP(wxSize(560, 320)),
                                 wxTE_MULTILINE | wxTE_READONLY | wxTE_BESTWRAP);
    setAccessibleName(*shown, caption);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(shown, wxSizerFlags(1).Expand().Border());
    sizer->Add(CreateStdDialogButtonSizer(wxOK), wxSizerFlags().Expand().Border());
    finishDialog(*this, sizer, *shown);
}

bool LongMessage::isNeededFor(const wxString& text) {
    constexpr std::size_t longest = 800;
    constexpr int mostLines = 16;
    return text.length() > longest || text.Freq('\n') > mostLines;
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "desktop/bars/FilterBar.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/translation.h>

#include "desktop/commandIds.h"
#include "desktop/screenText.h"

namespace vell {

FilterBar::FilterBar(wxWindow* parent) : wxPanel(parent) {
    text_ =
        new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    auto* sizer = new wxBoxSizer(wxHORIZONTAL);
    sizer->Add(text_, wxSizerFlags(1).CentreVertical());
    sizer->Add(new wxButton(this, command::ShowAll, _("Show a&ll")), wxSizerFlags().CentreVertical().Border(wxLEFT));
    SetSizer(sizer);
    Hide();
}

void FilterBar::show(std::string_view text) {
    text_->SetLabelText(wxString::Format(_("Only: %s"), shownLine(text)));
    text_->SetToolTip(shownLine(text));
    Show(!text.empty());
    GetParent()->Layout();
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "desktop/panes/AlertPanel.h"

#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "base/text.h"
#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"

namespace vell {

AlertPanel::AlertPanel(wxWindow* parent) : wxPanel(parent) {
    auto* heading = new wxStaticText(this, wxID_ANY, "A&lert");
    heading->SetFont(heading->GetFont().Bold());
    auto* paper = new wxPanel(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_THEME);
    paper->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    text_ = new wxTextCtrl(paper, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(120, -1)),
                           wxTE_MULTILINE | wxTE_READONLY | wxTE_BESTWRAP | wxBORDER_NONE);
    setAccessibleName(*text_, "Alert");
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(text_, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(4)));
    paper->SetSizer(margin);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(heading, wxSizerFlags().Border(wxBOTTOM, FromDIP(3)));
    sizer->Add(paper, wxSizerFlags(1).Expand());
    SetMinSize(FromDIP(wxSize(-1, 110)));
    SetSizer(sizer);
    Hide();
}

void AlertPanel::show(std::string_view text) {
    const wxString shown = shownText(Trim(text));
    if (shown != text_->GetValue()) text_->ChangeValue(shown);
    if (IsShown() == !shown.empty()) return;
    Show(!shown.empty());
    GetParent()->Layout();
}

}  // namespace vell

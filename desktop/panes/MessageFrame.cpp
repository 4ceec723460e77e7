// SPDX-License-Identifier: MIT
#include "desktop/panes/MessageFrame.h"

#include <wx/arrstr.h>
#include <wx/button.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "desktop/screenText.h"

namespace vell {

namespace {

constexpr std::size_t mostLines = 4;
constexpr std::size_t longestTip = 1000;

wxString firstLines(std::string_view text) {
    wxString shown;
    std::size_t lines = 0;
    for (const wxString& line : wxSplit(shownText(text), '\n', '\0')) {
        if (line.Strip(wxString::both).empty()) continue;
        if (lines++ == mostLines) return shown + " ...";
        shown += (shown.empty() ? "" : "\n") + line;
    }
    return shown;
}

}  // namespace

MessageFrame::MessageFrame(wxWindow* parent) : wxPanel(parent) {
    const bool isDark = wxSystemSettings::GetAppearance().IsDark();
    SetBackgroundColour(isDark ? wxColour(92, 74, 0) : wxColour(255, 244, 206));
    text_ =
        new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    text_->SetForegroundColour(isDark ? *wxWHITE : *wxBLACK);
    auto* ok = new wxButton(this, wxID_OK);
    auto* sizer = new wxBoxSizer(wxHORIZONTAL);
    sizer->Add(text_, wxSizerFlags(1).CentreVertical().DoubleBorder());
    sizer->Add(ok, wxSizerFlags().CentreVertical().Border());
    SetSizer(sizer);
    ok->Bind(wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { close(); });
    Hide();
}

void MessageFrame::show(std::string_view text) {
    text_->SetLabelText(firstLines(text));
    text_->SetToolTip(shownText(text.substr(0, longestTip)));
    text_->InvalidateBestSize();
    text_->SetMinSize(wxSize(0, text_->GetBestSize().GetHeight()));
    Show();
    GetParent()->Layout();
}

void MessageFrame::close() {
    const bool hadKeyboard = IsDescendant(FindFocus());
    Hide();
    GetParent()->Layout();
    if (hadKeyboard) GetParent()->SetFocus();
}

}  // namespace vell

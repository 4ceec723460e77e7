// SPDX-License-Identifier: MIT
#include "desktop/panes/StatusLine.h"

#include <algorithm>

#include <wx/stattext.h>

#include "desktop/screenText.h"

namespace vell {

namespace {
constexpr std::size_t countPanel = 0;
constexpr std::size_t statusPanel = 1;
}  // namespace

StatusLine::StatusLine(wxWindow* parent) : wxStatusBar(parent, wxID_ANY) {
    const std::array<int, 2> widths{GetTextExtent("100000 Clippings").GetWidth() + FromDIP(16), -1};
    SetFieldsCount(widths.size(), widths.data());
    for (wxStaticText*& panel : panels_)
        panel = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                 wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    panels_[countPanel]->SetToolTip("Total Clippings Currently Listed");
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        placeTexts();
    });
}

void StatusLine::placeTexts() {
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        wxRect panel;
        if (!GetFieldRect(static_cast<int>(i), panel)) continue;
        const int height = panels_[i]->GetBestSize().GetHeight();
        panels_[i]->SetSize(panel.GetLeft() + FromDIP(4), panel.GetTop() + (panel.GetHeight() - height) / 2,
                            std::max(0, panel.GetWidth() - FromDIP(8)), height);
    }
}

void StatusLine::showStatus(std::string_view text) {
    panels_[statusPanel]->SetLabelText(shownLine(text));
    Update();
}

void StatusLine::showCount(std::string_view text) {
    panels_[countPanel]->SetLabelText(shownLine(text));
}

}  // namespace vell

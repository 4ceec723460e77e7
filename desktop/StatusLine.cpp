// SPDX-License-Identifier: MIT
#include "desktop/StatusLine.h"

#include <array>

#include "desktop/screenText.h"

namespace vell {

namespace {
constexpr int countPanel = 0;
constexpr int statusPanel = 1;
}  // namespace

StatusLine::StatusLine(wxWindow* parent) : wxStatusBar(parent, wxID_ANY) {
    const std::array<int, 2> widths{GetTextExtent("100000 Clippings").GetWidth() + FromDIP(16), -1};
    SetFieldsCount(widths.size(), widths.data());
    Bind(wxEVT_MOTION, &StatusLine::explain, this);
}

void StatusLine::showStatus(std::string_view text) {
    SetStatusText(shownLine(text), statusPanel);
    Update();
}

void StatusLine::showCount(std::string_view text) {
    SetStatusText(shownLine(text), countPanel);
}

// Only the count needs words of explanation.
void StatusLine::explain(wxMouseEvent& event) {
    event.Skip();
    wxRect count;
    const bool overCount = GetFieldRect(countPanel, count) && count.Contains(event.GetPosition());
    const wxString tip = overCount ? "Total Clippings Currently Listed" : "";
    if (GetToolTipText() != tip) SetToolTip(tip);
}

}  // namespace vell

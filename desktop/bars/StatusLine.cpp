// SPDX-License-Identifier: MIT
#include "desktop/bars/StatusLine.h"

#include <algorithm>

#include <wx/intl.h>
#include <wx/stattext.h>

#include "desktop/screenText.h"
#include "ui/BrowserView.h"

namespace vell {

namespace {
// In DIP.
constexpr int margin = 6;             // in front of the first text
constexpr int gap = 20;               // behind each
constexpr int narrowestStatus = 280;  // what the status line keeps for itself
}  // namespace

StatusLine::StatusLine(wxWindow* parent)
    : wxStatusBar(parent, wxID_ANY), statusPainting_([this] {
          panels_[Status]->SetLabelText(shownLine(status_));
          Update();
      }) {
    for (wxStaticText*& panel : panels_)
        panel = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                 wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    panels_[Listed]->SetToolTip("Total Clippings Currently Listed");
    panels_[New]->SetFont(panels_[New]->GetFont().Bold());  // as its rows are
    panels_[Unread]->SetToolTip(_("Clippings of the list that have not been opened"));
    panels_[New]->SetToolTip(_("Clippings of the list that the last download brought"));
    panels_[NextRun]->SetToolTip(_("When the schedule starts the next download"));
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        CallAfter([this] { arrange(); });  // when the bar knows its own width
    });
}

// A text that may be cut has no best width of its own.
int StatusLine::widthOf(std::size_t panel) const {
    const wxStaticText& text = *panels_.at(panel);
    return text.GetTextExtent(text.GetLabelText()).GetWidth() + FromDIP(1 + gap);
}

int StatusLine::room() const {
    wxRect all;
    GetFieldRect(0, all);
    return std::max(0, all.GetWidth());
}

StatusLine::Panels StatusLine::neededPanels() const {
    Panels needed{};
    int left = room() - FromDIP(narrowestStatus);
    for (const Panel panel : {Listed, Unread, New, NextRun, LastRun}) {
        const bool mayGoMissing = panel == NextRun || panel == LastRun;
        needed.at(panel) = !panels_.at(panel)->GetLabelText().empty() && (!mayGoMissing || widthOf(panel) <= left);
        if (needed.at(panel)) left -= widthOf(panel);
    }
    needed[Status] = true;
    return needed;
}

// Side by side; the status line has what the others leave.
void StatusLine::arrange() {
    const Panels needed = neededPanels();
    int others = 0;
    for (std::size_t panel = 0; panel < PanelCount; ++panel)
        if (panel != Status && needed.at(panel)) others += widthOf(panel);
    int left = FromDIP(margin);
    for (std::size_t panel = 0; panel < PanelCount; ++panel) {
        panels_.at(panel)->Show(needed.at(panel));
        if (!needed.at(panel)) continue;
        const int width = panel == Status ? std::max(0, room() - others - FromDIP(margin)) : widthOf(panel);
        const int height = panels_.at(panel)->GetBestSize().GetHeight();
        const int top = std::max(0, (GetClientSize().GetHeight() - height) / 2);
        panels_.at(panel)->SetSize(left, top, std::max(0, width - FromDIP(gap)), height);
        left += width;
    }
}

void StatusLine::show(Panel panel, std::string_view text) {
    const wxString shown = shownLine(text);
    if (panels_.at(panel)->GetLabelText() == shown) return;
    panels_.at(panel)->SetLabelText(shown);
    arrange();
}

// No other panel gives way for it.
void StatusLine::showStatus(std::string_view text) {
    status_ = text;
    statusPainting_.changed();
}

void StatusLine::showCounts(const CountTexts& texts) {
    show(Listed, texts.Listed);
    show(Unread, texts.Unread);
    show(New, texts.New);
}

void StatusLine::showLastRun(std::string_view text) {
    show(LastRun, text);
    panels_[LastRun]->SetToolTip(shownLine(text));
}

void StatusLine::showNextRun(std::string_view text) {
    show(NextRun, text);
}

}  // namespace vell

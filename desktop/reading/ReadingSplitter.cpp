// SPDX-License-Identifier: MIT
#include "desktop/reading/ReadingSplitter.h"

#include <utility>

#include <wx/dcclient.h>
#include <wx/settings.h>

#include "desktop/reading/TextPane.h"
#include "desktop/twips.h"

namespace vell {

namespace {
// DIP
constexpr int smallestPane = 90;
constexpr int usualHeight = 240;
constexpr int usualWidth = 340;
constexpr int gripLength = 32;
constexpr int gripWidth = 2;
constexpr double listShare = 0.5;  // of what a larger window has more
}  // namespace

ReadingSplitter::ReadingSplitter(wxWindow* parent)
    : wxSplitterWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE | wxSP_NOBORDER),
      pane_(new TextPane(this)) {
    pane_->Hide();
    SetMinimumPaneSize(FromDIP(smallestPane));
    SetSashGravity(listShare);
    // The line also changes its place, but not by this event, when the window gets another size.
    Bind(wxEVT_SPLITTER_SASH_POS_CHANGING, [this](wxSplitterEvent& event) {
        event.Skip();
        isDrawn_ = true;
    });
    Bind(wxEVT_SPLITTER_SASH_POS_CHANGED, [this](wxSplitterEvent& event) {
        event.Skip();
        if (!std::exchange(isDrawn_, false)) return;
        CallAfter([this] {
            if (IsSplit() && sized_) sized_(twipsFromPixels(*this, paneSize()));
        });
    });
    Bind(wxEVT_SPLITTER_DOUBLECLICKED, [](wxSplitterEvent& event) { event.Veto(); });  // it would drop the pane
}

void ReadingSplitter::setList(wxWindow* list) {
    Initialize(list);
    pane_->MoveAfterInTabOrder(list);
}

void ReadingSplitter::place(PanePlace place, int size) {
    place_ = place;
    size_ = size > 0 ? pixelsFromTwips(*this, size) : 0;
    arrange();
}

void ReadingSplitter::showPane(bool wanted) {
    if (std::exchange(isWanted_, wanted) == wanted) return;
    if (!wanted && IsSplit()) size_ = paneSize();
    arrange();
}

void ReadingSplitter::arrange() {
    if (IsSplit()) Unsplit(pane_);
    if (!isWanted_) return;
    // From the far end, where the line counts in.
    const auto pixels = [&](int usual) { return -(size_ > 0 ? size_ : FromDIP(usual)) - GetSashSize(); };
    if (place_ == PanePlace::Below) SplitHorizontally(GetWindow1(), pane_, pixels(usualHeight));
    if (place_ == PanePlace::Beside) SplitVertically(GetWindow1(), pane_, pixels(usualWidth));
}

// The theme's own is a solid bar. A short line is enough to see what can be drawn.
void ReadingSplitter::DrawSash(wxDC& dc) {
    // The toolkit also asks for it between paintings, when there may be nothing yet to draw on but the desktop.
    if (!dynamic_cast<wxPaintDC*>(&dc)) {
        Refresh(false);
        return;
    }
    const bool isBelow = GetSplitMode() == wxSPLIT_HORIZONTAL;
    const wxSize all = GetClientSize();
    const wxSize sash = isBelow ? wxSize(all.GetWidth(), GetSashSize()) : wxSize(GetSashSize(), all.GetHeight());
    const wxPoint corner = isBelow ? wxPoint(0, GetSashPosition()) : wxPoint(GetSashPosition(), 0);
    const wxSize grip = FromDIP(isBelow ? wxSize(gripLength, gripWidth) : wxSize(gripWidth, gripLength));
    dc.SetPen(*wxTRANSPARENT_PEN);
    dc.SetBrush(GetBackgroundColour());
    dc.DrawRectangle(corner, sash);
    dc.SetBrush(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
    dc.DrawRectangle(wxRect(grip).CentreIn(wxRect(corner, sash)));
}

int ReadingSplitter::paneSize() const {
    return GetSplitMode() == wxSPLIT_HORIZONTAL ? pane_->GetSize().GetHeight() : pane_->GetSize().GetWidth();
}

}  // namespace vell

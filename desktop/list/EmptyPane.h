// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/panel.h>

class wxButton;
class wxStaticBitmap;
class wxStaticText;

namespace vell {

struct EmptyHint;

// Stands in the place of a list that has no row, and offers the command that helps. The keyboard goes with whichever of
// the two is seen.
class EmptyPane : public wxPanel {
  public:
    // Both are children of `parent`, in a sizer of its. `changed`: this pane is seen now, or no more.
    EmptyPane(wxWindow* parent, wxWindow& list, std::function<void(bool isShown)> changed);

    void show(const EmptyHint& hint);
    void hide();
    // Gives the keyboard to what is seen.
    void focus();

  private:
    void layOut();
    void offer(const EmptyHint& hint);
    void fit();
    void change(bool isShown);

    wxWindow& list_;
    std::function<void(bool isShown)> changed_;
    wxStaticBitmap* picture_;  // when there is room for it
    wxStaticText* title_;
    wxStaticText* text_;
    wxButton* remedy_;
    wxString wholeText_;  // before it was wrapped
};

}  // namespace vell

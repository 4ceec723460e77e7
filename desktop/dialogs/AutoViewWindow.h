// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/dialog.h>

class wxButton;
class wxSlider;
class wxStaticText;

namespace vell {

class frmAutoView;

// The small window of the slide show, beside the main window: where it is, how long a clipping stays, start and stop.
class AutoViewWindow : public wxDialog {
  public:
    // `start` starts the show at the user's place in the list.
    AutoViewWindow(wxWindow* parent, frmAutoView& rules, std::function<void()> start);
    ~AutoViewWindow() override;

  private:
    void addParts();
    void show();

    frmAutoView& rules_;
    std::function<void()> start_;
    wxStaticText* position_ = nullptr;
    wxStaticText* delay_ = nullptr;
    wxSlider* slider_ = nullptr;
    wxButton* startStop_ = nullptr;
};

}  // namespace vell

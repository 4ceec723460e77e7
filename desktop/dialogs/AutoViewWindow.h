// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <wx/dialog.h>

class wxButton;
class wxGauge;
class wxSizer;
class wxSlider;
class wxStaticText;

namespace vell {

class frmAutoView;

// The small window of the slide show, beside the main window: what it shows, how far it is, how long a clipping stays,
// and the buttons that lead it.
class AutoViewWindow : public wxDialog {
  public:
    struct Events {
        std::function<void()> StartWanted;                        // at the user's place in the list
        std::function<void(const std::string& path)> SlideShown;  // another one than before
    };
    AutoViewWindow(wxWindow* parent, frmAutoView& rules, Events events);
    ~AutoViewWindow() override;

  private:
    void addTexts(wxSizer& sizer);
    [[nodiscard]] wxSizer* delayRow();
    [[nodiscard]] wxSizer* buttonRow();
    void show();
    void showSlide();
    void showButtons();

    frmAutoView& rules_;
    Events events_;
    std::string shownPath_;
    wxStaticText* title_ = nullptr;
    wxStaticText* newspaper_ = nullptr;
    wxStaticText* place_ = nullptr;
    wxGauge* gauge_ = nullptr;
    wxStaticText* delay_ = nullptr;
    wxSlider* slider_ = nullptr;
    wxButton* previous_ = nullptr;
    wxButton* startPause_ = nullptr;
    wxButton* next_ = nullptr;
};

}  // namespace vell

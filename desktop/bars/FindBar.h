// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include <wx/panel.h>

#include "ui/find/FindView.h"

class wxCheckBox;
class wxKeyEvent;
class wxSearchCtrl;
class wxStaticText;

namespace vell {

// The box in which people type what they look for, above the list.
class FindBar : public wxPanel, public FindView {
  public:
    struct Events {
        std::function<void(const std::string& text)> Typed;
        std::function<void(bool inTexts)> InTextsChosen;
        std::function<void(bool inAllDays)> InAllDaysChosen;
        std::function<void()> Left;      // for the list
        std::function<void()> Finished;  // nothing is looked for any more
    };
    explicit FindBar(wxWindow* parent);

    void listenTo(Events events) { events_ = std::move(events); }
    void showInTexts(bool inTexts);
    // The keyboard goes to the box.
    void focusBox();

    void showFindStatus(std::string_view text) override;
    void showFindChoice(std::string_view typed, bool inAllDays) override;

  private:
    void layOut();
    void cutToLength();
    void onKey(wxKeyEvent& event);

    Events events_;
    wxSearchCtrl* box_;
    wxCheckBox* inTexts_;
    wxCheckBox* inAllDays_;
    wxStaticText* status_;
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/calctrl.h>
#include <wx/combo.h>

#include "base/Date.h"

namespace vell {

// The calendar that drops down from a day picker.
class CalendarPopup : public wxCalendarCtrl, public wxComboPopup {
  public:
    explicit CalendarPopup(std::function<void(const Date&)> picked);

    void showDay(const Date& day);

    bool LazyCreate() override { return true; }  // most starts of the program never need it
    bool Create(wxWindow* parent) override;
    void OnPopup() override;
    wxWindow* GetControl() override { return this; }
    [[nodiscard]] wxString GetStringValue() const override;
    wxSize GetAdjustedSize(int minWidth, int preferredHeight, int maxHeight) override;

  private:
    std::function<void(const Date&)> picked_;
    Date day_;
};

}  // namespace vell

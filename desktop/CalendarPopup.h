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

    bool Create(wxWindow* parent) override;
    wxWindow* GetControl() override { return this; }
    [[nodiscard]] wxString GetStringValue() const override;
    wxSize GetAdjustedSize(int minWidth, int preferredHeight, int maxHeight) override;

  private:
    std::function<void(const Date&)> picked_;
    Date day_;
};

}  // namespace vell

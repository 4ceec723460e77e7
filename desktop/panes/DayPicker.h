// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/combo.h>

#include "base/Date.h"

namespace vell {

class CalendarPopup;

// A day, typed as dd/mm/yyyy or picked from a calendar. The toolkit's own picker writes days as the system's language
// does, which for some is the month first: beside the date list such a day would be read wrongly.
class DayPicker : public wxComboCtrl {
  public:
    // `changed` is called when the user has changed the day, not by `show`.
    DayPicker(wxWindow* parent, const wxString& name, std::function<void(const Date&)> changed);

    void show(const Date& day);
    // What stands there counts; what is no day becomes the last one again.
    void takeTyped();

  private:
    void take(const Date& day);
    void onKey(wxKeyEvent& event);

    std::function<void(const Date&)> changed_;
    CalendarPopup* calendar_;
    Date day_;
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <wx/combo.h>

#include "base/Date.h"

namespace vell {

class CalendarPopup;

// A day, typed as dd/mm/yyyy or picked from a calendar. The toolkit's own picker writes days as the system's language
// does, which for some is the month first: beside the date list such a day would be read wrongly.
class DayPicker : public wxComboCtrl {
  public:
    struct Events {
        std::function<void(const Date&)> Changed;          // by the user, not by `show`
        std::function<void(const std::string&)> Mistyped;  // code page text that is no day
    };
    DayPicker(wxWindow* parent, const wxString& name, Events events);

    void show(const Date& day);
    // What stands there counts; what is no day becomes the last one again. False when another day stands there now than
    // was typed.
    bool takeTyped();

  private:
    void take(const Date& day);
    void onKey(wxKeyEvent& event);

    Events events_;
    CalendarPopup* calendar_;
    Date day_;
};

}  // namespace vell

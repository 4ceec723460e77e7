// SPDX-License-Identifier: MIT
#include "desktop/sidebar/CalendarPopup.h"

#include <utility>

#include "desktop/screenText.h"

namespace vell {

CalendarPopup::CalendarPopup(std::function<void(const Date&)> picked) : picked_(std::move(picked)) {}

bool CalendarPopup::Create(wxWindow* parent) {
    if (!wxCalendarCtrl::Create(parent, wxID_ANY, wxDefaultDateTime, wxDefaultPosition, wxDefaultSize,
                                wxCAL_MONDAY_FIRST | wxCAL_SHOW_HOLIDAYS))
        return false;
    Bind(wxEVT_CALENDAR_SEL_CHANGED, [this](wxCalendarEvent& event) { picked_(programDate(event.GetDate())); });
    Bind(wxEVT_CALENDAR_DOUBLECLICKED, [this](wxCalendarEvent& /*event*/) { Dismiss(); });
    Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
        const bool ends = event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_ESCAPE;
        if (ends)
            Dismiss();
        else
            event.Skip();
    });
    return true;
}

void CalendarPopup::showDay(const Date& day) {
    day_ = day;
    if (IsCreated()) SetDate(pickerDate(day));
}

void CalendarPopup::OnPopup() {
    SetDate(pickerDate(day_));
}

wxString CalendarPopup::GetStringValue() const {
    return shownLine(day_.dayName());
}

wxSize CalendarPopup::GetAdjustedSize(int /*minWidth*/, int /*preferredHeight*/, int /*maxHeight*/) {
    return wxCalendarCtrl::GetBestSize();
}

}  // namespace vell

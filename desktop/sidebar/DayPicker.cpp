// SPDX-License-Identifier: MIT
#include "desktop/sidebar/DayPicker.h"

#include <utility>

#include <wx/textctrl.h>

#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"
#include "desktop/sidebar/CalendarPopup.h"

namespace vell {

DayPicker::DayPicker(wxWindow* parent, const wxString& name, Events events)
    : wxComboCtrl(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_PROCESS_ENTER),
      events_(std::move(events)),
      calendar_(new CalendarPopup([this](const Date& day) { take(day); })) {
    SetPopupControl(calendar_);
    setAccessibleName(*GetTextCtrl(), name);
    GetTextCtrl()->Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
        event.Skip();
        takeTyped();
    });
    GetTextCtrl()->Bind(wxEVT_KEY_DOWN, &DayPicker::onKey, this);
    Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent& /*event*/) { takeTyped(); });
}

void DayPicker::show(const Date& day) {
    day_ = day;
    SetText(shownLine(day.dayName()));
    calendar_->showDay(day);
}

void DayPicker::take(const Date& day) {
    if (day == day_) return;
    show(day);
    events_.Changed(day);
}

bool DayPicker::takeTyped() {
    const std::string text = typedText(GetValue().Strip(wxString::both));
    const auto typed = Date::fromDayName(text);
    if (typed) {
        take(*typed);
    } else {
        show(day_);
        events_.Mistyped(text);
    }
    return typed == day_;
}

void DayPicker::onKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    if (event.HasAnyModifiers() || (key != WXK_UP && key != WXK_DOWN)) {
        event.Skip();
        return;
    }
    takeTyped();
    take(day_.plusDays(key == WXK_UP ? 1 : -1));
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "desktop/sidebar/DatePane.h"

#include <algorithm>
#include <utility>

#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/translation.h>

#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"

namespace vell {

DatePane::DatePane(wxWindow* parent, std::function<void(const Date&)> chosen)
    : wxPanel(parent), chosen_(std::move(chosen)) {
    auto* label = new wxStaticText(this, wxID_ANY, _("Da&y:"));
    cmbDate_ = new wxChoice(this, wxID_ANY);
    setAccessibleName(*cmbDate_, _("Day"));
    auto* sizer = new wxBoxSizer(wxHORIZONTAL);
    sizer->Add(label, wxSizerFlags().CentreVertical().Border(wxRIGHT));
    sizer->Add(cmbDate_, wxSizerFlags(1).CentreVertical());
    SetSizer(sizer);
    cmbDate_->Bind(wxEVT_CHOICE, [this](wxCommandEvent& event) {
        if (event.GetSelection() >= 0) chosen_(Date(days_.at(static_cast<std::size_t>(event.GetSelection()))));
    });
}

void DatePane::show(const std::vector<Date>& days, const std::optional<Date>& chosen) {
    // A run refreshes the list all the time; a list that is open under the user's hand must not close for nothing.
    if (days != days_) {
        days_ = days;
        wxArrayString shown;
        for (const Date& day : days_)
            shown.Add(shownLine(day.dayName()));
        cmbDate_->Set(shown);
    }
    const auto found = std::ranges::find(days_, chosen);
    const int selection = found == days_.end() ? wxNOT_FOUND : static_cast<int>(found - days_.begin());
    if (cmbDate_->GetSelection() != selection) cmbDate_->SetSelection(selection);
}

}  // namespace vell

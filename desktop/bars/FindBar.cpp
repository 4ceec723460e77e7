// SPDX-License-Identifier: MIT
#include "desktop/bars/FindBar.h"

#include <wx/checkbox.h>
#include <wx/sizer.h>
#include <wx/srchctrl.h>
#include <wx/stattext.h>
#include <wx/translation.h>

#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"
#include "ui/find/FindQuery.h"

namespace vell {

namespace {
// DIP
constexpr int smallestBox = 110;
constexpr int gap = 10;
}  // namespace

FindBar::FindBar(wxWindow* parent)
    : wxPanel(parent),
      box_(new wxSearchCtrl(this, wxID_ANY)),
      inTexts_(new wxCheckBox(this, wxID_ANY, _("In te&xts"))),
      inAllDays_(new wxCheckBox(this, wxID_ANY, _("&All days"))),
      status_(new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                               wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END)) {
    box_->SetDescriptiveText(_("Find"));
    box_->ShowCancelButton(true);
    box_->SetMinSize(wxSize(FromDIP(smallestBox), -1));
    setAccessibleName(*box_, _("Find"));
    inTexts_->SetToolTip(_("Look in the texts of the clippings, too, not only at what the list says of them"));
    inAllDays_->SetToolTip(_("Look at every day that has been fetched"));
    layOut();
    box_->Bind(wxEVT_TEXT, [this](wxCommandEvent& /*event*/) {
        cutToLength();
        events_.Typed(typedText(box_->GetValue()));
    });
    box_->Bind(wxEVT_SEARCH_CANCEL, [this](wxCommandEvent& /*event*/) { events_.Finished(); });
    inTexts_->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent& event) { events_.InTextsChosen(event.IsChecked()); });
    inAllDays_->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent& event) { events_.InAllDaysChosen(event.IsChecked()); });
    Bind(wxEVT_CHAR_HOOK, &FindBar::onKey, this);
}

void FindBar::layOut() {
    auto* sizer = new wxBoxSizer(wxHORIZONTAL);
    sizer->Add(box_, wxSizerFlags(3).CentreVertical());
    for (wxWindow* choice : {inTexts_, inAllDays_})
        sizer->Add(choice, wxSizerFlags().CentreVertical().Border(wxLEFT, FromDIP(gap)));
    sizer->Add(status_, wxSizerFlags(2).CentreVertical().Border(wxLEFT, FromDIP(gap)));
    SetSizer(sizer);
}

// The box's own limit would refuse what is pasted instead of taking its beginning.
void FindBar::cutToLength() {
    const wxString typed = box_->GetValue();
    if (typed.length() <= FindQuery::longest) return;
    box_->ChangeValue(typed.Left(FindQuery::longest));
    box_->SetInsertionPointEnd();
}

void FindBar::onKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    const bool isInBox = FindFocus() == box_;
    if (key == WXK_ESCAPE)
        events_.Finished();
    else if (isInBox && (key == WXK_RETURN || key == WXK_NUMPAD_ENTER || key == WXK_DOWN))
        events_.Left();
    else
        event.Skip();
}

void FindBar::showInTexts(bool inTexts) {
    inTexts_->SetValue(inTexts);
}

void FindBar::focusBox() {
    box_->SetFocus();
    box_->SelectAll();
}

void FindBar::showFindStatus(std::string_view text) {
    if (const wxString shown = shownLine(text); status_->GetLabelText() != shown) {
        status_->SetLabelText(shown);
        status_->SetToolTip(shown);
    }
}

void FindBar::showFindChoice(std::string_view typed, bool inAllDays) {
    if (typedText(box_->GetValue()) != typed) box_->ChangeValue(shownLine(typed));
    inAllDays_->SetValue(inAllDays);
}

}  // namespace vell

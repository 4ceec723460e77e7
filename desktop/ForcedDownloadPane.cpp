// SPDX-License-Identifier: MIT
#include "desktop/ForcedDownloadPane.h"

#include <utility>

#include <wx/button.h>
#include <wx/datectrl.h>
#include <wx/dateevt.h>
#include <wx/radiobut.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "desktop/accessibleName.h"
#include "desktop/commandIds.h"
#include "desktop/screenText.h"

namespace vell {

namespace {

constexpr unsigned long red = 255;
constexpr unsigned long green = 65280;

wxDatePickerCtrl* datePicker(wxWindow* parent, const wxString& name) {
    auto* picker = new wxDatePickerCtrl(parent, wxID_ANY, wxDefaultDateTime, wxDefaultPosition, wxDefaultSize,
                                        wxDP_DROPDOWN | wxDP_SHOWCENTURY);
    setAccessibleName(*picker, name);
    return picker;
}

}  // namespace

ForcedDownloadPane::ForcedDownloadPane(wxWindow* parent, Events events) : wxPanel(parent), events_(std::move(events)) {
    auto* inner = new wxPanel(this);
    inner->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    layOut(*inner);
    auto* frame2 = new wxBoxSizer(wxVERTICAL);
    frame2->Add(inner, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(3)));
    SetSizer(frame2);

    today_->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent& /*event*/) { choose(true); });
    otherFrom_->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent& /*event*/) { choose(false); });
    dtFromDate_->Bind(wxEVT_DATE_CHANGED,
                      [this](wxDateEvent& /*event*/) { report(*dtFromDate_, events_.FromChanged); });
    dtToDate_->Bind(wxEVT_DATE_CHANGED, [this](wxDateEvent& /*event*/) { report(*dtToDate_, events_.ToChanged); });
}

void ForcedDownloadPane::layOut(wxPanel& inner) {
    today_ = new wxRadioButton(&inner, wxID_ANY, "&Today", wxDefaultPosition, wxDefaultSize, wxRB_GROUP);
    otherFrom_ = new wxRadioButton(&inner, wxID_ANY, "Other f&rom");
    dtFromDate_ = datePicker(&inner, "From");
    auto* to = new wxStaticText(&inner, wxID_ANY, "to");
    dtToDate_ = datePicker(&inner, "To");
    cmdStartDownload_ = new wxButton(&inner, command::Start, "Start do&wnload");
    cmdStopDownload_ = new wxButton(&inner, command::Stop, "&Stop download");
    cmdStopDownload_->Hide();

    auto* range = new wxFlexGridSizer(2, FromDIP(wxSize(8, 6)));
    range->AddGrowableCol(1);
    range->Add(otherFrom_, wxSizerFlags().CentreVertical());
    range->Add(dtFromDate_, wxSizerFlags().Expand());
    range->Add(to, wxSizerFlags().CentreVertical().Right());
    range->Add(dtToDate_, wxSizerFlags().Expand());

    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(today_, wxSizerFlags().Border(wxBOTTOM));
    sizer->Add(range, wxSizerFlags().Expand().DoubleBorder(wxBOTTOM));
    sizer->Add(cmdStartDownload_, wxSizerFlags().Expand());
    sizer->Add(cmdStopDownload_, wxSizerFlags().Expand());
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(sizer, wxSizerFlags(1).Expand().Border(wxALL));
    inner.SetSizer(margin);
}

void ForcedDownloadPane::choose(bool onlyToday) {
    events_.RangeChosen(onlyToday);
}

void ForcedDownloadPane::report(wxDatePickerCtrl& picker, const std::function<void(const Date&)>& changed) {
    otherFrom_->SetValue(true);  // whoever picks a day means it
    events_.RangeChosen(false);
    if (picker.GetValue().IsValid()) changed(programDate(picker.GetValue()));
}

void ForcedDownloadPane::showRunning(bool running) {
    running_ = running;
    const bool hadFocus = cmdStartDownload_->HasFocus() || cmdStopDownload_->HasFocus();
    cmdStartDownload_->Show(!running);
    cmdStopDownload_->Show(running);
    if (hadFocus) (running ? cmdStopDownload_ : cmdStartDownload_)->SetFocus();
    SetBackgroundColour(wxColour(running ? red : green));
    Layout();
    Refresh();
}

void ForcedDownloadPane::showRange(const Date& from, const Date& to) {
    dtFromDate_->SetValue(pickerDate(from));
    dtToDate_->SetValue(pickerDate(to));
}

}  // namespace vell

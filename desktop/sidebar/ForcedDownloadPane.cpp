// SPDX-License-Identifier: MIT
#include "desktop/sidebar/ForcedDownloadPane.h"

#include <utility>

#include <wx/button.h>
#include <wx/radiobut.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/translation.h>

#include "desktop/commandIds.h"
#include "desktop/sidebar/DayPicker.h"

namespace vell {

namespace {

wxColour edgeColour(MainView::ForcedRun state) {
    constexpr unsigned long red = 255;
    constexpr unsigned long green = 65280;
    switch (state) {
        case MainView::ForcedRun::Running:
            return {red};
        case MainView::ForcedRun::EndedWell:
            return {green};
        case MainView::ForcedRun::Failed:
            return {255, 140, 0};
        case MainView::ForcedRun::Stopped:
            break;
    }
    return {};
}

}  // namespace

ForcedDownloadPane::ForcedDownloadPane(wxWindow* parent, Events events) : wxPanel(parent), events_(std::move(events)) {
    auto* inner = new wxPanel(this);
    inner->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    layOut(*inner);
    auto* frame2 = new wxBoxSizer(wxVERTICAL);
    frame2->Add(inner, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(3)));
    SetSizer(frame2);

    today_->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent& /*event*/) { events_.RangeChosen(true); });
    otherFrom_->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent& /*event*/) { events_.RangeChosen(false); });
}

void ForcedDownloadPane::layOut(wxPanel& inner) {
    today_ = new wxRadioButton(&inner, wxID_ANY, _("&Today"), wxDefaultPosition, wxDefaultSize, wxRB_GROUP);
    otherFrom_ = new wxRadioButton(&inner, wxID_ANY, _("Other fro&m"));
    const auto fromChanged = [this](const Date& from) {
        chooseRange();
        events_.FromChanged(from);
    };
    const auto toChanged = [this](const Date& to) {
        chooseRange();
        events_.ToChanged(to);
    };
    dtFromDate_ = new DayPicker(&inner, _("From"), {fromChanged, events_.DayMistyped});
    auto* toLabel = new wxStaticText(&inner, wxID_ANY, _("to"));
    dtToDate_ = new DayPicker(&inner, _("To"), {toChanged, events_.DayMistyped});
    cmdStartDownload_ = new wxButton(&inner, command::Start, _("Start do&wnload"));
    cmdStopDownload_ = new wxButton(&inner, command::Stop, _("&Stop download"));
    cmdStopDownload_->Hide();

    auto* range = new wxFlexGridSizer(2, FromDIP(wxSize(8, 6)));
    range->AddGrowableCol(1);
    range->Add(otherFrom_, wxSizerFlags().CentreVertical());
    range->Add(dtFromDate_, wxSizerFlags().Expand());
    range->Add(toLabel, wxSizerFlags().CentreVertical().Right());
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

// Whoever picks a day means it.
void ForcedDownloadPane::chooseRange() {
    otherFrom_->SetValue(true);
    events_.RangeChosen(false);
}

void ForcedDownloadPane::show(MainView::ForcedRun state) {
    const bool running = state == MainView::ForcedRun::Running;
    running_ = running;
    const bool hadFocus = cmdStartDownload_->HasFocus() || cmdStopDownload_->HasFocus();
    cmdStartDownload_->Show(!running);
    cmdStopDownload_->Show(running);
    if (hadFocus) (running ? cmdStopDownload_ : cmdStartDownload_)->SetFocus();
    SetBackgroundColour(edgeColour(state));
    Layout();
    Refresh();
}

bool ForcedDownloadPane::takeTyped() {
    const bool fromStands = dtFromDate_->takeTyped(), toStands = dtToDate_->takeTyped();
    return fromStands && toStands;
}

void ForcedDownloadPane::showRange(const Date& from, const Date& to) {
    dtFromDate_->show(from);
    dtToDate_->show(to);
}

}  // namespace vell

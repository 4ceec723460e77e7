// SPDX-License-Identifier: MIT
#include "desktop/dialogs/AutoViewWindow.h"

#include <utility>

#include <wx/button.h>
#include <wx/gauge.h>
#include <wx/sizer.h>
#include <wx/slider.h>
#include <wx/stattext.h>
#include <wx/translation.h>

#include "desktop/dialogs/finishDialog.h"
#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"
#include "ui/dialogs/frmAutoView.h"

namespace vell {

AutoViewWindow::AutoViewWindow(wxWindow* parent, frmAutoView& rules, Events events)
    : wxDialog(parent, wxID_ANY, _("Auto view")), rules_(rules), events_(std::move(events)) {
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    addTexts(*sizer);
    sizer->Add(delayRow(), wxSizerFlags().Expand().DoubleBorder(wxLEFT | wxRIGHT));
    sizer->Add(buttonRow(), wxSizerFlags().Expand().DoubleBorder());
    SetEscapeId(wxID_CLOSE);
    startPause_->SetDefault();
    finishDialog(*this, sizer, *slider_);
    Bind(
        wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { Close(); }, wxID_CLOSE);
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& /*event*/) { Destroy(); });
    rules_.setOnChanged([this] { show(); });
    show();
}

AutoViewWindow::~AutoViewWindow() {
    rules_.setOnChanged(nullptr);
    rules_.stop();
}

void AutoViewWindow::addTexts(wxSizer& sizer) {
    const auto line = [this] {
        return new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(420, -1)),
                                wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    };
    title_ = line();
    title_->SetFont(title_->GetFont().Bold());
    newspaper_ = line();
    gauge_ = new wxGauge(this, wxID_ANY, 1);
    setAccessibleName(*gauge_, _("Place in the list"));
    place_ = new wxStaticText(this, wxID_ANY, _("Not begun"));
    auto* progress = new wxBoxSizer(wxHORIZONTAL);
    progress->Add(gauge_, wxSizerFlags(1).CentreVertical().Border(wxRIGHT));
    progress->Add(place_, wxSizerFlags().CentreVertical());
    sizer.Add(title_, wxSizerFlags().Expand().DoubleBorder(wxLEFT | wxTOP | wxRIGHT));
    sizer.Add(newspaper_, wxSizerFlags().Expand().DoubleBorder(wxLEFT | wxRIGHT));
    sizer.Add(progress, wxSizerFlags().Expand().DoubleBorder());
}

wxSizer* AutoViewWindow::delayRow() {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    auto* label = new wxStaticText(this, wxID_ANY, _("Sec&onds per clipping:"));
    slider_ = new wxSlider(this, wxID_ANY, rules_.delay(), frmAutoView::shortestDelay, frmAutoView::longestDelay);
    setAccessibleName(*slider_, _("Seconds per clipping"));
    delay_ = new wxStaticText(this, wxID_ANY, "00");
    row->Add(label, wxSizerFlags().CentreVertical());
    row->Add(slider_, wxSizerFlags(1).CentreVertical().Border(wxLEFT | wxRIGHT));
    row->Add(delay_, wxSizerFlags().CentreVertical());
    slider_->Bind(wxEVT_SLIDER, [this](wxCommandEvent& /*event*/) { rules_.setDelay(slider_->GetValue()); });
    return row;
}

wxSizer* AutoViewWindow::buttonRow() {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const auto add = [&](const wxString& label, auto action) {
        auto* button = new wxButton(this, wxID_ANY, label);
        // A clipping that cannot be opened is told in a box, which must not hold up the button's own event.
        button->Bind(wxEVT_BUTTON, [this, action](wxCommandEvent& /*event*/) { CallAfter(action); });
        row->Add(button, wxSizerFlags().Border(wxRIGHT));
        return button;
    };
    previous_ = add(_("P&revious"), [this] { rules_.showPrevious(); });
    startPause_ = add(_("&Start"), [this] { rules_.isRunning() ? rules_.stop() : events_.StartWanted(); });
    next_ = add(_("&Next"), [this] { rules_.showNext(); });
    row->AddStretchSpacer();
    row->Add(new wxButton(this, wxID_CLOSE));
    return row;
}

void AutoViewWindow::show() {
    showSlide();
    showButtons();
    slider_->SetValue(rules_.delay());
    delay_->SetLabelText(wxString::Format("%d", rules_.delay()));
    Layout();
}

void AutoViewWindow::showSlide() {
    const frmAutoView::Slide* slide = rules_.slide();
    title_->SetLabelText(slide ? shownLine(slide->Title) : _("Opens one clipping after another."));
    newspaper_->SetLabelText(slide ? shownLine(slide->Newspaper) : wxString());
    if (!slide) return;
    gauge_->SetRange(static_cast<int>(rules_.count()));
    gauge_->SetValue(static_cast<int>(rules_.number()));
    place_->SetLabelText(wxString::Format(_("%zu of %zu"), rules_.number(), rules_.count()));
    if (std::exchange(shownPath_, slide->Path) != slide->Path) events_.SlideShown(slide->Path);
}

void AutoViewWindow::showButtons() {
    startPause_->SetLabel(rules_.isRunning() ? _("&Pause") : rules_.hasNext() ? _("&Go on") : _("&Start"));
    previous_->Enable(rules_.hasPrevious());
    next_->Enable(rules_.hasNext());
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "desktop/dialogs/AutoViewWindow.h"

#include <utility>

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/slider.h>
#include <wx/stattext.h>

#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"
#include "ui/dialogs/frmAutoView.h"

namespace vell {

AutoViewWindow::AutoViewWindow(wxWindow* parent, frmAutoView& rules, std::function<void()> start)
    : wxDialog(parent, wxID_ANY, "Auto view"), rules_(rules), start_(std::move(start)) {
    addParts();
    CentreOnParent();
    rules_.setOnChanged([this] { show(); });
    slider_->Bind(wxEVT_SLIDER, [this](wxCommandEvent& /*event*/) {
        rules_.setDelay(slider_->GetValue());
        show();
    });
    startStop_->Bind(wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) {
        if (rules_.isRunning())
            rules_.stop();
        else
            start_();
    });
    Bind(
        wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { Close(); }, wxID_CLOSE);
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& /*event*/) { Destroy(); });
    show();
}

AutoViewWindow::~AutoViewWindow() {
    rules_.setOnChanged(nullptr);
    rules_.stop();
}

void AutoViewWindow::addParts() {
    position_ = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(340, -1)),
                                 wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    auto* label = new wxStaticText(this, wxID_ANY, "Sec&onds per clipping:");
    slider_ = new wxSlider(this, wxID_ANY, rules_.delay(), frmAutoView::shortestDelay, frmAutoView::longestDelay);
    setAccessibleName(*slider_, "Seconds per clipping");
    delay_ = new wxStaticText(this, wxID_ANY, "00");
    startStop_ = new wxButton(this, wxID_ANY, "&Start");
    auto* delays = new wxBoxSizer(wxHORIZONTAL);
    delays->Add(label, wxSizerFlags().CentreVertical());
    delays->Add(slider_, wxSizerFlags(1).CentreVertical().Border(wxLEFT | wxRIGHT));
    delays->Add(delay_, wxSizerFlags().CentreVertical());
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->AddStretchSpacer();
    buttons->Add(startStop_);
    buttons->Add(new wxButton(this, wxID_CLOSE, "&Close"), wxSizerFlags().Border(wxLEFT));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(position_, wxSizerFlags().Expand().DoubleBorder());
    sizer->Add(delays, wxSizerFlags().Expand().DoubleBorder(wxLEFT | wxRIGHT));
    sizer->Add(buttons, wxSizerFlags().Expand().DoubleBorder());
    SetSizerAndFit(sizer);
    SetEscapeId(wxID_CLOSE);
    startStop_->SetDefault();
}

void AutoViewWindow::show() {
    const std::string position = rules_.position();
    position_->SetLabelText(position.empty() ? wxString("Opens one clipping after another.") : shownLine(position));
    startStop_->SetLabel(rules_.isRunning() ? "&Stop" : "&Start");
    delay_->SetLabelText(wxString::Format("%d", rules_.delay()));
}

}  // namespace vell

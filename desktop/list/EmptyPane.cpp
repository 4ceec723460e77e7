// SPDX-License-Identifier: MIT
#include "desktop/list/EmptyPane.h"

#include <algorithm>
#include <utility>

#include <wx/button.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include "desktop/commandIds.h"
#include "desktop/pictures.h"
#include "desktop/screenText.h"
#include "ui/list/EmptyHint.h"

namespace vell {

namespace {

// DIP
constexpr int widestText = 420;
constexpr int roomForPicture = 250;

struct Offer {
    int Id;
    wxString Label;
};

// Without mnemonics: the same commands have theirs elsewhere in the window.
Offer offerOf(EmptyHint::Remedy remedy) {
    switch (remedy) {
        case EmptyHint::Remedy::Setup:
            return {command::Setup, _("Setup")};
        case EmptyHint::Remedy::Download:
            return {command::Start, _("Start download")};
        case EmptyHint::Remedy::ShowAll:
            return {command::ShowAll, _("Show all")};
        case EmptyHint::Remedy::None:
            break;
    }
    return {wxID_ANY, ""};
}

}  // namespace

EmptyPane::EmptyPane(wxWindow* parent, wxWindow& list, std::function<void(bool isShown)> changed)
    : wxPanel(parent),
      list_(list),
      changed_(std::move(changed)),
      picture_(new wxStaticBitmap(this, wxID_ANY, programPicture())),
      title_(new wxStaticText(this, wxID_ANY, "")),
      text_(new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxALIGN_CENTRE_HORIZONTAL)),
      remedy_(new wxButton(this, wxID_ANY)) {
    SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX));
    title_->SetFont(GetFont().Scaled(1.4F).Bold());
    layOut();
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        fit();
    });
    Hide();
}

void EmptyPane::layOut() {
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->AddStretchSpacer(2);
    sizer->Add(picture_, wxSizerFlags().Centre().DoubleBorder(wxBOTTOM));
    sizer->Add(title_, wxSizerFlags().Centre().DoubleBorder(wxLEFT | wxRIGHT | wxBOTTOM));
    sizer->Add(text_, wxSizerFlags().Centre().DoubleBorder(wxLEFT | wxRIGHT | wxBOTTOM));
    sizer->Add(remedy_, wxSizerFlags().Centre().DoubleBorder(wxTOP));
    sizer->AddStretchSpacer(3);
    SetSizer(sizer);
}

void EmptyPane::show(const EmptyHint& hint) {
    offer(hint);
    title_->SetLabelText(shownLine(hint.Title));
    wholeText_ = shownText(hint.Text);
    change(true);
    fit();
}

void EmptyPane::hide() {
    change(false);
}

void EmptyPane::offer(const EmptyHint& hint) {
    const Offer offered = offerOf(hint.Helps);
    remedy_->SetId(offered.Id);
    remedy_->SetLabel(offered.Label);
    remedy_->Show(offered.Id != wxID_ANY);
}

void EmptyPane::fit() {
    picture_->Show(GetClientSize().GetHeight() >= FromDIP(roomForPicture));
    text_->SetLabelText(wholeText_);
    text_->Wrap(std::max(1, std::min(FromDIP(widestText), GetClientSize().GetWidth() - FromDIP(40))));
    Layout();
}

void EmptyPane::change(bool isShown) {
    if (isShown == IsShown()) return;
    wxWindow& gone = isShown ? list_ : *this;
    const bool hadKeyboard = gone.IsDescendant(FindFocus());
    Show(isShown);
    list_.Show(!isShown);
    GetParent()->Layout();
    if (hadKeyboard) focus();
    changed_(isShown);
}

void EmptyPane::focus() {
    (IsShown() ? static_cast<wxWindow&>(*remedy_) : list_).SetFocus();
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "desktop/sidebar/AlertPanel.h"

#include <algorithm>
#include <utility>

#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/translation.h>

#include "base/text.h"
#include "desktop/native/accessibleName.h"
#include "desktop/screenText.h"

namespace vell {

AlertPanel::AlertPanel(wxWindow* parent, Events events) : wxPanel(parent), events_(std::move(events)) {
    auto* title = new wxStaticText(this, wxID_ANY, _("Ale&rt"));
    title->SetFont(title->GetFont().Bold());
    new_ = new wxStaticText(this, wxID_ANY, _("new"));
    new_->SetFont(new_->GetFont().Bold());
    new_->SetForegroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_HOTLIGHT));
    new_->Hide();
    auto* heading = new wxBoxSizer(wxHORIZONTAL);
    heading->Add(title, wxSizerFlags(1));
    heading->Add(new_);
    auto* paper = new wxPanel(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_THEME);
    paper->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    text_ = new wxTextCtrl(paper, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(120, -1)),
                           wxTE_MULTILINE | wxTE_READONLY | wxTE_RICH2 | wxTE_BESTWRAP | wxBORDER_NONE);
    setAccessibleName(*text_, _("Alert"));
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(text_, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(4)));
    paper->SetSizer(margin);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(heading, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(3)));
    sizer->Add(paper, wxSizerFlags(1).Expand());
    SetMinSize(FromDIP(wxSize(-1, 64)));
    SetSizer(sizer);
    listen();
    Hide();
}

void AlertPanel::listen() {
    text_->Bind(wxEVT_MOTION, &AlertPanel::onMotion, this);
    text_->Bind(wxEVT_LEFT_UP, &AlertPanel::onClick, this);
    text_->Bind(wxEVT_KEY_DOWN, &AlertPanel::onKey, this);
    text_->Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& event) {
        event.Skip();
        events_.Seen();
    });
}

void AlertPanel::show(std::string_view text) {
    const std::string shown = Replace(Trim(text), "\r\n", "\n");
    if (shown != shown_) {
        shown_ = shown;
        text_->ChangeValue(shownText(shown_));
        markAddresses();
    }
    if (IsShown() == !shown_.empty()) return;
    Show(!shown_.empty());
    GetParent()->Layout();
}

void AlertPanel::showIsNew(bool isNew) {
    new_->Show(isNew);
    Layout();
}

void AlertPanel::markAddresses() {
    addresses_ = addressesIn(shown_);
    wxTextAttr plain(GetForegroundColour());
    plain.SetFontUnderlined(false);
    text_->SetStyle(0, text_->GetLastPosition(), plain);
    wxTextAttr link(wxSystemSettings::GetColour(wxSYS_COLOUR_HOTLIGHT));
    link.SetFontUnderlined(true);
    for (const AddressPlace& one : addresses_)
        text_->SetStyle(static_cast<long>(one.Begin), static_cast<long>(one.Begin + one.Length), link);
}

void AlertPanel::onMotion(wxMouseEvent& event) {
    event.Skip();
    events_.Seen();
    text_->SetCursor(addressUnder(event) ? wxCURSOR_HAND : wxCURSOR_IBEAM);
}

// A click that ends a selection chooses nothing.
void AlertPanel::onClick(wxMouseEvent& event) {
    event.Skip();
    if (!text_->GetStringSelection().empty()) return;
    if (const auto address = addressUnder(event)) choose(*address);
}

void AlertPanel::onKey(wxKeyEvent& event) {
    const bool isEnter = event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER;
    const auto address = isEnter ? addressAt(text_->GetInsertionPoint()) : std::nullopt;
    if (address)
        choose(*address);
    else
        event.Skip();
}

std::optional<AddressPlace> AlertPanel::addressAt(long place) const {
    const auto found = std::ranges::find_if(
        addresses_, [&](const AddressPlace& one) { return place >= 0 && one.holds(static_cast<std::size_t>(place)); });
    return found == addresses_.end() ? std::nullopt : std::optional(*found);
}

std::optional<AddressPlace> AlertPanel::addressUnder(const wxMouseEvent& event) const {
    long place = wxNOT_FOUND;
    return text_->HitTest(event.GetPosition(), &place) == wxTE_HT_ON_TEXT ? addressAt(place) : std::nullopt;
}

// The question that follows stays open for as long as its reader wants, which the control must not wait for.
void AlertPanel::choose(const AddressPlace& place) {
    CallAfter([this, address = shown_.substr(place.Begin, place.Length)] { events_.AddressChosen(address); });
}

}  // namespace vell

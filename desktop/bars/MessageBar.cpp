// SPDX-License-Identifier: MIT
#include "desktop/bars/MessageBar.h"

#include <algorithm>
#include <array>
#include <utility>

#include <wx/artprov.h>
#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/translation.h>

#include "desktop/bars/WrappedText.h"
#include "desktop/bars/messageLooks.h"
#include "desktop/commandIds.h"
#include "desktop/native/accessibleName.h"
#include "desktop/native/notificationRole.h"
#include "desktop/screenText.h"
#include "platform/Clock.h"

namespace vell {

namespace {

constexpr std::size_t longestTip = 1000;
constexpr int roomForOneRow = 820;  // DIP

wxButton* flatButton(wxWindow& parent, const wxString& label, const wxString& name) {
    auto* button =
        new wxButton(&parent, wxID_ANY, label, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE | wxBU_EXACTFIT);
    button->SetToolTip(name);
    setAccessibleName(*button, name);
    return button;
}

}  // namespace

MessageBar::MessageBar(wxWindow* parent, const Clock& clock, Events events)
    : wxPanel(parent), clock_(clock), events_(std::move(events)) {
    setAccessibleName(*this, _("Message"));
    setNotificationRole(*this);
    icon_ = new wxStaticBitmap(this, wxID_ANY, wxBitmapBundle());
    time_ = new wxStaticText(this, wxID_ANY, "");
    text_ = new WrappedText(this, [this] { GetParent()->Layout(); });
    addButtons();
    addPager();
    layOut();
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_ESCAPE && !event.HasAnyModifiers())
            dismiss();
        else
            event.Skip();
    });
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        arrange();
        event.Skip();
    });
    Hide();
}

// Those with the number of a command are the window's matter.
void MessageBar::addButtons() {
    buttons_[MessageAction::ShowFailedFiles] = new wxButton(this, command::ShowFailedFiles, _("Show fa&iled files"));
    buttons_[MessageAction::TryAgain] = new wxButton(this, command::TryAgain, _("Try a&gain"));
    buttons_[MessageAction::Setup] = new wxButton(this, wxID_ANY, _("Set&up"));
    buttons_[MessageAction::Setup]->Bind(wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) {
        if (const Message* message = messages_.shown()) events_.SetupWanted(message->Setting);
    });
}

void MessageBar::addPager() {
    older_ = flatButton(*this, L"\u2039", _("Older message"));
    number_ = new wxStaticText(this, wxID_ANY, "");
    newer_ = flatButton(*this, L"\u203a", _("Newer message"));
    dismiss_ = flatButton(*this, L"\u00d7", _("Dismiss"));
    older_->Bind(wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { turn(&MessageList::showOlder); });
    newer_->Bind(wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { turn(&MessageList::showNewer); });
    dismiss_->Bind(wxEVT_BUTTON, [this](wxCommandEvent& /*event*/) { dismiss(); });
}

void MessageBar::layOut() {
    auto* told = new wxBoxSizer(wxHORIZONTAL);
    told->Add(icon_, wxSizerFlags().CentreVertical().Border(wxRIGHT));
    told->Add(time_, wxSizerFlags().CentreVertical().Border(wxRIGHT));
    told->Add(text_, wxSizerFlags(1).CentreVertical());
    actions_ = new wxBoxSizer(wxHORIZONTAL);
    body_ = new wxBoxSizer(wxHORIZONTAL);
    body_->Add(told, wxSizerFlags(1).Expand());
    body_->Add(actions_, wxSizerFlags().CentreVertical());
    auto* sizer = new wxBoxSizer(wxHORIZONTAL);
    sizer->Add(body_, wxSizerFlags(1).Expand().Border());
    for (wxWindow* part : std::array<wxWindow*, 4>{older_, number_, newer_, dismiss_})
        sizer->Add(part, wxSizerFlags().CentreVertical().Border(wxTOP | wxBOTTOM));
    sizer->AddSpacer(FromDIP(4));
    SetSizer(sizer);
}

void MessageBar::arrange() {
    const bool isNarrow = GetSize().GetWidth() < FromDIP(roomForOneRow);
    const int wanted = isNarrow ? wxVERTICAL : wxHORIZONTAL;
    if (body_->GetOrientation() == wanted) return;
    body_->SetOrientation(wanted);
    CallAfter([this] { GetParent()->Layout(); });
}

void MessageBar::note(std::string_view text) {
    messages_.add({.Text = std::string(text), .When = clock_.Now()});
    show();
}

void MessageBar::add(const Message& message) {
    messages_.add(message);
    show();
}

void MessageBar::forgetRun() {
    messages_.forgetRun();
    show();
}

void MessageBar::show() {
    const Message* message = messages_.shown();
    const bool hadKeyboard = IsDescendant(FindFocus());
    if (message != nullptr) {
        const bool isFailure = message->Weight == Message::Kind::Failure;
        SetBackgroundColour(backColour(message->Weight));
        icon_->SetBitmap(wxArtProvider::GetBitmapBundle(isFailure ? wxART_ERROR : wxART_INFORMATION, wxART_MENU));
        time_->SetLabel(whenText(message->When));
        text_->show(firstLines(message->Text));
        text_->SetToolTip(shownText(message->Text.substr(0, longestTip)));
        showActions(*message);
    }
    Show(message != nullptr);
    GetParent()->Layout();
    Refresh();
    if (message == nullptr && hadKeyboard) events_.KeyboardLeft();
}

void MessageBar::showActions(const Message& message) {
    actions_->Clear();
    for (const auto& [action, button] : buttons_)
        button->Hide();
    wxWindow* before = text_;
    for (const MessageAction action : message.Actions) {
        wxButton* button = buttons_.at(action);
        actions_->Add(button, wxSizerFlags().Border(wxLEFT));
        button->MoveAfterInTabOrder(std::exchange(before, button));
        button->Show();
    }
    const bool isOneOfMany = messages_.count() > 1;
    for (wxWindow* part : std::array<wxWindow*, 3>{older_, number_, newer_})
        part->Show(isOneOfMany);
    number_->SetLabel(wxString::Format(_("%zu of %zu"), messages_.number(), messages_.count()));
    older_->Enable(messages_.hasOlder());
    newer_->Enable(messages_.hasNewer());
}

void MessageBar::turn(void (MessageList::*way)()) {
    (messages_.*way)();
    show();
}

void MessageBar::dismiss() {
    messages_.dismiss();
    show();
}

void MessageBar::takeKeyboard() {
    const Message* message = messages_.shown();
    if (message == nullptr) return;
    const auto helps = [&](MessageAction action) { return buttons_.at(action)->IsEnabled(); };
    const auto best = std::ranges::find_if(message->Actions, helps);
    (best == message->Actions.end() ? dismiss_ : buttons_.at(*best))->SetFocus();
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string_view>

#include <wx/panel.h>

#include "ui/MessageList.h"

class wxBoxSizer;
class wxButton;
class wxStaticBitmap;
class wxStaticText;

namespace vell {

class Clock;
class WrappedText;

// What people are to know, across the window and until they dismiss it: what it is, since when, and buttons for what
// helps. It stops nothing, and is there only while it has something to show.
class MessageBar : public wxPanel {
  public:
    struct Events {
        // Setup is wanted, for that setting where there is one.
        std::function<void(const std::optional<SettingField>& setting)> SetupWanted;
        // The keyboard was in the bar, and the bar has gone.
        std::function<void()> KeyboardLeft;
    };
    MessageBar(wxWindow* parent, const Clock& clock, Events events);

    void note(std::string_view text);
    void add(const Message& message);
    void forgetRun();
    // To the button that helps most.
    void takeKeyboard();

  private:
    void addButtons();
    void addPager();
    void layOut();
    void arrange();
    void show();
    void showActions(const Message& message);
    void turn(void (MessageList::*way)());
    void dismiss();

    const Clock& clock_;
    Events events_;
    MessageList messages_;
    wxStaticBitmap* icon_ = nullptr;
    wxStaticText* time_ = nullptr;
    WrappedText* text_ = nullptr;
    std::map<MessageAction, wxButton*> buttons_;
    wxButton* older_ = nullptr;
    wxStaticText* number_ = nullptr;
    wxButton* newer_ = nullptr;
    wxButton* dismiss_ = nullptr;
    wxBoxSizer* body_ = nullptr;     // text, then buttons: beside each other where there is room
    wxBoxSizer* actions_ = nullptr;  // the buttons
};

}  // namespace vell

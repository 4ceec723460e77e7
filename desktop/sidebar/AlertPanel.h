// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <wx/panel.h>

#include "ui/AlertLinks.h"

class wxKeyEvent;
class wxMouseEvent;
class wxStaticText;
class wxTextCtrl;

namespace vell {

// The day's alert. It is not there when there is none. One that nobody has looked at is called new; to look at it is
// to put the mouse or the keyboard into it. Addresses in it are chosen with a click, or with Enter where the cursor is.
class AlertPanel : public wxPanel {
  public:
    struct Events {
        std::function<void()> Seen;
        std::function<void(const std::string& address)> AddressChosen;
    };
    AlertPanel(wxWindow* parent, Events events);

    void show(std::string_view text);
    void showIsNew(bool isNew);

  private:
    void listen();
    void markAddresses();
    void onMotion(wxMouseEvent& event);
    void onClick(wxMouseEvent& event);
    void onKey(wxKeyEvent& event);
    [[nodiscard]] std::optional<AddressPlace> addressAt(long place) const;
    [[nodiscard]] std::optional<AddressPlace> addressUnder(const wxMouseEvent& event) const;
    void choose(const AddressPlace& place);

    Events events_;
    std::string shown_;  // one character for each of the control's
    std::vector<AddressPlace> addresses_;
    wxStaticText* new_ = nullptr;
    wxTextCtrl* text_ = nullptr;
};

}  // namespace vell

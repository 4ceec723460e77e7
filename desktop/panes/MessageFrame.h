// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include <wx/panel.h>

class wxStaticText;

namespace vell {

// A message across the window that stays until OK is pressed, and stops nothing. Only there while it has one to show.
class MessageFrame : public wxPanel {
  public:
    explicit MessageFrame(wxWindow* parent);

    // Another one takes its place. Its first lines, each cut where the window ends; the tip has more.
    void show(std::string_view text);

  private:
    void close();

    wxStaticText* text_;
};

}  // namespace vell

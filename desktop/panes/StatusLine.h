// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include <wx/statusbr.h>

class wxStaticText;

namespace vell {

// The status bar: the count of clippings, and the status line in the second panel. The texts are controls of their own,
// since a screen reader cannot see what a status bar draws.
class StatusLine : public wxStatusBar {
  public:
    explicit StatusLine(wxWindow* parent);

    // Seen at once, also while the program works.
    void showStatus(std::string_view text);
    void showCount(std::string_view text);

  private:
    void placeTexts();

    std::array<wxStaticText*, 2> panels_{};
};

}  // namespace vell

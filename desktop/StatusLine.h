// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include <wx/statusbr.h>

namespace vell {

// The status bar: the count of clippings, and the status line in the second panel.
class StatusLine : public wxStatusBar {
  public:
    explicit StatusLine(wxWindow* parent);

    // Seen at once, also while the program works.
    void showStatus(std::string_view text);
    void showCount(std::string_view text);

  private:
    void explain(wxMouseEvent& event);
};

}  // namespace vell

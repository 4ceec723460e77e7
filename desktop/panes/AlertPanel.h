// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include <wx/panel.h>

class wxTextCtrl;

namespace vell {

// The day's alert. It is not there when there is none.
class AlertPanel : public wxPanel {
  public:
    explicit AlertPanel(wxWindow* parent);

    void show(std::string_view text);

  private:
    wxTextCtrl* text_;
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <wx/panel.h>

class wxGauge;

namespace vell {

// The two bars of a run: its current file, and all of it.
class ProgressPane : public wxPanel {
  public:
    explicit ProgressPane(wxWindow* parent);

    // Percent, 0 to 100.
    void show(int currentFile, int wholeRun);

  private:
    wxGauge* currentFile_;
    wxGauge* wholeRun_;
};

}  // namespace vell

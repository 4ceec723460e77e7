// SPDX-License-Identifier: MIT
#pragma once

#include <wx/panel.h>

#include "desktop/bars/PacedPainting.h"

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
    int currentPercent_ = 0;
    int wholePercent_ = 0;
    PacedPainting painting_;
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>

#include <wx/statusbr.h>

#include "desktop/bars/PacedPainting.h"

class wxStaticText;

namespace vell {

struct CountTexts;

// The status bar: the counts of clippings, the status line, how the last download went and when the next one is due.
// The texts are controls of their own, since a screen reader cannot see what a status bar draws. A panel is there when
// it has something to say; of the last two, those for which the window is wide enough.
class StatusLine : public wxStatusBar {
  public:
    explicit StatusLine(wxWindow* parent);

    // Seen within a moment, also while the program works.
    void showStatus(std::string_view text);
    void showCounts(const CountTexts& texts);
    void showLastRun(std::string_view text);
    void showNextRun(std::string_view text);

  private:
    enum Panel : std::size_t { Listed, Unread, New, Status, LastRun, NextRun, PanelCount };
    using Panels = std::array<bool, PanelCount>;

    void show(Panel panel, std::string_view text);
    [[nodiscard]] int widthOf(std::size_t panel) const;
    [[nodiscard]] int room() const;
    [[nodiscard]] Panels neededPanels() const;
    void arrange();

    std::array<wxStaticText*, PanelCount> panels_{};
    std::string status_;
    PacedPainting statusPainting_;
};

}  // namespace vell

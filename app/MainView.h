// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "app/WindowPlace.h"
#include "base/Date.h"
#include "ui/BrowserView.h"

namespace vell {

// What the main window, or what stands for it, can show beside the browser.
class MainView : public BrowserView {
  public:
    // One line; replaces the last one at once.
    virtual void showStatus(std::string_view text) = 0;
    // Percent, 0 to 100, of the current file and of the run.
    virtual void showProgress(int currentFile, int wholeRun) = 0;
    // Running: Stop can be pressed and the state colour is red; else Start, and green.
    virtual void showForcedRun(bool running) = 0;
    virtual void showDateRange(const Date& from, const Date& to) = 0;
    // A message that stays until the user has seen it, and holds nothing up. It may be long, and is then cut.
    virtual void displayInfoMessageBox(std::string_view text) = 0;
    // Opens the setup dialog and returns when it is closed.
    virtual void openSetup() = 0;
    // True for a front-end that shows no other day than the one it downloads. Elsewhere a run leaves the chosen day
    // alone.
    [[nodiscard]] virtual bool followsRun() const = 0;

    // Of a front-end that has a window.
    virtual void placeWindow(const WindowPlace& /*place*/) {}
    // Nothing when the window has no place worth keeping: it is minimised, or fills the screen.
    [[nodiscard]] virtual std::optional<WindowPlace> windowPlace() const { return std::nullopt; }
};

}  // namespace vell

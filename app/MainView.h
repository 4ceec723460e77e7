// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "app/WindowPlace.h"
#include "app/news/RunNotice.h"
#include "base/Date.h"
#include "ui/BrowserView.h"
#include "ui/Message.h"

namespace vell {

// What the main window, or what stands for it, can show beside the browser.
class MainView : public BrowserView {
  public:
    // One line; replaces the last one at once.
    virtual void showStatus(std::string_view text) = 0;
    // Percent, 0 to 100, of the current file and of the run.
    virtual void showProgress(int currentFile, int wholeRun) = 0;
    // While one is running Stop can be pressed, else Start.
    enum class ForcedRun { Running, EndedWell, Failed, Stopped };
    virtual void showForcedRun(ForcedRun state) = 0;
    virtual void showDateRange(const Date& from, const Date& to) = 0;
    // A message that stays until the user has seen it, and holds nothing up. It may be long, and is then cut.
    virtual void displayInfoMessageBox(std::string_view text) = 0;
    // How the last download went, and when the schedule starts the next one, in a few words; empty for none.
    virtual void showLastRun(std::string_view /*text*/) {}
    virtual void showNextRun(std::string_view /*text*/) {}
    // Somebody works with the program at this moment, and sees what it shows.
    [[nodiscard]] virtual bool isLookedAt() const { return true; }
    // For somebody who looks at something else.
    virtual void showNotice(const RunNotice& /*notice*/) {}
    // What the run that has ended has to tell; nothing when all went well: what an earlier one told is out of date
    // then.
    virtual void showRunMessage(const std::optional<Message>& message) = 0;
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

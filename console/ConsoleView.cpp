// SPDX-License-Identifier: MIT
#include "console/ConsoleView.h"

#include "console/ConsoleBoxes.h"
#include "console/Screen.h"

namespace vell {

ConsoleView::ConsoleView(Screen& screen, ConsoleBoxes& boxes) : screen_(screen), boxes_(boxes) {}

void ConsoleView::showStatus(std::string_view text) {
    screen_.showStatus(text, percent_);
}

void ConsoleView::showProgress(int /*currentFile*/, int wholeRun) {
    percent_ = wholeRun;
}

void ConsoleView::showForcedRun(bool running) {
    percent_ = -1;
    if (!running) screen_.leaveStatus();
}

void ConsoleView::displayInfoMessageBox(std::string_view text) {
    boxes_.Show(text, programCaption, Buttons::Ok, BoxIcon::Information);
}

void ConsoleView::openSetup() {
    if (openSetup_) openSetup_();
}

}  // namespace vell

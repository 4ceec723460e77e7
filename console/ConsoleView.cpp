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

void ConsoleView::showForcedRun(ForcedRun state) {
    percent_ = -1;
    if (state != ForcedRun::Running) screen_.leaveStatus();
}

void ConsoleView::showRunMessage(const std::optional<Message>& message) {
    if (!message) return;
    if (message->Text != told_) screen_.tell(message->Text);
    for (const std::string& line : message->Details)
        screen_.tell(line);
}

void ConsoleView::displayInfoMessageBox(std::string_view text) {
    told_ = text;
    boxes_.Show(text, programCaption, Buttons::Ok, BoxIcon::Information);
}

void ConsoleView::openSetup() {
    if (openSetup_) openSetup_();
}

}  // namespace vell

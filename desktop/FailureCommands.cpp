// SPDX-License-Identifier: MIT
// The commands about what has failed, and about messages.
#include "app/frmMain.h"
#include "desktop/MainWindow.h"
#include "desktop/WindowCommands.h"
#include "desktop/bars/MessageBar.h"
#include "desktop/commandIds.h"
#include "desktop/dialogs/FailedFilesDialog.h"

namespace vell {

void WindowCommands::addFailureCommands() {
    table_[command::TryAgain] = {[this] { program_.downloads().tryAgain(); },
                                 [this] { return program_.downloads().canTryAgain(); }};
    table_[command::ShowFailedFiles] = {[this] { showFailedFiles(); },
                                        [this] { return !program_.downloads().failed().isEmpty(); }};
    table_[command::GoToMessage] = {[this] { window_.messages().takeKeyboard(); },
                                    [this] { return window_.messages().IsShown(); }};
}

void WindowCommands::showFailedFiles() {
    auto* dialog = new FailedFilesDialog(&window_, program_.failedFiles());
    dialogs_.open(dialog, [this, dialog] {
        window_.CallAfter([this, files = dialog->chosen()] { program_.downloads().fetchAgain(files); });
    });
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>

#include <wx/weakref.h>

#include "desktop/dialogs/AutoViewWindow.h"
#include "desktop/dialogs/OpenDialogs.h"

namespace vell {

class MainWindow;
class MessageBoxes;
class SetupDialog;
class frmMain;

// Leads what the user does in the window to the program.
class WindowCommands {
  public:
    // `end` ends the process. The window is deaf before this lives and after it.
    WindowCommands(frmMain& program, MainWindow& window, MessageBoxes& boxes, std::function<void()> end);
    ~WindowCommands();
    WindowCommands(const WindowCommands&) = delete;
    WindowCommands& operator=(const WindowCommands&) = delete;

  private:
    struct Entry {
        std::function<void()> Run;
        std::function<bool()> CanRun;
    };
    void listen();
    void commandChosen(int id);
    [[nodiscard]] bool isEnabled(int id) const;
    void closing(bool mayBeRefused);

    void addClippingCommands();
    void addDayCommands();
    void addProgramCommands();
    void download();
    void printByCategory();
    void chooseFilter();
    void showAutoView();
    [[nodiscard]] SetupDialog* setupDialog();
    void setUpAndWait();
    void showAbout();

    frmMain& program_;
    MainWindow& window_;
    MessageBoxes& boxes_;
    std::function<void()> end_;
    std::map<int, Entry> table_;
    OpenDialogs dialogs_;
    wxWeakRef<AutoViewWindow> autoView_;
    bool closing_ = false;
};

}  // namespace vell

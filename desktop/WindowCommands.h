// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include <wx/weakref.h>

#include "config/SettingsTable.h"
#include "desktop/CommandTable.h"
#include "desktop/ListCommands.h"
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
    // Leads a user for whom nothing is set up to Setup.
    void welcome();
    WindowCommands(const WindowCommands&) = delete;
    WindowCommands& operator=(const WindowCommands&) = delete;

    // The settings are there: the window gets the looks that its user has chosen.
    void showChosenView();

  private:
    void listen();
    void commandChosen(int id);
    [[nodiscard]] bool isEnabled(int id) const;
    [[nodiscard]] bool isOn(int id) const;
    void closing(bool mayBeRefused);

    void addClippingCommands();
    void addDayCommands();
    void addProgramCommands();
    void addFailureCommands();
    void addViewCommands();
    void addFindCommands();
    void find(const std::string& text);
    void endFinding();
    void showChosenFinding();
    void addReadingCommands();
    void showReadingPane();
    void showText();
    bool readOn();
    void showFailedFiles();
    void download();
    void printByCategory();
    void chooseFilter();
    void showAutoView();
    [[nodiscard]] SetupDialog* setupDialog();
    void setUp(const std::optional<SettingField>& setting);
    void setUpAndWait();
    void showAbout();

    frmMain& program_;
    MainWindow& window_;
    MessageBoxes& boxes_;
    std::function<void()> end_;
    CommandTable table_;
    OpenDialogs dialogs_;
    ListCommands onList_;
    wxWeakRef<AutoViewWindow> autoView_;
    bool closing_ = false;
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>

#include <wx/weakref.h>

#include "desktop/WindowEvents.h"
#include "desktop/dialogs/AutoViewWindow.h"
#include "desktop/dialogs/OpenDialogs.h"

namespace vell {

class MainWindow;
class MessageBoxes;
class frmMain;

// Leads what the user does in the window to the program.
class WindowCommands : public WindowEvents {
  public:
    // `end` ends the process.
    WindowCommands(frmMain& program, MainWindow& window, MessageBoxes& boxes, std::function<void()> end);

    void commandChosen(int id) override;
    [[nodiscard]] bool isEnabled(int id) const override;
    void dayChosen(const Date& day) override;
    void rowDoubleClicked(std::size_t row) override;
    void rowEntered(std::size_t row) override;
    void rangeChosen(bool onlyToday) override;
    void fromDateChanged(const Date& from) override;
    void toDateChanged(const Date& to) override;
    void closing(bool mayBeRefused) override;

  private:
    struct Entry {
        std::function<void()> Run;
        std::function<bool()> CanRun;
    };
    void addClippingCommands();
    void addDayCommands();
    void addProgramCommands();
    void printByCategory();
    void chooseFilter();
    void showAutoView();
    void setUp();
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

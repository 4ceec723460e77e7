// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "config/frmSetup.h"

namespace vell {

class ConsoleBoxes;
class Screen;
class Terminal;
struct CommandLine;

// The setup dialog on a terminal: shows the settings, or changes one with the dialog's checks. Passwords are never
// shown.
class SetupCommand {
  public:
    SetupCommand(frmSetup dialog, Terminal& terminal, Screen& screen, ConsoleBoxes& boxes);

    // The exit code.
    [[nodiscard]] int run(const CommandLine& line);
    // Asks for user name and password anew, after the service has refused them.
    void askForLogin();

  private:
    [[nodiscard]] int change(const SettingRow& row, const std::string& value);
    [[nodiscard]] std::optional<std::string> valueOf(const SettingRow& row, const std::string& utf8);
    [[nodiscard]] std::string shown(const SettingRow& row) const;
    void showAll();
    [[nodiscard]] int wrong(const std::string& message);
    void tell(const std::string& utf8);

    frmSetup dialog_;
    Terminal& terminal_;
    Screen& screen_;
    ConsoleBoxes& boxes_;
};

}  // namespace vell

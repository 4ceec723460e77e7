// SPDX-License-Identifier: MIT
#pragma once

namespace vell {

class Screen;
class frmMain;
struct CommandLine;

// The program's own update on a terminal.
class UpdateCommand {
  public:
    UpdateCommand(frmMain& program, Screen& screen) : program_(program), screen_(screen) {}

    // The exit code.
    [[nodiscard]] int run(const CommandLine& line);

  private:
    [[nodiscard]] int install();

    frmMain& program_;
    Screen& screen_;
};

}  // namespace vell

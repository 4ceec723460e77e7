// SPDX-License-Identifier: MIT
#pragma once

#include "console/CommandLine.h"

namespace vell {

class ConsoleBoxes;
class ConsoleView;
class frmMain;
class Screen;
class Terminal;

// Does what the command line asks for and gives the exit code.
class Commands {
  public:
    Commands(frmMain& program, ConsoleView& view, Terminal& terminal, Screen& screen, ConsoleBoxes& boxes);

    [[nodiscard]] int run(const CommandLine& line);
    // Ctrl-C: the first acts as the Stop button, the next ends what still hangs.
    void interrupt();

  private:
    [[nodiscard]] int download(const CommandLine& line);
    [[nodiscard]] int list(const CommandLine& line);
    [[nodiscard]] int days();

    frmMain& program_;
    ConsoleView& view_;
    Terminal& terminal_;
    Screen& screen_;
    ConsoleBoxes& boxes_;
    int interrupts_ = 0;
};

}  // namespace vell

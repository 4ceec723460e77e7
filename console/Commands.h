// SPDX-License-Identifier: MIT
#pragma once

#include "console/ClippingCommands.h"
#include "console/CommandLine.h"

namespace vell {

class ConsoleBoxes;
class ConsoleView;
class EventLoop;
class frmMain;
class Screen;
class Terminal;

// Does what the command line asks for and gives the exit code.
class Commands {
  public:
    Commands(frmMain& program, EventLoop& loop, ConsoleView& view, Terminal& terminal, Screen& screen,
             ConsoleBoxes& boxes);

    [[nodiscard]] int run(const CommandLine& line);
    // The first Ctrl-C acts as the Stop button of a download; the next one, and SIGTERM, end what is under way at once.
    void interrupt(int signal);

  private:
    // What the command line asks for, in a session that is up.
    [[nodiscard]] int perform(const CommandLine& line);
    [[nodiscard]] int download(const CommandLine& line);
    [[nodiscard]] int update(const CommandLine& line);
    [[nodiscard]] int days();
    [[nodiscard]] int watch();

    frmMain& program_;
    EventLoop& loop_;
    ConsoleView& view_;
    Terminal& terminal_;
    Screen& screen_;
    ConsoleBoxes& boxes_;
    ClippingCommands clippings_;
    bool watches_ = false;
    int signal_ = 0;  // the last one; 0 for none
};

}  // namespace vell

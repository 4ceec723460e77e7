// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "log/EventLog.h"

namespace vell {

class EventLoop;
class MessageBoxes;
class Shell;

// Opens and prints articles with the programs that the system has for them; none is ever shown by this program itself.
class Articles {
  public:
    Articles(Shell& shell, MessageBoxes& boxes, EventLoop& loop, EventLog& log);

    // Opens a file, folder or address, or starts a program with parameters. True when the system took it; else a
    // message tells the user why.
    bool ShellExec(const std::string& file, const std::string& parameters);
    // Starts the PDF reader to print a PDF article. False for every other kind of file.
    bool PrintArticle(const std::string& path);

  private:
    Shell& shell_;
    MessageBoxes& boxes_;
    EventLoop& loop_;
    EventLog& log_;
};

}  // namespace vell

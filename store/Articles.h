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
    // Has the PDF reader print a PDF article. False for every other kind of file.
    bool PrintArticle(const std::string& path);

    // Several articles are printed one after another: while this lives, a reason that keeps the printer from taking
    // any of them is told once, and one that did not answer is not waited for again. The log has it each time.
    class Batch {
      public:
        explicit Batch(Articles& articles) : articles_(articles) { ++articles_.batches_; }
        ~Batch() {
            if (--articles_.batches_ > 0) return;
            articles_.toldReason_.clear();
            articles_.isPrinterSilent_ = false;
        }
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

      private:
        Articles& articles_;
    };

  private:
    // A failure with its text of the table or the system's own reason.
    void tell(const std::string& message, int code, const std::string& reason);

    Shell& shell_;
    MessageBoxes& boxes_;
    EventLoop& loop_;
    EventLog& log_;
    int batches_ = 0;
    std::string toldReason_;        // of the batch
    bool isPrinterSilent_ = false;  // in the batch
};

}  // namespace vell

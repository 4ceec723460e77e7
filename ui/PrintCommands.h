// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "log/EventLog.h"
#include "ui/StatusText.h"
#include "ui/dialogs/frmPrint.h"

namespace vell {

class Articles;
class ClippingsBrowser;
class EventLoop;
class MessageBoxes;
class Printers;
class modGlobal;
struct Settings;

// The commands that print clippings of the list through the PDF reader.
class PrintCommands {
  public:
    struct Parts {
        ClippingsBrowser& Browser;
        modGlobal& Store;
        Articles& Article;
        EventLoop& Loop;
        MessageBoxes& Boxes;
        Printers& Printer;
        EventLog& Log;
        const Settings& Setup;
    };
    PrintCommands(const Parts& parts, StatusText status);

    // Both mark what was printed. False when something was not.

    // All of the list, after a question, with a pause after each.
    bool mnuPrintAll_Click();
    // One row.
    bool mnuPrintSel_Click(std::size_t row);
    // The rules of the dialog that prints whole categories.
    [[nodiscard]] frmPrint mnuPrintByCategory_Click();

    // While a batch is under way no other one can begin.
    [[nodiscard]] bool isPrinting() const { return printing_; }

  private:
    [[nodiscard]] bool printAll();

    Parts p_;
    StatusText status_;
    bool printing_ = false;
};

}  // namespace vell

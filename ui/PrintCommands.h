// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "ui/PrintParts.h"
#include "ui/StatusText.h"
#include "ui/dialogs/frmPrint.h"

namespace vell {

// The commands that print clippings of the list through the PDF reader.
class PrintCommands {
  public:
    // `message` says what somebody has to know beyond the status line.
    PrintCommands(const PrintParts& parts, StatusText status, StatusText message);

    // Both mark what was printed. False when something was not printed, or not marked.

    // All of the list, after a question, with a pause after each.
    bool mnuPrintAll_Click();
    // One row.
    bool mnuPrintSel_Click(std::size_t row);
    // The rules of the dialog that prints whole categories.
    [[nodiscard]] frmPrint mnuPrintByCategory_Click();

    // While a batch is under way no other one can begin, and no day can be deleted. It stops before its next document.
    [[nodiscard]] bool isPrinting() const { return batch_.IsUnderWay; }
    void stop() { batch_.StopRequested = true; }

  private:
    [[nodiscard]] bool printAll();

    PrintParts p_;
    StatusText status_;
    StatusText message_;
    PrintBatch batch_;
};

}  // namespace vell

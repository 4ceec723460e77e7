// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "ui/BrowserView.h"
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
    // Several rows like all of the list, after a question only when they are many.
    bool printRows(std::span<const std::size_t> rows);
    // The rules of the dialog that prints whole categories.
    [[nodiscard]] frmPrint mnuPrintByCategory_Click();

    // While a batch is under way no other one can begin, and no day can be deleted. It stops before its next document.
    [[nodiscard]] bool isPrinting() const { return batch_.IsUnderWay; }
    void stop() { batch_.StopRequested = true; }

  private:
    [[nodiscard]] std::string whatIsListed() const;
    [[nodiscard]] bool asBatch(std::string_view procedure, const std::function<bool()>& work);
    [[nodiscard]] bool print(const std::vector<ClippingRow>& rows);

    PrintParts p_;
    StatusText status_;
    StatusText message_;
    PrintBatch batch_;
};

}  // namespace vell

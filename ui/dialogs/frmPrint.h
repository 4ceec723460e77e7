// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "log/EventLog.h"
#include "ui/StatusText.h"

namespace vell {

class Articles;
class ClippingsBrowser;
class EventLoop;
class MessageBoxes;
class Printers;
struct Settings;

// What the dialog that prints whole categories decides. What it prints is not marked.
class frmPrint {
  public:
    struct Parts {
        ClippingsBrowser& Browser;
        Articles& Article;
        EventLoop& Loop;
        MessageBoxes& Boxes;
        Printers& Printer;
        EventLog& Log;
        const Settings& Setup;
        bool& Printing;  // set while a batch is under way
    };
    // The categories of the list that can be chosen.
    frmPrint(const Parts& parts, std::vector<std::string> categories);

    [[nodiscard]] const std::vector<std::string>& lstAllCategories() const { return all_; }
    [[nodiscard]] const std::vector<std::string>& lstPrintCategories() const { return chosen_; }

    // Entries are counted from 0.
    void cmdAdd_Click(std::size_t entry);
    void cmdAddAll_Click();
    void cmdRemove_Click(std::size_t entry);
    void cmdRemoveAll_Click();
    // False when something was not printed.
    bool cmdPrint_Click(const StatusText& status);
    // Shows how the default printer is set up, then the dialog in which that can be changed.
    void cmdPrinterSettings_Click();

  private:
    [[nodiscard]] std::vector<std::string> documents() const;
    [[nodiscard]] bool print(const std::vector<std::string>& documents, const StatusText& status);

    Parts p_;
    std::vector<std::string> all_;
    std::vector<std::string> chosen_;
};

// The pause after a printed document, so that reader and spooler keep up. It holds up everything: events happen before
// and after it only.
void printPause(EventLoop& loop, const Settings& settings);

}  // namespace vell

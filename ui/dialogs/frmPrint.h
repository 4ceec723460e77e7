// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "ui/PrintParts.h"
#include "ui/StatusText.h"

namespace vell {

class EventLoop;
struct CFtpFile;
struct Settings;

// What the dialog that prints whole categories decides. What it prints is not marked.
class frmPrint {
  public:
    // `categories`: those of the list, each as it stands in the index.
    frmPrint(const PrintParts& parts, PrintBatch& batch, std::vector<std::string> categories);

    // A clipping of "Politics,Economy" counts for each of the two, as it does for the filter, instead of for that text
    // as a whole. None is chosen then.
    void splitCategories(bool split);
    [[nodiscard]] bool isSplit() const { return split_; }

    [[nodiscard]] const std::vector<std::string>& lstAllCategories() const { return all_; }
    [[nodiscard]] const std::vector<std::string>& lstPrintCategories() const { return chosen_; }

    // The category, and how many clippings are printed for it.
    [[nodiscard]] std::string text(const std::string& category) const;
    // What would be printed now, in words.
    [[nodiscard]] std::string outcome() const;

    // Entries are counted from 0.
    void cmdAdd_Click(std::size_t entry);
    void cmdAddAll_Click();
    void cmdRemove_Click(std::size_t entry);
    void cmdRemoveAll_Click();
    // False when something was not printed.
    bool cmdPrint_Click(const StatusText& status);
    // Ends the batch that is under way before its next document.
    void cmdStop_Click() { batch_.StopRequested = true; }
    // Shows how the default printer is set up, then the dialog in which that can be changed.
    void cmdPrinterSettings_Click();

  private:
    [[nodiscard]] std::vector<std::string> categoriesIn(const CFtpFile& clipping) const;
    void offer(std::vector<std::string> categories);
    [[nodiscard]] std::vector<std::string> documents() const;
    [[nodiscard]] bool print(const std::vector<std::string>& documents, const StatusText& status);

    PrintParts p_;
    PrintBatch& batch_;
    std::vector<std::string> whole_;
    bool split_ = false;
    std::map<std::string, std::size_t> counts_;  // clippings by categories in capitals
    std::vector<std::string> all_;
    std::vector<std::string> chosen_;
};

// The pause after a printed document, so that reader and spooler keep up. It holds up everything: events happen before
// and after it only.
void printPause(EventLoop& loop, const Settings& settings);

}  // namespace vell

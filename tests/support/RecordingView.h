// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/MainView.h"

namespace vell::test {

// A main window that remembers what it was told to show.
class RecordingView : public MainView {
  public:
    void showDays(const std::vector<std::string>& dayNames, const std::string& chosen) override {
        Days = dayNames;
        Chosen = chosen;
    }
    void showClippings(const std::vector<ClippingRow>& rows) override {
        Rows.clear();
        for (const ClippingRow& row : rows)
            Rows += row.File->FileName + "," + row.File->Description + (row.Opened ? ",O" : ",") +
                    (row.Printed ? "P;" : ";");
    }
    void showMarks(std::size_t /*row*/) override {}
    void showCount(std::string_view text) override { Count = text; }
    void showAlert(std::string_view text) override { Alert = text; }
    void showAdvertisement(const std::string& path) override { Advertisement = path; }
    void showBusy(bool busy) override { Busy += busy ? 1 : -1; }
    void showStatus(std::string_view text) override {
        Statuses.emplace_back(text);
        if (OnStatus) OnStatus(Statuses.back());
    }
    void showProgress(int currentFile, int wholeRun) override { Progress.emplace_back(currentFile, wholeRun); }
    void showForcedRun(bool running) override { Running = running; }
    void showDateRange(const Date& from, const Date& to) override { Range = from.dayName() + "-" + to.dayName(); }
    void displayInfoMessageBox(std::string_view text) override { Messages.emplace_back(text); }
    void openSetup() override {}
    [[nodiscard]] bool followsRun() const override { return Follows; }

    std::vector<std::string> Days, Statuses, Messages;
    std::string Chosen, Rows, Count, Alert, Advertisement, Range;
    std::vector<std::pair<int, int>> Progress;
    int Busy = 0;
    bool Running = false;
    bool Follows = true;
    std::function<void(const std::string&)> OnStatus;
};

}  // namespace vell::test

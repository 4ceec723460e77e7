// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "app/MainView.h"

namespace vell {

class ConsoleBoxes;
class Screen;

// The main window's stand-in on a terminal: shows the status as it goes; lists are printed by the commands.
class ConsoleView : public MainView {
  public:
    ConsoleView(Screen& screen, ConsoleBoxes& boxes);

    // What opening the setup dialog means here.
    void onOpenSetup(std::function<void()> open) { openSetup_ = std::move(open); }

    void showDays(const std::vector<DayLine>& /*days*/, const std::optional<Date>& /*chosen*/) override {}
    void showClippings(const std::vector<ClippingRow>& /*rows*/) override {}
    void showMarks(std::size_t /*row*/) override {}
    void showCounts(const CountTexts& /*texts*/) override {}
    void showAlert(std::string_view text) override { alert_ = text; }
    void showAdvertisement(const std::string& /*path*/) override {}
    void showBusy(bool /*busy*/) override {}

    void showStatus(std::string_view text) override;
    void showProgress(int currentFile, int wholeRun) override;
    void showForcedRun(ForcedRun state) override;
    void showRunMessage(const std::optional<Message>& message) override;
    void showDateRange(const Date& /*from*/, const Date& /*to*/) override {}
    void displayInfoMessageBox(std::string_view text) override;
    void openSetup() override;
    [[nodiscard]] bool followsRun() const override { return true; }

    // The alert of the chosen day.
    [[nodiscard]] const std::string& alert() const { return alert_; }

  private:
    Screen& screen_;
    ConsoleBoxes& boxes_;
    std::function<void()> openSetup_;
    std::string alert_;
    std::string told_;  // the last message
    int percent_ = -1;  // of the run; negative while nothing is fetched
};

}  // namespace vell

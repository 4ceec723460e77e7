// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/MainView.h"
#include "ui/list/EmptyHint.h"

namespace vell::test {

// A main window that remembers what it was told to show.
class RecordingView : public MainView {
  public:
    void showDays(const std::vector<DayLine>& days, const std::optional<Date>& chosen) override {
        Days.clear();
        DayTexts.clear();
        for (const DayLine& line : days) {
            Days += (line.Day == chosen ? "*" : "") + line.Day.dayName() + " ";
            showDayText(line);
        }
    }
    void showDayText(const DayLine& line) override { DayTexts[line.Day] = line.Text; }
    void showClippings(const std::vector<ClippingRow>& rows) override {
        Rows.clear();
        for (const ClippingRow& row : rows)
            Rows += row.File->FileName + "," + row.File->Description + (row.Opened ? ",O" : ",") +
                    (row.Printed ? "P;" : ";");
    }
    void showEmptyHint(const EmptyHint& hint) override { Hint = hint.Title + "|" + hint.Text; }
    void showMarks(std::size_t row) override { Marked.push_back(row); }
    void showFilter(std::string_view text) override { Filter = text; }
    void showCounts(const CountTexts& texts) override {
        Count = texts.Listed;
        for (const std::string& more : {texts.Unread, texts.New})
            if (!more.empty()) Count += ", " + more;
    }
    void showAlert(std::string_view text) override { Alert = text; }
    void showAdvertisement(const std::string& path) override { Advertisement = path; }
    void showBusy(bool busy) override { Busy += busy ? 1 : -1; }
    void showStatus(std::string_view text) override {
        Status = text;
        Statuses += Status + "\n";
        if (const auto act = OnStatus) act(Status);  // a copy: it may put another in its place
    }
    void showProgress(int currentFile, int wholeRun) override {
        Progress += std::to_string(currentFile) + "/" + std::to_string(wholeRun) + " ";
    }
    void showLastRun(std::string_view text) override { LastRun = text; }
    void showNextRun(std::string_view text) override { NextRun = text; }
    [[nodiscard]] bool isLookedAt() const override { return IsLookedAt; }
    void showNotice(const RunNotice& notice) override { Notice += notice.Title + "|" + notice.Body + "|"; }
    void showForcedRun(ForcedRun state) override { State = state; }
    void showRunMessage(const std::optional<Message>& message) override { RunMessage = message; }
    void showDateRange(const Date& from, const Date& to) override { Range = from.dayName() + "-" + to.dayName(); }
    void displayInfoMessageBox(std::string_view text) override { Message = text; }
    void openSetup() override {}
    [[nodiscard]] bool followsRun() const override { return Follows; }
    void placeWindow(const WindowPlace& place) override { Place = place; }
    [[nodiscard]] std::optional<WindowPlace> windowPlace() const override { return Place; }

    std::string Days, Rows, Count, Alert, Advertisement, Progress, Range, Message;
    std::map<Date, std::string> DayTexts;
    std::string Status, Statuses;  // the last one, and all, each on a line
    std::string Filter, Hint, LastRun, NextRun, Notice;
    bool IsLookedAt = true;
    std::vector<std::size_t> Marked;
    std::optional<WindowPlace> Place;
    int Busy = 0;
    ForcedRun State = ForcedRun::Stopped;
    std::optional<vell::Message> RunMessage;
    bool Follows = true;
    std::function<void(const std::string&)> OnStatus;
};

}  // namespace vell::test

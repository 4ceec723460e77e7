// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <wx/frame.h>
#include <wx/utils.h>

#include "app/MainView.h"
#include "desktop/Presence.h"
#include "desktop/WindowEvents.h"

class wxBoxSizer;

namespace vell {

class AlertPanel;
class Advertisement;
class ClippingsList;
class Clock;
class DatePane;
class Files;
class FilterBar;
class FindBar;
class ForcedDownloadPane;
class MessageBar;
class ProgressPane;
class ReadingSplitter;
class StatusLine;

// The main window: shows what it is told and passes on what the user does.
class MainWindow : public wxFrame, public MainView {
  public:
    MainWindow(const Clock& clock, const Files& files);

    // Who gets the user's doings; before that the window is deaf.
    void listenTo(WindowEvents events) { events_ = std::move(events); }

    [[nodiscard]] ClippingsList& list() { return *list_; }
    [[nodiscard]] FindBar& find() { return *find_; }
    [[nodiscard]] ReadingSplitter& reading() { return *reading_; }
    [[nodiscard]] MessageBar& messages() { return *message_; }
    // Stop is there to be pressed, which it also is after a download that could not begin.
    [[nodiscard]] bool offersStop() const;
    // The days that commands for whole days mean, the newest first.
    [[nodiscard]] std::vector<Date> selectedDays() const;
    // The days that the user is typing count from now on.
    bool takeTypedDays();
    // There may be an advertisement to see.
    void offerAdvertisement(bool wanted);
    [[nodiscard]] Presence& presence() { return presence_; }

    void showDays(const std::vector<DayLine>& days, const std::optional<Date>& chosen) override;
    void showDayText(const DayLine& day) override;
    void showClippings(const std::vector<ClippingRow>& rows) override;
    void showMarks(std::size_t row) override;
    void showCounts(const CountTexts& texts) override;
    void showEmptyHint(const EmptyHint& hint) override;
    void showAlert(std::string_view text) override;
    void showAlertIsNew(bool isNew) override;
    void showAdvertisement(const std::string& path) override;
    void showBusy(bool busy) override;
    void showFilter(std::string_view text) override;
    void showSeveralDays(bool several) override;
    void showOrder(const RowOrder& order) override;
    void showStatus(std::string_view text) override;
    void showLastRun(std::string_view text) override;
    void showNextRun(std::string_view text) override;
    [[nodiscard]] bool isLookedAt() const override;
    void showNotice(const RunNotice& notice) override;
    void showProgress(int currentFile, int wholeRun) override;
    void showForcedRun(ForcedRun state) override;
    void showRunMessage(const std::optional<Message>& message) override;
    void showDateRange(const Date& from, const Date& to) override;
    void displayInfoMessageBox(std::string_view text) override;
    void openSetup() override;
    [[nodiscard]] bool followsRun() const override { return false; }
    void placeWindow(const WindowPlace& place) override;
    [[nodiscard]] std::optional<WindowPlace> windowPlace() const override;

  private:
    void addParts(const Clock& clock, const Files& files);
    [[nodiscard]] wxBoxSizer* sideBar(wxWindow& parent, const Clock& clock, const Files& files);
    void bindCommands();
    // In the place of the list: there is no text to read.
    void hintShown(bool isShown);
    void showContextMenu(const wxPoint& place);
    void showColumnMenu();

    WindowEvents events_;
    const std::vector<ClippingRow>* rows_ = nullptr;
    std::optional<wxBusyCursor> busy_;

    MessageBar* message_ = nullptr;
    DatePane* dates_ = nullptr;
    FindBar* find_ = nullptr;
    FilterBar* filter_ = nullptr;
    ReadingSplitter* reading_ = nullptr;
    ClippingsList* list_ = nullptr;
    ForcedDownloadPane* download_ = nullptr;
    ProgressPane* progress_ = nullptr;
    AlertPanel* alert_ = nullptr;
    Advertisement* advertisement_ = nullptr;
    StatusLine* StatusBar1_ = nullptr;
    Presence presence_;
};

}  // namespace vell

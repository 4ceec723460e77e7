// SPDX-License-Identifier: MIT
#include "ui/ClippingsBrowser.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/text.h"
#include "config/Settings.h"
#include "platform/Files.h"
#include "store/modGlobal.h"
#include "ui/BusyMoment.h"

namespace vell {

namespace {

constexpr std::chrono::milliseconds refreshInterval{250};

}  // namespace

ClippingsBrowser::ClippingsBrowser(modGlobal& store, Files& files, BrowserView& view, const Clock& clock, EventLog& log,
                                   const Settings& settings, DayState& day)
    : store_(store),
      files_(files),
      view_(view),
      log_(log),
      settings_(settings),
      day_(day),
      pacer_(clock, refreshInterval) {}

void ClippingsBrowser::PopulateDateCombo() {
    trapStep(log_, "PopulateDateCombo()", [&] {
        std::vector<Date> days;
        std::vector<std::string> folders;
        if (!settings_.LocalDir.empty()) folders = store_.GetLocalDirectories(settings_.LocalDir, false);
        for (const std::string& folder : folders)
            if (const auto date = Date::fromFolderName(folder)) days.push_back(*date);
        days_ = store_.DateSort(std::move(days));
        if (std::ranges::find(days_, day_.cmbDate) == days_.end()) day_.cmbDate.reset();
        view_.showDays(days_, day_.cmbDate);
    });
}

void ClippingsBrowser::PopulateLocalFilesGrid() {
    trapStep(log_, "PopulateLocalFilesGrid()", [&] {
        const BusyMoment busy(view_);
        std::vector<ClippingRow> rows;
        dayFiles_ = {};
        if (day_.cmbDate) {
            const std::array<std::string, 2> patterns{"*.PDF", ""};
            dayFiles_ = store_.GetLocalFiles(store_.folderOfDay(*day_.cmbDate), patterns);
        }
        for (const auto& file : dayFiles_)
            if (filter_.passes(*file)) ShowOpenPrintedPicture(rows.emplace_back(ClippingRow{file}));
        rows_ = std::move(rows);
        view_.showClippings(rows_);
        refreshClippingsCount();
    });
}

void ClippingsBrowser::refresh() {
    pacer_.run([&] {
        PopulateDateCombo();
        PopulateLocalFilesGrid();
    });
}

void ClippingsBrowser::refreshDuringRun() {
    if (pacer_.isDue()) refresh();
}

bool ClippingsBrowser::chooseDay(const Date& day) {
    if (std::ranges::find(days_, day) == days_.end()) return false;
    day_.cmbDate = day;
    view_.showDays(days_, day_.cmbDate);
    PopulateLocalFilesGrid();
    loadAlert();
    return true;
}

const std::optional<Date>& ClippingsBrowser::chosenDay() const {
    return day_.cmbDate;
}

void ClippingsBrowser::loadAlert() {
    trapStep(log_, "loadAlert()", [&] {
        std::string alert;
        if (day_.cmbDate) {
            const std::string path = store_.folderOfDay(*day_.cmbDate) + std::string(alertFileName);
            if (files_.PathExists(path)) alert = files_.ReadFile(path);
        }
        view_.showAlert(alert);
    });
}

void ClippingsBrowser::ShowOpenPrintedPicture(ClippingRow& row) const {
    const std::string path = row.path();
    row.Opened = store_.IsFileOpened(path);
    row.Printed = store_.IsFilePrinted(path);
}

void ClippingsBrowser::ShowOpenPrintedPicture(std::size_t row) {
    ShowOpenPrintedPicture(rows_.at(row));
    view_.showMarks(row);
}

void ClippingsBrowser::refreshMarks(const std::string& path) {
    trapStep(log_, "ShowOpenPrintedPicture()", [&] {
        for (std::size_t row = 0; row < rows_.size(); ++row)
            if (rows_[row].path() == path) ShowOpenPrintedPicture(row);
    });
}

void ClippingsBrowser::setFilter(ClippingFilter filter) {
    filter_ = std::move(filter);
    view_.showFilter(filter_.text());
    PopulateLocalFilesGrid();
}

void ClippingsBrowser::refreshClippingsCount() {
    view_.showCount(std::to_string(rows_.size()) + " Clippings");
}

}  // namespace vell

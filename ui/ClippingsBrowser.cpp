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

ClippingsBrowser::ClippingsBrowser(const Parts& parts) : p_(parts), pacer_(parts.Time, refreshInterval) {}

void ClippingsBrowser::PopulateDateCombo() {
    trapStep(p_.Log, "PopulateDateCombo()", [&] {
        std::vector<Date> days;
        std::vector<std::string> folders;
        if (!p_.Setup.LocalDir.empty()) folders = p_.Store.GetLocalDirectories(p_.Setup.LocalDir, false);
        for (const std::string& folder : folders)
            if (const auto date = Date::fromFolderName(folder)) days.push_back(*date);
        days_ = p_.Store.DateSort(std::move(days));
        if (std::ranges::find(days_, p_.Day.cmbDate) == days_.end()) p_.Day.cmbDate.reset();
        p_.View.showDays(days_, p_.Day.cmbDate);
    });
}

void ClippingsBrowser::PopulateLocalFilesGrid() {
    trapStep(p_.Log, "PopulateLocalFilesGrid()", [&] {
        const BusyMoment busy(p_.View);
        std::vector<ClippingRow> rows;
        dayFiles_ = {};
        if (p_.Day.cmbDate) {
            const std::array<std::string, 2> patterns{"*.PDF", ""};
            dayFiles_ = p_.Store.GetLocalFiles(p_.Store.folderOfDay(*p_.Day.cmbDate), patterns);
        }
        for (const auto& file : dayFiles_)
            if (filter_.passes(*file)) ShowOpenPrintedPicture(rows.emplace_back(ClippingRow{file}));
        rows_ = std::move(rows);
        p_.View.showClippings(rows_);
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
    p_.Day.cmbDate = day;
    p_.View.showDays(days_, p_.Day.cmbDate);
    PopulateLocalFilesGrid();
    loadAlert();
    return true;
}

const std::optional<Date>& ClippingsBrowser::chosenDay() const {
    return p_.Day.cmbDate;
}

void ClippingsBrowser::loadAlert() {
    trapStep(p_.Log, "loadAlert()", [&] {
        std::string alert;
        if (p_.Day.cmbDate) {
            const std::string path = p_.Store.folderOfDay(*p_.Day.cmbDate) + std::string(alertFileName);
            if (p_.Disk.PathExists(path)) alert = p_.Disk.ReadFile(path);
        }
        p_.View.showAlert(alert);
    });
}

void ClippingsBrowser::ShowOpenPrintedPicture(ClippingRow& row) const {
    const std::string path = row.path();
    row.Opened = p_.Store.IsFileOpened(path);
    row.Printed = p_.Store.IsFilePrinted(path);
}

void ClippingsBrowser::ShowOpenPrintedPicture(std::size_t row) {
    ShowOpenPrintedPicture(rows_.at(row));
    p_.View.showMarks(row);
}

void ClippingsBrowser::refreshMarks(const std::string& path) {
    trapStep(p_.Log, "ShowOpenPrintedPicture()", [&] {
        for (std::size_t row = 0; row < rows_.size(); ++row)
            if (rows_[row].path() == path) ShowOpenPrintedPicture(row);
    });
}

void ClippingsBrowser::setFilter(ClippingFilter filter) {
    filter_ = std::move(filter);
    p_.View.showFilter(filter_.text());
    PopulateLocalFilesGrid();
}

void ClippingsBrowser::refreshClippingsCount() {
    p_.View.showCount(std::to_string(rows_.size()) + " Clippings");
}

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "ui/ClippingsBrowser.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <unordered_set>
#include <utility>

#include "base/text.h"
#include "config/Settings.h"
#include "platform/Files.h"
#include "store/modGlobal.h"
#include "ui/BusyMoment.h"
#include "ui/dayOf.h"
#include "ui/days/DayCounts.h"
#include "ui/days/dayText.h"
#include "ui/find/FoundClippings.h"
#include "ui/list/CountTexts.h"
#include "ui/list/EmptyHint.h"

namespace vell {

namespace {

constexpr std::chrono::milliseconds refreshInterval{250};

}  // namespace

ClippingsBrowser::ClippingsBrowser(const Parts& parts) : p_(parts), pacer_(parts.Time, refreshInterval) {
    p_.Counts.onCounted([this](const Date& day) { p_.View.showDayText(lineOf(day)); });
}

ClippingsBrowser::~ClippingsBrowser() {
    p_.Counts.onCounted(nullptr);
}

DayLine ClippingsBrowser::lineOf(const Date& day) const {
    return {day, dayText(day, p_.Counts.of(day), p_.Words)};
}

void ClippingsBrowser::showDays() {
    std::vector<DayLine> lines;
    lines.reserve(days_.size());
    for (const Date& day : days_)
        lines.push_back(lineOf(day));
    p_.View.showDays(lines, p_.Day.cmbDate);
}

void ClippingsBrowser::PopulateDateCombo() {
    trapStep(p_.Log, "PopulateDateCombo()", [&] {
        std::vector<Date> days;
        std::vector<std::string> folders;
        if (!p_.Setup.LocalDir.empty()) folders = p_.Store.GetLocalDirectories(p_.Setup.LocalDir, false);
        for (const std::string& folder : folders)
            if (const auto date = Date::fromFolderName(folder)) days.push_back(*date);
        days_ = p_.Store.DateSort(std::move(days));
        if (std::ranges::find(days_, p_.Day.cmbDate) == days_.end()) p_.Day.cmbDate.reset();
        p_.Counts.setDays(days_);
        showDays();
    });
}

void ClippingsBrowser::PopulateLocalFilesGrid() {
    trapStep(p_.Log, "PopulateLocalFilesGrid()", [&] {
        const BusyMoment busy(p_.View);
        readDay();
        listRows();
    });
    if (dayRead_) dayRead_();
}

void ClippingsBrowser::readDay() {
    dayFiles_ = {};
    dayRows_.clear();
    if (!p_.Day.cmbDate) return;
    const std::array<std::string, 2> patterns{"*.PDF", ""};
    const std::string folder = p_.Store.folderOfDay(*p_.Day.cmbDate);
    dayFiles_ = p_.Store.GetLocalFiles(folder, patterns);
    p_.Store.withMarksOf(folder, [this] {
        for (const auto& file : dayFiles_)
            ShowOpenPrintedPicture(dayRows_.emplace_back(ClippingRow{file, dayRows_.size()}));
    });
    const auto unread = static_cast<std::size_t>(std::ranges::count(dayRows_, false, &ClippingRow::Opened));
    p_.Counts.set(*p_.Day.cmbDate, {dayRows_.size(), unread});
}

void ClippingsBrowser::listRows() {
    std::vector<ClippingRow> rows = wantedRows();
    std::erase_if(rows, [this](const ClippingRow& row) { return !filter_.passes(*row.File); });
    if (listing_) listing_(rows);
    order_.sort(rows);
    rows_ = std::move(rows);
    p_.View.showClippings(rows_);
    showHint();
    refreshClippingsCount();
}

std::vector<ClippingRow> ClippingsBrowser::wantedRows() {
    if (!found_) return dayRows_;
    if (showsAllDays()) return rowsOfAllDays();
    std::vector<ClippingRow> rows;
    if (found_->OfDay == p_.Day.cmbDate)
        std::ranges::copy_if(dayRows_, std::back_inserter(rows),
                             [this](const ClippingRow& row) { return found_->Names.contains(row.File->FileName); });
    return rows;
}

std::vector<ClippingRow> ClippingsBrowser::rowsOfAllDays() {
    std::vector<ClippingRow> rows;
    for (const auto& file : found_->Clippings)
        ShowOpenPrintedPicture(rows.emplace_back(ClippingRow{file, rows.size()}));
    return rows;
}

void ClippingsBrowser::refresh() {
    pacer_.run([&] {
        PopulateDateCombo();
        PopulateLocalFilesGrid();
    });
}

void ClippingsBrowser::refreshDuringRun(const Date& runDay) {
    if (!pacer_.isDue()) return;
    refresh();
    if (runDay != p_.Day.cmbDate) dayChanged(runDay);
}

void ClippingsBrowser::dayChanged(const Date& day) {
    p_.Counts.recount(day);
}

bool ClippingsBrowser::chooseDay(const Date& day) {
    if (std::ranges::find(days_, day) == days_.end()) return false;
    p_.Day.cmbDate = day;
    showDays();
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
        p_.View.showAlertIsNew(p_.Day.cmbDate && news_.isAlertNew(*p_.Day.cmbDate));
    });
}

void ClippingsBrowser::alertSeen() {
    if (!p_.Day.cmbDate || !news_.isAlertNew(*p_.Day.cmbDate)) return;
    news_.alertSeen(*p_.Day.cmbDate);
    p_.View.showAlertIsNew(false);
}

std::optional<std::size_t> ClippingsBrowser::rowOf(const std::string& path) const {
    const auto found = std::ranges::find(rows_, path, &ClippingRow::path);
    return found == rows_.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - rows_.begin()));
}

void ClippingsBrowser::ShowOpenPrintedPicture(ClippingRow& row) {
    const std::string path = row.path();
    row.Opened = p_.Store.IsFileOpened(path);
    row.Printed = p_.Store.IsFilePrinted(path);
    row.New = !row.Opened && news_.isNew(path);
    if (row.Number < dayRows_.size() && dayRows_[row.Number].path() == path) dayRows_[row.Number] = row;
}

void ClippingsBrowser::ShowOpenPrintedPicture(std::size_t row) {
    ShowOpenPrintedPicture(rows_.at(row));
    p_.View.showMarks(row);
    if (const auto day = dayOf(*rows_.at(row).File)) dayChanged(*day);
    refreshClippingsCount();
}

void ClippingsBrowser::refreshMarks(const std::string& path) {
    refreshMarks(std::span(&path, 1));
}

void ClippingsBrowser::refreshMarks(std::span<const std::string> paths) {
    trapStep(p_.Log, "ShowOpenPrintedPicture()", [&] {
        const std::unordered_set<std::string_view> changed(paths.begin(), paths.end());
        for (std::size_t row = 0; row < rows_.size(); ++row) {
            if (!changed.contains(rows_[row].path())) continue;
            ShowOpenPrintedPicture(rows_[row]);
            p_.View.showMarks(row);
        }
        for (const std::string& path : paths)  // of whatever day: who opened them may have gone on to another one
            if (const auto day = dayOfPath(path)) dayChanged(*day);
        refreshClippingsCount();
    });
}

std::vector<std::string> ClippingsBrowser::pathsOf(std::span<const std::size_t> rows) const {
    std::vector<std::string> paths;
    paths.reserve(rows.size());
    for (const std::size_t row : rows)
        paths.push_back(rows_.at(row).path());
    return paths;
}

void ClippingsBrowser::sortBy(GridColumn column) {
    RowOrder order = order_;
    order.choose(column);
    setOrder(order);
}

void ClippingsBrowser::showPage(std::size_t row, const std::string& page) {
    rows_.at(row).Page = page;
    p_.View.showMarks(row);
}

void ClippingsBrowser::setOrder(const RowOrder& order) {
    order_ = order;
    order_.sort(rows_);
    p_.View.showOrder(order_);
    p_.View.showClippings(rows_);
}

void ClippingsBrowser::setFilter(ClippingFilter filter) {
    filter_ = std::move(filter);
    p_.View.showFilter(filter_.text(p_.Words));
    PopulateLocalFilesGrid();
}

void ClippingsBrowser::setFound(std::shared_ptr<const FoundClippings> found) {
    if (!found && !found_) return;
    const auto isOfAllDays = [](const auto& one) { return one && !one->OfDay; };
    const bool wasOfAllDays = isOfAllDays(found_);
    const bool comesBack = wasOfAllDays && !isOfAllDays(found);
    found_ = std::move(found);
    trapStep(p_.Log, "PopulateLocalFilesGrid()", [&] {
        if (isOfAllDays(found_) != wasOfAllDays) p_.View.showSeveralDays(!wasOfAllDays);
        if (comesBack && !dayRows_.empty())  // they may have been opened among those of all days
            p_.Store.withMarksOf(dayRows_.front().File->FilePath, [this] {
                for (ClippingRow& row : dayRows_)
                    ShowOpenPrintedPicture(row);
            });
        listRows();
    });
}

bool ClippingsBrowser::showsAllDays() const {
    return found_ && !found_->OfDay;
}

std::vector<CFtpFiles::Pointer> ClippingsBrowser::filtered() const {
    if (showsAllDays()) return found_->Clippings;
    return {dayFiles_.begin(), dayFiles_.end()};
}

void ClippingsBrowser::showHint() {
    if (!rows_.empty()) return;
    const auto all = static_cast<std::size_t>(dayFiles_.Count());
    if (found_ && found_->Clippings.empty())
        p_.View.showEmptyHint(findHint(found_->IsComplete, p_.Words));
    else if (showsAllDays())
        p_.View.showEmptyHint(foundAreHiddenHint(found_->Clippings.size(), p_.Words));
    else
        p_.View.showEmptyHint(emptyHint(p_.Setup, !days_.empty(), p_.Day.cmbDate, all, p_.Words));
}

void ClippingsBrowser::refreshClippingsCount() {
    const auto all = static_cast<std::size_t>(dayFiles_.Count());
    p_.View.showCounts(countTexts(rows_, found_ ? found_->Searched : all, p_.Words));
}

}  // namespace vell

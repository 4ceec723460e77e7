// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Date.h"
#include "ftp/listing/CFtpFiles.h"
#include "log/EventLog.h"
#include "ui/BrowserView.h"
#include "ui/News.h"
#include "ui/Pacer.h"
#include "ui/list/ClippingFilter.h"
#include "ui/list/RowOrder.h"

namespace vell {

class DayCounts;
class Files;
class Translations;
class modGlobal;
struct DayState;
struct FoundClippings;
struct Settings;

// Fills the date list and the list of clippings, and keeps the marks that the rows show.
class ClippingsBrowser {
  public:
    struct Parts {
        modGlobal& Store;
        Files& Disk;
        BrowserView& View;
        const Clock& Time;
        EventLog& Log;
        const Settings& Setup;
        DayState& Day;
        const Translations& Words;
        DayCounts& Counts;
    };
    explicit ClippingsBrowser(const Parts& parts);
    ~ClippingsBrowser();
    ClippingsBrowser(const ClippingsBrowser&) = delete;
    ClippingsBrowser& operator=(const ClippingsBrowser&) = delete;

    // Refills the date list from the day folders, newest first; the chosen day stays chosen when it is still there.
    void PopulateDateCombo();
    // Refills the list with the clippings of the chosen day.
    void PopulateLocalFilesGrid();
    // Both, at most as often as a run can afford: a day with many clippings must not slow down the run. `runDay` is
    // the day that the run fetches.
    void refreshDuringRun(const Date& runDay);
    void refresh();
    // Something has come to the day, or gone from it.
    void dayChanged(const Date& day);

    // Chooses a day of the date list and loads its clippings and alert. False when it is not in the list.
    bool chooseDay(const Date& day);
    // The day that is chosen, if one is.
    [[nodiscard]] const std::optional<Date>& chosenDay() const;
    [[nodiscard]] const std::vector<Date>& days() const { return days_; }
    // In the order in which they are shown, in which every command goes through them, too.
    [[nodiscard]] const std::vector<ClippingRow>& rows() const { return rows_; }
    [[nodiscard]] std::vector<std::string> pathsOf(std::span<const std::size_t> rows) const;

    [[nodiscard]] std::optional<std::size_t> rowOf(const std::string& path) const;

    void loadAlert();
    // Somebody has looked at the alert that is shown.
    void alertSeen();

    // The marks of the row, counted from 0, or of the clippings with these paths, as far as they are listed, may have
    // changed.
    void ShowOpenPrintedPicture(std::size_t row);
    void refreshMarks(const std::string& path);
    void refreshMarks(std::span<const std::string> paths);

    // Whoever downloads tells here what has come; it is shown when the list is filled, or the alert loaded, the next
    // time.
    [[nodiscard]] News& news() { return news_; }

    // Sorts by this column; again: the other way, then as they come. Other days are sorted like this one.
    void sortBy(GridColumn column);
    void setOrder(const RowOrder& order);
    [[nodiscard]] const RowOrder& order() const { return order_; }

    // Lists only what passes from now on.
    void setFilter(ClippingFilter filter);
    [[nodiscard]] const ClippingFilter& filter() const { return filter_; }
    // Lists only what was found from now on, as far as it passes the filter; null for everything.
    void setFound(std::shared_ptr<const FoundClippings> found);
    // Completes rows before they are sorted and shown.
    void onListing(std::function<void(std::vector<ClippingRow>& rows)> complete) { listing_ = std::move(complete); }
    // The page on which a row's clipping stood has become known.
    void showPage(std::size_t row, const std::string& page);
    // Told whenever the chosen day's clippings have been read.
    void onDayRead(std::function<void()> told) { dayRead_ = std::move(told); }
    // All clippings of the chosen day, whether they are listed or not.
    [[nodiscard]] const CFtpFiles& dayFiles() const { return dayFiles_; }
    // The rows are of several days.
    [[nodiscard]] bool showsAllDays() const;
    // The clippings among which the filter chooses: those of the chosen day, or those that were found in all days.
    [[nodiscard]] std::vector<CFtpFiles::Pointer> filtered() const;

  private:
    void ShowOpenPrintedPicture(ClippingRow& row);
    [[nodiscard]] DayLine lineOf(const Date& day) const;
    void showDays();
    void readDay();
    [[nodiscard]] std::vector<ClippingRow> wantedRows();
    [[nodiscard]] std::vector<ClippingRow> rowsOfAllDays();
    void listRows();
    void refreshClippingsCount();
    void showHint();

    Parts p_;
    Pacer pacer_;
    std::vector<Date> days_;
    std::vector<ClippingRow> dayRows_;  // all of the chosen day
    std::vector<ClippingRow> rows_;     // that are listed
    CFtpFiles dayFiles_;
    ClippingFilter filter_;
    News news_;
    RowOrder order_;
    std::shared_ptr<const FoundClippings> found_;
    std::function<void()> dayRead_;
    std::function<void(std::vector<ClippingRow>&)> listing_;
};

}  // namespace vell

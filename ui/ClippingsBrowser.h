// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Date.h"
#include "ftp/listing/CFtpFiles.h"
#include "log/EventLog.h"
#include "ui/BrowserView.h"
#include "ui/Pacer.h"
#include "ui/list/ClippingFilter.h"

namespace vell {

class Files;
class modGlobal;
struct DayState;
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
    };
    explicit ClippingsBrowser(const Parts& parts);

    // Refills the date list from the day folders, newest first; the chosen day stays chosen when it is still there.
    void PopulateDateCombo();
    // Refills the list with the clippings of the chosen day.
    void PopulateLocalFilesGrid();
    // Both, at most as often as a run can afford: a day with many clippings must not slow down the run.
    void refreshDuringRun();
    void refresh();

    // Chooses a day of the date list and loads its clippings and alert. False when it is not in the list.
    bool chooseDay(const Date& day);
    // The day that is chosen, if one is.
    [[nodiscard]] const std::optional<Date>& chosenDay() const;
    [[nodiscard]] const std::vector<Date>& days() const { return days_; }
    [[nodiscard]] const std::vector<ClippingRow>& rows() const { return rows_; }

    void loadAlert();

    // The marks of the row, counted from 0, or of the clipping with this path, when it is listed, may have changed.
    void ShowOpenPrintedPicture(std::size_t row);
    void refreshMarks(const std::string& path);

    // Lists only what passes from now on.
    void setFilter(ClippingFilter filter);
    [[nodiscard]] const ClippingFilter& filter() const { return filter_; }
    // All clippings of the chosen day, whether they pass the filter or not.
    [[nodiscard]] const CFtpFiles& dayFiles() const { return dayFiles_; }

  private:
    void ShowOpenPrintedPicture(ClippingRow& row) const;
    void refreshClippingsCount();

    Parts p_;
    Pacer pacer_;
    std::vector<Date> days_;
    std::vector<ClippingRow> rows_;
    CFtpFiles dayFiles_;
    ClippingFilter filter_;
};

}  // namespace vell

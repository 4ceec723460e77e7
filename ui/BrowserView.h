// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Date.h"
#include "ftp/listing/CFtpFiles.h"
#include "ui/days/DayLine.h"

namespace vell {

struct EmptyHint;
struct RowOrder;

// One row of the list of clippings.
struct ClippingRow {
    CFtpFiles::Pointer File;
    std::size_t Number = 0;  // its place among the day's clippings as the store gives them
    bool Opened = false;
    bool Printed = false;
    std::string Page{};  // in the newspaper; only while it is wanted, and once it has been read
    bool New = false;    // the last download brought it, and it has not been opened

    // The clipping's full path.
    [[nodiscard]] std::string path() const { return File->FilePath + File->FileName; }
};

// Counts of the rows that are listed, in words; empty where there are none to tell.
struct CountTexts {
    std::string Listed;
    std::string Unread{};
    std::string New{};
};

// What the date list, the list of clippings and what belongs to them can show. Texts are in code page 1253 and are
// shown as they are, never as markup.
class BrowserView {
  public:
    virtual ~BrowserView() = default;

    // The days, newest first; `chosen` is one of them or none.
    virtual void showDays(const std::vector<DayLine>& days, const std::optional<Date>& chosen) = 0;
    // One of them has another text now.
    virtual void showDayText(const DayLine& /*day*/) {}
    // All rows anew, in the order in which they are shown. The rows live until the next call.
    virtual void showClippings(const std::vector<ClippingRow>& rows) = 0;
    // The marks of one row, counted from 0, have changed.
    virtual void showMarks(std::size_t row) = 0;
    virtual void showCounts(const CountTexts& texts) = 0;
    // What stands in the place of a list without rows; follows showClippings.
    virtual void showEmptyHint(const EmptyHint& /*hint*/) {}
    // The day's alert; empty for none.
    virtual void showAlert(std::string_view text) = 0;
    // It came with a download, and nobody has looked at it yet.
    virtual void showAlertIsNew(bool /*isNew*/) {}
    // The advertisement picture's path; there may be no file under it.
    virtual void showAdvertisement(const std::string& path) = 0;
    virtual void showBusy(bool busy) = 0;
    // The filter that keeps clippings out of the list, in words; empty for none.
    virtual void showFilter(std::string_view /*text*/) {}
    // The rows are of several days from now on, or of one again.
    virtual void showSeveralDays(bool /*several*/) {}
    // By what the rows are sorted from now on.
    virtual void showOrder(const RowOrder& /*order*/) {}
};

}  // namespace vell

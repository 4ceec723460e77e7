// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Date.h"
#include "ftp/listing/CFtpFiles.h"

namespace vell {

// One row of the list of clippings.
struct ClippingRow {
    CFtpFiles::Pointer File;
    bool Opened = false;
    bool Printed = false;

    // The clipping's full path.
    [[nodiscard]] std::string path() const { return File->FilePath + File->FileName; }
};

// What the date list, the list of clippings and what belongs to them can show. Texts are in code page 1253 and are
// shown as they are, never as markup.
class BrowserView {
  public:
    virtual ~BrowserView() = default;

    // The days, newest first; `chosen` is one of them or none.
    virtual void showDays(const std::vector<Date>& days, const std::optional<Date>& chosen) = 0;
    // All rows anew. The rows live until the next call.
    virtual void showClippings(const std::vector<ClippingRow>& rows) = 0;
    // The marks of one row, counted from 0, have changed.
    virtual void showMarks(std::size_t row) = 0;
    virtual void showCount(std::string_view text) = 0;
    // The day's alert; empty for none.
    virtual void showAlert(std::string_view text) = 0;
    // The advertisement picture's path; there may be no file under it.
    virtual void showAdvertisement(const std::string& path) = 0;
    virtual void showBusy(bool busy) = 0;
    // The filter that keeps clippings out of the list, in words; empty for none.
    virtual void showFilter(std::string_view /*text*/) {}
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/BrowserView.h"
#include "ui/list/GridColumns.h"

namespace vell {

// Text as people look it up: without regard to case and to Greek accents. Equal keys mean equal words.
[[nodiscard]] std::string lookUpKey(std::string_view text);

// In which order the rows are shown. Sorting changes the places on the screen only: every command means a row by its
// number in the list as the browser holds it, and so do `rowAt` and `placeOf`.
class RowOrder {
  public:
    // By another column: ascending. By the same one again: descending, then as they come.
    void sortBy(GridColumn column, const std::vector<ClippingRow>& rows);
    // The rows are others now; the sorting stays.
    void rebuild(const std::vector<ClippingRow>& rows);

    [[nodiscard]] std::optional<GridColumn> column() const { return column_; }
    [[nodiscard]] bool isAscending() const { return ascending_; }

    [[nodiscard]] std::size_t size() const { return rowAt_.size(); }
    [[nodiscard]] std::size_t rowAt(std::size_t place) const { return rowAt_.at(place); }
    [[nodiscard]] std::size_t placeOf(std::size_t row) const { return placeOf_.at(row); }

  private:
    std::optional<GridColumn> column_;
    bool ascending_ = true;
    std::vector<std::size_t> rowAt_;
    std::vector<std::size_t> placeOf_;
};

// The places in `after`, ascending, of what came in between; nothing when something of `before` is gone or stands in
// another order, so that only showing everything anew helps.
[[nodiscard]] std::optional<std::vector<std::size_t>> insertedPlaces(const std::vector<std::string>& before,
                                                                     const std::vector<std::string>& after);

}  // namespace vell

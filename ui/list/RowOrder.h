// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/list/GridColumns.h"

namespace vell {

struct ClippingRow;

// Text as people look it up: without regard to case and to Greek accents. Equal keys mean equal words.
[[nodiscard]] std::string lookUpKey(std::string_view text);

// By what the list of clippings is sorted; by nothing it stands as the store gives it.
struct RowOrder {
    std::optional<GridColumn> Column;
    bool Ascending = true;

    // By another column: ascending. By the same one again: descending, then as they come.
    void choose(GridColumn column);
    // Rows that are equal in the column stay as the store gives them.
    void sort(std::vector<ClippingRow>& rows) const;

    bool operator==(const RowOrder&) const = default;
};

// The places in `after`, ascending, of what came in between; nothing when something of `before` is gone or stands in
// another order, so that only showing everything anew helps.
[[nodiscard]] std::optional<std::vector<std::size_t>> insertedPlaces(const std::vector<std::string>& before,
                                                                     const std::vector<std::string>& after);

}  // namespace vell

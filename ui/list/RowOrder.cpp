// SPDX-License-Identifier: MIT
#include "ui/list/RowOrder.h"

#include <algorithm>
#include <numeric>

#include "base/text.h"

namespace vell {

namespace {

std::string sortKey(const ClippingRow& row, GridColumn column) {
    // Rows with marks come in the order of the pictures, those without at the end.
    if (column == GridColumn::Marks)
        return row.Opened && row.Printed ? "2" : row.Printed ? "1" : row.Opened ? "0" : "3";
    return lookUpKey(cellText(row, column));
}

}  // namespace

std::string lookUpKey(std::string_view text) {
    std::string key = withoutAccents(Upper(text));
    // Iota and upsilon with both accents have no capital.
    std::ranges::replace(key, '\xC0', '\xC9');
    std::ranges::replace(key, '\xE0', '\xD5');
    return key;
}

void RowOrder::sortBy(GridColumn column, const std::vector<ClippingRow>& rows) {
    if (column_ != column) {
        column_ = column;
        ascending_ = true;
    } else if (ascending_) {
        ascending_ = false;
    } else {
        column_.reset();
        ascending_ = true;
    }
    rebuild(rows);
}

void RowOrder::rebuild(const std::vector<ClippingRow>& rows) {
    rowAt_.resize(rows.size());
    std::iota(rowAt_.begin(), rowAt_.end(), std::size_t{0});
    if (column_) {
        std::vector<std::string> keys;
        keys.reserve(rows.size());
        for (const ClippingRow& row : rows)
            keys.push_back(sortKey(row, *column_));
        std::stable_sort(rowAt_.begin(), rowAt_.end(), [&](std::size_t a, std::size_t b) {
            return ascending_ ? keys[a] < keys[b] : keys[b] < keys[a];
        });
    }
    placeOf_.resize(rows.size());
    for (std::size_t place = 0; place < rowAt_.size(); ++place)
        placeOf_[rowAt_[place]] = place;
}

std::optional<std::vector<std::size_t>> insertedPlaces(const std::vector<std::string>& before,
                                                       const std::vector<std::string>& after) {
    std::vector<std::size_t> places;
    std::size_t matched = 0;
    for (std::size_t place = 0; place < after.size(); ++place) {
        if (matched < before.size() && before[matched] == after[place])
            ++matched;
        else
            places.push_back(place);
    }
    if (matched != before.size()) return std::nullopt;
    return places;
}

}  // namespace vell

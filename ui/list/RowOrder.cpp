// SPDX-License-Identifier: MIT
#include "ui/list/RowOrder.h"

#include <algorithm>
#include <numeric>

#include "base/text.h"

namespace vell {

namespace {

// The accented Greek capitals of the code page and the letters under their accents.
constexpr std::string_view accented = "\xA2\xB8\xB9\xBA\xBC\xBE\xBF\xDA\xDB\xC0\xE0";
constexpr std::string_view plain = "\xC1\xC5\xC7\xC9\xCF\xD5\xD9\xC9\xD5\xC9\xD5";

std::string sortKey(const ClippingRow& row, GridColumn column) {
    // Rows with marks come in the order of the pictures, those without at the end.
    if (column == GridColumn::Marks)
        return row.Opened && row.Printed ? "2" : row.Printed ? "1" : row.Opened ? "0" : "3";
    return lookUpKey(cellText(row, column));
}

}  // namespace

std::string lookUpKey(std::string_view text) {
    std::string key = Upper(text);
    for (char& c : key)
        if (const auto at = accented.find(c); at != std::string_view::npos) c = plain[at];
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

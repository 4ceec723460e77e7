// SPDX-License-Identifier: MIT
#include "ui/list/RowOrder.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "ui/BrowserView.h"
#include "ui/dayOf.h"

namespace vell {

namespace {

// By the number, wherever it stands in the page's name: 2 before 12, A3 before B1.
std::string pageKey(std::string_view page) {
    constexpr std::size_t longestNumber = 9;
    const std::size_t digits = std::min(page.find_first_of("0123456789"), page.size());
    const std::size_t length = std::min(page.find_first_not_of("0123456789", digits), page.size()) - digits;
    return lookUpKey(page.substr(0, digits)) + std::string(longestNumber - std::min(length, longestNumber), '0') +
           lookUpKey(page.substr(digits));
}

std::string sortKey(const ClippingRow& row, GridColumn column) {
    // Rows with marks come in the order of the pictures, those without at the end.
    if (column == GridColumn::Marks)
        return row.Opened && row.Printed ? "2" : row.Printed ? "1" : row.Opened ? "0" : "3";
    if (column == GridColumn::Day) {
        const Date day = dayOf(*row.File).value_or(Date{});
        return std::to_string(day.Year * 10'000 + day.Month * 100 + day.Day);
    }
    if (column == GridColumn::Page) return pageKey(row.Page);
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

void RowOrder::choose(GridColumn column) {
    if (Column != column)
        *this = {column, true};
    else if (Ascending)
        Ascending = false;
    else
        *this = {};
}

void RowOrder::sort(std::vector<ClippingRow>& rows) const {
    if (!Column && std::ranges::is_sorted(rows, {}, &ClippingRow::Number)) return;
    struct Keyed {
        std::string Key;
        ClippingRow Row;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(rows.size());
    for (ClippingRow& row : rows)
        keyed.push_back({Column ? sortKey(row, *Column) : std::string(), std::move(row)});
    std::ranges::sort(keyed, [this](const Keyed& a, const Keyed& b) {
        if (a.Key == b.Key) return a.Row.Number < b.Row.Number;
        return Ascending ? a.Key < b.Key : b.Key < a.Key;
    });
    std::ranges::transform(keyed, rows.begin(), [](Keyed& one) { return std::move(one.Row); });
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

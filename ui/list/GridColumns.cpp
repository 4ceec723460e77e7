// SPDX-License-Identifier: MIT
#include "ui/list/GridColumns.h"

#include <algorithm>
#include <cstdint>

#include "ui/BrowserView.h"
#include "ui/dayOf.h"

namespace vell {

std::string cellText(const ClippingRow& row, GridColumn column) {
    switch (column) {
        case GridColumn::Marks:
            return {};
        case GridColumn::Newspaper:
            return row.File->NewspaperName;
        case GridColumn::Title:
            return row.File->Description;
        case GridColumn::Type:
            return row.File->ArticleType;
        case GridColumn::Category:
            return row.File->Category;
        case GridColumn::File:
            return row.File->FileName;
        case GridColumn::Path:
            return row.path();
        case GridColumn::Day: {
            const auto day = dayOf(*row.File);
            return day ? day->dayName() : std::string();
        }
        case GridColumn::Page:
            return row.Page;
    }
    return {};
}

std::vector<int> fittedWidths(std::span<const ColumnWish> wishes, int room) {
    std::int64_t lacking = 0;
    int spare = room;
    for (const ColumnWish& wish : wishes) {
        lacking += std::max(0, wish.Wanted - wish.Least);
        spare -= wish.Least;
    }
    std::vector<int> widths;
    for (const ColumnWish& wish : wishes) {
        const int lacks = std::max(0, wish.Wanted - wish.Least);
        const int more =
            spare <= 0 || lacking == 0 ? 0 : static_cast<int>(std::min<std::int64_t>(spare, lacking) * lacks / lacking);
        widths.push_back(wish.Least + more);
        lacking -= lacks;
        spare -= more;
    }
    return widths;
}

}  // namespace vell

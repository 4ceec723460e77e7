// SPDX-License-Identifier: MIT
#include "ui/list/GridColumns.h"

#include <algorithm>
#include <cstdint>

#include "ui/BrowserView.h"

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
    }
    return {};
}

TextColumnWidths fittedWidths(const TextColumnWidths& least, const TextColumnWidths& wanted, int room) {
    const int newspaperLacks = std::max(0, wanted.Newspaper - least.Newspaper);
    const int typeLacks = std::max(0, wanted.Type - least.Type);
    const int spare = std::clamp(room - least.Newspaper - least.Type, 0, newspaperLacks + typeLacks);
    if (spare == 0) return least;
    const int toNewspaper = static_cast<int>(std::int64_t{spare} * newspaperLacks / (newspaperLacks + typeLacks));
    return {least.Newspaper + toNewspaper, least.Type + spare - toNewspaper};
}

}  // namespace vell

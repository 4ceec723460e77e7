// SPDX-License-Identifier: MIT
#include "ui/GridColumns.h"

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

}  // namespace vell

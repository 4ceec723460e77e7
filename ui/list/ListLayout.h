// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "ui/list/RowOrder.h"

namespace vell {

class ViewSettings;

// A column that is seen in the list.
struct ColumnPlace {
    GridColumn Column = GridColumn::Title;
    int Width = 0;  // in twips, as somebody has drawn it; 0 for one that fits its texts

    bool operator==(const ColumnPlace&) const = default;
};

// The columns that are seen, from left to right. The marks and the titles are always among them.
using ListLayout = std::vector<ColumnPlace>;

// Those that can be seen or not.
inline constexpr std::array optionalColumns{GridColumn::Newspaper, GridColumn::Type, GridColumn::Category,
                                            GridColumn::Page, GridColumn::File};

// Those that can stand elsewhere.
inline constexpr std::array movableColumns{GridColumn::Marks, GridColumn::Newspaper, GridColumn::Title,
                                           GridColumn::Type,  GridColumn::Category,  GridColumn::Page,
                                           GridColumn::File};

[[nodiscard]] bool isSeen(const ListLayout& layout, GridColumn column);
// A column that is seen no more, or again: then behind all others.
void toggle(ListLayout& layout, GridColumn column);
// One that is seen, by so many places to the right, or to the left when they are negative.
[[nodiscard]] bool canMove(const ListLayout& layout, GridColumn column, int places);
void moveColumn(ListLayout& layout, GridColumn column, int places);

// How the list was left the last time. Names that make no sense are passed over.
[[nodiscard]] ListLayout keptListLayout(const ViewSettings& kept);
void keep(ViewSettings& kept, const ListLayout& layout);
[[nodiscard]] RowOrder keptRowOrder(const ViewSettings& kept);
void keep(ViewSettings& kept, const RowOrder& order);

}  // namespace vell

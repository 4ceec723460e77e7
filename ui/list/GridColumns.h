// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Translations.h"

namespace vell {

// The columns of the list of clippings. The hidden ones are data for the commands.
enum class GridColumn : std::size_t { Marks, Newspaper, Title, Type, Category, File, Path, Day, Page };

struct GridColumnLayout {
    GridColumn Column;
    std::string_view Header;
    int Width;         // in twips; 0 hides the column unless somebody wants to see it
    int LeastWidth{};  // of a hidden one that is wanted; 0 for one that nobody is offered
};

inline constexpr std::array<GridColumnLayout, 9> gridColumns{{
    {GridColumn::Marks, "", 600},
    {GridColumn::Newspaper, translatable("Newspaper"), 1500},
    {GridColumn::Title, translatable("Title"), 4200},
    {GridColumn::Type, translatable("Type"), 800},
    {GridColumn::Category, translatable("Category"), 0, 1200},
    {GridColumn::File, translatable("File"), 0, 1200},
    {GridColumn::Path, "Path", 0},
    {GridColumn::Day, "Day", 0},  // seen in front while clippings of several days are listed
    {GridColumn::Page, translatable("Page"), 0, 600},
}};

// In twips.
[[nodiscard]] constexpr int gridColumnWidth(GridColumn column) {
    const GridColumnLayout& layout = gridColumns[static_cast<std::size_t>(column)];
    return layout.Width > 0 ? layout.Width : layout.LeastWidth;
}

// What a column of texts gets, in any one unit.
struct ColumnWish {
    int Least = 0;
    int Wanted = 0;
};

// Each gets what its texts want, and at least its least width, from a room for all; where that does not do, what is
// left beyond the least widths is shared in proportion to what is missing.
[[nodiscard]] std::vector<int> fittedWidths(std::span<const ColumnWish> wishes, int room);

struct ClippingRow;

// The text of a row's cell in code page 1253; the first column has a picture instead.
[[nodiscard]] std::string cellText(const ClippingRow& row, GridColumn column);

}  // namespace vell

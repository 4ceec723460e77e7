// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace vell {

// The columns of the list of clippings. The hidden ones are data for the commands.
enum class GridColumn : std::size_t { Marks, Newspaper, Title, Type, Category, File, Path };

struct GridColumnLayout {
    GridColumn Column;
    std::string_view Header;
    int Width;  // in twips; 0 hides the column
};

inline constexpr std::array<GridColumnLayout, 7> gridColumns{{
    {GridColumn::Marks, "", 600},
    {GridColumn::Newspaper, "Newspaper", 1500},
    {GridColumn::Title, "Title", 4200},
    {GridColumn::Type, "Type", 800},
    {GridColumn::Category, "Category", 0},
    {GridColumn::File, "File", 0},
    {GridColumn::Path, "Path", 0},
}};

[[nodiscard]] constexpr int gridColumnWidth(GridColumn column) {
    return gridColumns[static_cast<std::size_t>(column)].Width;
}

// Of the two columns that cut their texts first, in any one unit.
struct TextColumnWidths {
    int Newspaper = 0;
    int Type = 0;

    bool operator==(const TextColumnWidths&) const = default;
};

// Each gets what its texts want, and at least its least width, from a room for both; where that does not do, what is
// left beyond the least widths is shared in proportion to what is missing.
[[nodiscard]] TextColumnWidths fittedWidths(const TextColumnWidths& least, const TextColumnWidths& wanted, int room);

struct ClippingRow;

// The text of a row's cell in code page 1253; the first column has a picture instead.
[[nodiscard]] std::string cellText(const ClippingRow& row, GridColumn column);

}  // namespace vell

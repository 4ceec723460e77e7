// SPDX-License-Identifier: MIT
#include "ui/list/ListLayout.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "base/text.h"
#include "config/ViewSettings.h"

namespace vell {

namespace {

constexpr std::string_view columnsKey = "Columns";
constexpr std::string_view sortKey = "SortedBy";
constexpr std::string_view usualColumns = "Marks Newspaper Title Type";
constexpr std::string_view marksName = "Marks";
constexpr int widest = 1440 * 100;  // twips

std::string_view nameOf(GridColumn column) {
    if (column == GridColumn::Marks) return marksName;
    return gridColumns[static_cast<std::size_t>(column)].Header;
}

std::optional<GridColumn> columnOf(std::string_view name) {
    const auto found = std::ranges::find_if(gridColumns, [&](const GridColumnLayout& layout) {
        return gridColumnWidth(layout.Column) > 0 && nameOf(layout.Column) == name;
    });
    return found == gridColumns.end() ? std::nullopt : std::optional(found->Column);
}

}  // namespace

bool isSeen(const ListLayout& layout, GridColumn column) {
    return std::ranges::find(layout, column, &ColumnPlace::Column) != layout.end();
}

void toggle(ListLayout& layout, GridColumn column) {
    if (std::erase_if(layout, [&](const ColumnPlace& place) { return place.Column == column; }) == 0)
        layout.push_back({column, 0});
}

bool canMove(const ListLayout& layout, GridColumn column, int places) {
    const auto from = std::ranges::find(layout, column, &ColumnPlace::Column) - layout.begin();
    const auto end = std::ssize(layout);
    return from < end && from + places >= 0 && from + places < end;
}

void moveColumn(ListLayout& layout, GridColumn column, int places) {
    if (!canMove(layout, column, places)) return;
    const auto from = std::ranges::find(layout, column, &ColumnPlace::Column);
    if (places < 0)
        std::rotate(from + places, from, from + 1);
    else
        std::rotate(from, from + 1, from + 1 + places);
}

ListLayout keptListLayout(const ViewSettings& kept) {
    ListLayout layout;
    const std::string text = kept.text(columnsKey, usualColumns);
    for (const std::string_view part : Split(text, " ")) {
        const auto column = columnOf(part.substr(0, part.find(':')));
        const std::string_view width = part.substr(std::min(part.find(':'), part.size() - 1) + 1);
        if (column && !isSeen(layout, *column))
            layout.push_back({*column, static_cast<int>(std::clamp(Val(width), 0.0, 1.0 * widest))});
    }
    for (const GridColumn always : {GridColumn::Title, GridColumn::Marks})
        if (!isSeen(layout, always)) layout.insert(layout.begin(), {always, 0});
    return layout;
}

void keep(ViewSettings& kept, const ListLayout& layout) {
    std::string text;
    for (const auto& [column, width] : layout) {
        text += (text.empty() ? "" : " ") + std::string(nameOf(column));
        if (width > 0) text += ":" + std::to_string(width);
    }
    kept.keepText(columnsKey, text);
}

RowOrder keptRowOrder(const ViewSettings& kept) {
    const std::string text = kept.text(sortKey, "");
    const bool ascending = !text.starts_with('-');
    const auto column = columnOf(std::string_view(text).substr(ascending ? 0 : 1));
    return column ? RowOrder{column, ascending} : RowOrder{};
}

void keep(ViewSettings& kept, const RowOrder& order) {
    // The days stand beside the clippings of several days only.
    if (order.Column == GridColumn::Day) return;
    kept.keepText(
        sortKey, !order.Column ? std::string() : std::string(order.Ascending ? "" : "-").append(nameOf(*order.Column)));
}

}  // namespace vell

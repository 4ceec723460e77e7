// SPDX-License-Identifier: MIT
#include "desktop/list/ListColumns.h"

#include <algorithm>
#include <array>

#include <wx/dataview.h>
#include <wx/translation.h>

#include "desktop/list/ClippingsModel.h"
#include "desktop/native/columnTricks.h"
#include "desktop/pictures.h"
#include "desktop/screenText.h"
#include "desktop/twips.h"

namespace vell {

namespace {

// DIP
constexpr int narrowestTitle = 150;
constexpr int cellMargins = 12;
constexpr int headerExtra = 26;  // it is bold, and has an arrow when the list is sorted by it

constexpr std::array fittedColumns = optionalColumns;

}  // namespace

ListColumns::ListColumns(wxDataViewCtrl& list, const ClippingsModel& model, const Events& events)
    : list_(list), model_(model) {
    for (const GridColumnLayout& layout : gridColumns)
        if (gridColumnWidth(layout.Column) > 0) add(layout);
    showPictureOnly(columnOf(GridColumn::Marks), rowPictureSize);
    addDays();
    for (const auto& [name, column] : columns_) {
        whenHeaderClicked(*column, [clicked = events.Clicked, clickedName = name] { clicked(clickedName); });
        whenHeaderRightClicked(*column, events.RightClicked);
        column->SetReorderable(true);
        keepKeyboardOut(*column);
    }
}

void ListColumns::add(const GridColumnLayout& layout) {
    const auto index = static_cast<unsigned int>(layout.Column);
    const int width = least(layout.Column);
    int flags = layout.Width > 0 ? 0 : wxDATAVIEW_COL_HIDDEN;
    wxDataViewColumn* column = nullptr;
    if (layout.Column == GridColumn::Marks) {
        auto* marks = new wxDataViewIconTextRenderer;
        marks->DisableEllipsize();
        column = new wxDataViewColumn("", marks, index, width, wxALIGN_LEFT, flags);
    } else {
        auto* text = new wxDataViewTextRenderer;
        text->EnableEllipsize(wxELLIPSIZE_END);
        if (layout.Column != GridColumn::Title) flags |= wxDATAVIEW_COL_RESIZABLE;  // it takes the rest
        const wxString header = wxGetTranslation(shownLine(layout.Header));
        column = new wxDataViewColumn(header, text, index, width, wxALIGN_LEFT, flags);
    }
    list_.AppendColumn(column);
    columns_[layout.Column] = column;
    givenWidths_[layout.Column] = width;
    whenResized(*column, [this] { list_.CallAfter([this] { fit(); }); });
}

// Behind the marks, in sight only when they are wanted.
void ListColumns::addDays() {
    const wxFont widest = list_.GetFont().Bold();
    int width = 0, height = 0;
    list_.GetTextExtent("00/00/0000", &width, &height, nullptr, nullptr, &widest);
    width += list_.FromDIP(cellMargins);
    auto* days = new wxDataViewColumn(_("Day"), new wxDataViewTextRenderer, static_cast<unsigned int>(GridColumn::Day),
                                      width, wxALIGN_LEFT, wxDATAVIEW_COL_HIDDEN);
    list_.InsertColumn(1, days);
    columns_[GridColumn::Day] = days;
    givenWidths_[GridColumn::Day] = width;
}

void ListColumns::arrange(const ListLayout& layout) {
    std::vector<wxDataViewColumn*> order;
    for (const auto& [name, width] : layout) {
        order.push_back(&columnOf(name));
        if (width > 0) columnOf(name).SetWidth(pixelsFromTwips(list_, width));
        if (name == GridColumn::Marks) order.push_back(&columnOf(GridColumn::Day));
    }
    for (const GridColumn name : optionalColumns)
        columnOf(name).SetHidden(!vell::isSeen(layout, name));
    putInOrder(list_, order);
    measure();
}

ListLayout ListColumns::layout() const {
    ListLayout layout;
    for (const auto& [name, column] : columns_) {
        if (!isSeen(name) || name == GridColumn::Day) continue;
        const bool isDrawable = column->IsResizeable();
        const int drawn = isDrawable ? drawnWidth(name).value_or(0) : 0;
        layout.push_back({name, twipsFromPixels(list_, drawn)});
    }
    std::ranges::sort(layout, {},
                      [this](const ColumnPlace& place) { return list_.GetColumnPosition(&columnOf(place.Column)); });
    return layout;
}

void ListColumns::showDays(bool shown) {
    columnOf(GridColumn::Day).SetHidden(!shown);
    fit();
}

void ListColumns::showArrow(const RowOrder& order) {
    for (const auto& [name, column] : columns_) {
        if (order.Column == name)
            column->SetSortOrder(order.Ascending);
        else if (column->IsSortKey())
            column->UnsetAsSortKey();
    }
}

void ListColumns::measure() {
    const wxFont font = model_.hasBold() ? list_.GetFont().Bold() : list_.GetFont();
    for (const GridColumn name : fittedColumns)
        if (isSeen(name)) wantedWidths_[name] = wantedWidth(name, font);
    fit();
}

void ListColumns::fit() {
    int all = roomForColumns(list_);
    std::vector<GridColumn> names;
    std::vector<ColumnWish> wishes;
    for (const GridColumn name : fittedColumns) {
        if (!isSeen(name)) continue;
        const auto drawn = drawnWidth(name);
        names.push_back(name);
        wishes.push_back({drawn.value_or(least(name)), drawn.value_or(wantedWidths_[name])});
    }
    if (isSeen(GridColumn::Day)) all -= givenWidths_.at(GridColumn::Day);
    const int room = std::min(all * 2 / 3, all - least(GridColumn::Marks) - least(GridColumn::Title));
    const std::vector<int> widths = fittedWidths(wishes, room);
    int rest = all - least(GridColumn::Marks);
    for (std::size_t i = 0; i < names.size(); ++i) {
        giveWidth(names[i], widths[i]);
        rest -= widths[i];
    }
    giveWidth(GridColumn::Title, std::max(rest, list_.FromDIP(narrowestTitle)));
}

bool ListColumns::isSeen(GridColumn column) const {
    return !columnOf(column).IsHidden();
}

int ListColumns::least(GridColumn column) const {
    return pixelsFromTwips(list_, gridColumnWidth(column));
}

int ListColumns::wantedWidth(GridColumn column, const wxFont& font) const {
    constexpr std::size_t mostMeasured = 200;
    int widest = list_.GetTextExtent(columnOf(column).GetTitle()).GetWidth() + list_.FromDIP(headerExtra);
    for (const std::string& text : model_.texts(column, mostMeasured)) {
        int width = 0, height = 0;
        list_.GetTextExtent(shownLine(text), &width, &height, nullptr, nullptr, &font);
        widest = std::max(widest, width);
    }
    return widest + list_.FromDIP(cellMargins);
}

std::optional<int> ListColumns::drawnWidth(GridColumn column) const {
    const int width = givenWidth(columnOf(column));
    return width == givenWidths_.at(column) ? std::nullopt : std::optional(width);
}

void ListColumns::giveWidth(GridColumn column, int width) {
    if (drawnWidth(column) || width == givenWidths_.at(column)) return;
    columnOf(column).SetWidth(width);
    givenWidths_[column] = width;
}

}  // namespace vell

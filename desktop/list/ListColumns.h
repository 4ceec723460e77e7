// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "ui/list/GridColumns.h"
#include "ui/list/ListLayout.h"
#include "ui/list/RowOrder.h"

class wxDataViewColumn;
class wxDataViewCtrl;
class wxFont;
class wxPoint;

namespace vell {

class ClippingsModel;

// The columns of the list: which are seen, how wide they are, and the arrow of the one that it is sorted by. Columns
// that nobody has drawn fit their texts as far as the titles leave them room; the titles take the rest.
class ListColumns {
  public:
    struct Events {
        std::function<void(GridColumn column)> Clicked;  // into its header
        std::function<void()> RightClicked;              // into any
    };
    ListColumns(wxDataViewCtrl& list, const ClippingsModel& model, const Events& events);

    void arrange(const ListLayout& layout);
    // As it is now.
    [[nodiscard]] ListLayout layout() const;

    // The day of each clipping, in front.
    void showDays(bool shown);
    void showArrow(const RowOrder& order);
    // The rows are others.
    void measure();
    void fit();

  private:
    void add(const GridColumnLayout& layout);
    void addDays();
    [[nodiscard]] bool isSeen(GridColumn column) const;
    [[nodiscard]] int least(GridColumn column) const;
    [[nodiscard]] int wantedWidth(GridColumn column, const wxFont& font) const;
    [[nodiscard]] std::optional<int> drawnWidth(GridColumn column) const;
    void giveWidth(GridColumn column, int width);
    [[nodiscard]] wxDataViewColumn& columnOf(GridColumn column) const { return *columns_.at(column); }

    wxDataViewCtrl& list_;
    const ClippingsModel& model_;
    std::map<GridColumn, wxDataViewColumn*> columns_;  // the control's
    std::map<GridColumn, int> wantedWidths_;           // by the rows that are shown; measuring takes its time
    std::map<GridColumn, int> givenWidths_;  // by this object; a column that has another one was drawn by the user
};

}  // namespace vell

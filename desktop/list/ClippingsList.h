// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <wx/panel.h>

#include "ui/BrowserView.h"
#include "ui/list/GridColumns.h"
#include "ui/list/TypeAhead.h"

class wxDataViewColumn;
class wxDataViewCtrl;
class wxDataViewEvent;
class wxKeyEvent;
class wxMouseEvent;

namespace vell {

class ClippingsModel;

// The list of the chosen day's clippings. Rows are meant by their number in the browser's list throughout, whatever
// the list is sorted by.
class ClippingsList : public wxPanel {
  public:
    struct Events {
        std::function<void(std::size_t row)> DoubleClicked;
        std::function<void(std::size_t row)> Entered;
        std::function<void()> MenuWanted;
    };
    ClippingsList(wxWindow* parent, const Clock& clock, Events events);
    ~ClippingsList() override;

    void show(const std::vector<ClippingRow>& rows);
    void showMarks(std::size_t row, const ClippingRow& marked);
    // In pixels. Columns that the user has not drawn fit their texts as far as the titles leave them room.
    void setColumnWidth(GridColumn column, int width);
    // As the user has drawn it.
    [[nodiscard]] std::optional<int> chosenWidth(GridColumn column) const;

    // The row that commands for one clipping mean; nothing when the list is empty.
    [[nodiscard]] std::optional<std::size_t> currentRow() const;
    void selectRow(std::size_t row);
    void sortBy(GridColumn column);
    void focusList();

  private:
    void addColumns();
    void onKey(wxKeyEvent& event);
    void onCharacter(wxKeyEvent& event);
    void onMotion(wxMouseEvent& event);
    void restoreSelection(const std::string& path);
    void showSortArrow();
    void fitColumns();
    [[nodiscard]] int wantedWidth(GridColumn column) const;
    void giveWidth(GridColumn column, int width);
    [[nodiscard]] wxDataViewColumn& columnOf(GridColumn column) const;

    Events events_;
    ClippingsModel* model_;  // the control and this list share it
    wxDataViewCtrl* list_;
    TypeAhead typeAhead_;
    TextColumnWidths wantedWidths_;          // by the rows that are shown; measuring takes its time
    std::map<GridColumn, int> givenWidths_;  // by this list; a column that has another one was drawn by the user
};

}  // namespace vell

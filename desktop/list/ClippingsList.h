// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <wx/panel.h>

#include "desktop/list/ListColumns.h"
#include "ui/BrowserView.h"
#include "ui/list/GridColumns.h"
#include "ui/list/RowOrder.h"
#include "ui/list/TypeAhead.h"

class wxDataViewCtrl;
class wxDataViewEvent;
class wxDataViewItem;
class wxKeyEvent;
class wxMouseEvent;

namespace vell {

class ClippingsModel;
class EmptyPane;
struct EmptyHint;

// The list of the chosen day's clippings. Rows are meant by their number in the browser's list throughout.
class ClippingsList : public wxPanel {
  public:
    struct Events {
        std::function<void(std::size_t row)> DoubleClicked;
        std::function<void()> Entered;
        std::function<void(const wxPoint& place)> MenuWanted;  // on the screen
        std::function<void(GridColumn column)> SortWanted;
        // The paths of their files, the system's own, UTF-8.
        std::function<std::vector<std::string>(const std::vector<std::size_t>& rows)> FilesWanted;
        std::function<void()> ColumnsWanted;  // a menu to choose them
        std::function<void()> Selected;       // another row may be the current one, or that row is another clipping
        std::function<bool()> BlankPressed;   // true when the key has done something
        std::function<void(bool isShown)> HintShown;
    };
    ClippingsList(wxWindow* parent, const Clock& clock, Events events);
    ~ClippingsList() override;

    // What was selected stays selected as far as it is still there.
    void show(const std::vector<ClippingRow>& rows);
    void showMarks(std::size_t row, const ClippingRow& marked);
    void showOrder(const RowOrder& order);
    // In the place of the list, until it has rows or the hint is hidden.
    void showHint(const EmptyHint& hint);
    void hideHint();
    [[nodiscard]] ListColumns& columns() { return columns_; }

    // The row that commands for one clipping mean: where the keyboard is; nothing when the list is empty.
    [[nodiscard]] std::optional<std::size_t> currentRow() const;
    // The rows that commands for several mean, from the top down.
    [[nodiscard]] std::vector<std::size_t> selectedRows() const;
    [[nodiscard]] bool hasSelection() const;
    // That row alone.
    void selectRow(std::size_t row);
    void selectAll();
    void focusList();

  private:
    void onKey(wxKeyEvent& event);
    void wantMenu(const wxPoint& place);
    [[nodiscard]] wxPoint belowCurrentRow() const;
    [[nodiscard]] bool type(const wxKeyEvent& event);
    void onMotion(wxMouseEvent& event);
    void onDraw(wxDataViewEvent& event);
    void restoreSelection(const std::string& current, const std::set<std::string>& selected);
    [[nodiscard]] wxDataViewItem itemOf(std::size_t row) const;

    Events events_;
    ClippingsModel* model_;  // the control and this list share it
    wxDataViewCtrl* list_;
    EmptyPane* empty_;
    ListColumns columns_;
    TypeAhead typeAhead_;
    RowOrder order_;
};

}  // namespace vell

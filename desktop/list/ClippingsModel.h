// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <wx/bmpbndl.h>
#include <wx/dataview.h>

#include "ui/BrowserView.h"
#include "ui/list/RowOrder.h"

namespace vell {

// The rows as the list control asks for them: place by place, only those that are seen. A place on the screen and a
// row of the browser are two things as soon as the list is sorted.
class ClippingsModel : public wxDataViewVirtualListModel {
  public:
    ClippingsModel();

    // Others now. The control is told as little as is needed: new rows in between, and those that look different, move
    // nothing. False when everything had to be shown anew, which loses the control's selection and place.
    bool setRows(const std::vector<ClippingRow>& rows);
    void setMarks(std::size_t row, const ClippingRow& marked);
    void sortBy(GridColumn column);

    [[nodiscard]] const RowOrder& order() const { return order_; }
    [[nodiscard]] std::size_t size() const { return rows_.size(); }
    [[nodiscard]] const ClippingRow& at(std::size_t row) const { return rows_.at(row); }
    [[nodiscard]] std::string textAt(std::size_t place, GridColumn column) const;
    // The different texts of a column, at most so many.
    [[nodiscard]] std::set<std::string> texts(GridColumn column, std::size_t most) const;
    [[nodiscard]] std::optional<std::size_t> rowOf(const std::string& path) const;

    [[nodiscard]] unsigned int GetColumnCount() const override;
    [[nodiscard]] wxString GetColumnType(unsigned int column) const override;
    void GetValueByRow(wxVariant& value, unsigned int place, unsigned int column) const override;
    bool SetValueByRow(const wxVariant& value, unsigned int place, unsigned int column) override;

  private:
    [[nodiscard]] std::vector<ClippingRow> shownRows() const;
    void tellChanges(const std::vector<ClippingRow>& before, const std::vector<std::size_t>& inserted);

    std::vector<ClippingRow> rows_;
    RowOrder order_;
    std::array<wxBitmapBundle, 3> imgOpenPrinter_;  // opened, printed, both
};

}  // namespace vell

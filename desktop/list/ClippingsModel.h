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
#include "ui/list/GridColumns.h"

namespace vell {

// The rows as the list control asks for them: only those that are seen.
class ClippingsModel : public wxDataViewVirtualListModel {
  public:
    ClippingsModel();

    // Others now. The control is told as little as is needed: new rows in between, and those that look different, move
    // nothing. False when everything had to be shown anew, which loses the control's selection and place.
    bool setRows(const std::vector<ClippingRow>& rows);
    void setMarks(std::size_t row, const ClippingRow& marked);

    [[nodiscard]] std::size_t size() const { return rows_.size(); }
    [[nodiscard]] bool hasBold() const;
    [[nodiscard]] const ClippingRow& at(std::size_t row) const { return rows_.at(row); }
    // The different texts of a column, at most so many.
    [[nodiscard]] std::set<std::string> texts(GridColumn column, std::size_t most) const;
    [[nodiscard]] std::optional<std::size_t> rowOf(const std::string& path) const;

    [[nodiscard]] unsigned int GetColumnCount() const override;
    [[nodiscard]] wxString GetColumnType(unsigned int column) const override;
    void GetValueByRow(wxVariant& value, unsigned int row, unsigned int column) const override;
    bool SetValueByRow(const wxVariant& value, unsigned int row, unsigned int column) override;
    bool GetAttrByRow(unsigned int row, unsigned int column, wxDataViewItemAttr& looks) const override;

  private:
    void tellChanges(const std::vector<ClippingRow>& before, const std::vector<std::size_t>& inserted);

    std::vector<ClippingRow> rows_;
    std::array<wxBitmapBundle, 3> imgOpenPrinter_;  // opened, printed, both
};

}  // namespace vell

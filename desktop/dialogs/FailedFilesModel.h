// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <wx/dataview.h>

#include "app/failures/frmFailedFiles.h"

namespace vell {

// Gives the list control the rows that are seen: a service that fails in the middle of a large day leaves thousands.
class FailedFilesModel : public wxDataViewVirtualListModel {
  public:
    enum Column : unsigned int { Day, Title, File, Cause };

    explicit FailedFilesModel(std::vector<frmFailedFiles::Row> rows);

    void GetValueByRow(wxVariant& value, unsigned int row, unsigned int column) const override;
    bool SetValueByRow(const wxVariant& /*value*/, unsigned int /*row*/, unsigned int /*column*/) override {
        return false;
    }
    [[nodiscard]] unsigned int GetColumnCount() const override { return Cause + 1; }
    [[nodiscard]] wxString GetColumnType(unsigned int /*column*/) const override { return "string"; }

  private:
    std::vector<frmFailedFiles::Row> rows_;
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#include "desktop/dialogs/FailedFilesModel.h"

#include <array>
#include <utility>

#include "desktop/screenText.h"

namespace vell {

FailedFilesModel::FailedFilesModel(std::vector<frmFailedFiles::Row> rows)
    : wxDataViewVirtualListModel(static_cast<unsigned int>(rows.size())), rows_(std::move(rows)) {}

void FailedFilesModel::GetValueByRow(wxVariant& value, unsigned int row, unsigned int column) const {
    const frmFailedFiles::Row& texts = rows_.at(row);
    const std::array columns{&texts.Day, &texts.Title, &texts.File, &texts.Cause};
    value = shownLine(*columns.at(column));
}

}  // namespace vell

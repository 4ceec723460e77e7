// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <wx/dialog.h>

#include "app/failures/frmFailedFiles.h"
#include "desktop/dialogs/FailedFilesModel.h"

namespace vell {

// The files that have not come, and why. OK means that they are to be fetched again.
class FailedFilesDialog : public wxDialog {
  public:
    FailedFilesDialog(wxWindow* parent, frmFailedFiles rules);

    // Those that are selected; all when none is.
    [[nodiscard]] std::vector<FailedFile> chosen() const;

  private:
    void addList();
    void accept();

    frmFailedFiles rules_;
    wxObjectDataPtr<FailedFilesModel> model_;
    wxDataViewCtrl* files_ = nullptr;
};

}  // namespace vell

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <wx/dialog.h>

#include "ui/dialogs/frmFilter.h"

class wxCheckListBox;
class wxSizer;

namespace vell {

// The choice of the categories and types that are listed.
class FilterDialog : public wxDialog {
  public:
    FilterDialog(wxWindow* parent, frmFilter rules);

  private:
    template <class IsChosen>
    [[nodiscard]] wxCheckListBox* listBox(wxSizer& sizer, const wxString& label, const std::vector<std::string>& names,
                                          IsChosen isChosen);
    void ok();
    void clear();

    frmFilter rules_;
    wxCheckListBox* categories_ = nullptr;
    wxCheckListBox* types_ = nullptr;
};

}  // namespace vell

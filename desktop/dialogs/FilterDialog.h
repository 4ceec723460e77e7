// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <wx/dialog.h>

#include "ui/dialogs/frmFilter.h"

class wxCheckListBox;
class wxSizer;
class wxStaticText;

namespace vell {

// The choice of the newspapers, categories and types that are listed.
class FilterDialog : public wxDialog {
  public:
    FilterDialog(wxWindow* parent, frmFilter rules);

  private:
    void addList(wxSizer& sizer, const wxString& label, FilterChoice& choice);
    [[nodiscard]] wxSizer* bottomRow();
    void showTicks();

    struct List {
        FilterChoice* Choice;
        wxCheckListBox* Box;
    };

    frmFilter rules_;
    std::vector<List> lists_;
    wxStaticText* outcome_ = nullptr;
};

}  // namespace vell

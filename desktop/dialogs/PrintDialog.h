// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/dialog.h>

#include "ui/dialogs/frmPrint.h"

class wxListBox;
class wxSizer;
class wxStaticText;

namespace vell {

// Prints whole categories: those that are left on one side, those that are chosen on the other.
class PrintDialog : public wxDialog {
  public:
    // `splitChosen` is told what the user likes of the two ways to take categories.
    PrintDialog(wxWindow* parent, frmPrint rules, std::function<void(bool split)> splitChosen);

  private:
    void addSplitBox(wxSizer& sizer);
    [[nodiscard]] wxListBox* listBox(wxSizer& sizer, const wxString& label);
    [[nodiscard]] wxSizer* moveButtons();
    [[nodiscard]] wxSizer* bottomRow();
    void addOne();
    void removeOne();
    void show();
    void print();

    frmPrint rules_;
    std::function<void(bool split)> splitChosen_;
    wxListBox* lstAllCategories_ = nullptr;
    wxListBox* lstPrintCategories_ = nullptr;
    wxStaticText* outcome_ = nullptr;
    wxStaticText* status_ = nullptr;
};

}  // namespace vell
